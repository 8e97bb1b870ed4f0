// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/windows/WindowTests.h"
#include "ui/text/Mnemonics.h"

#include <QLabel>
#include <QPushButton>

using namespace Qt::StringLiterals;

class tst_mnemonics : public QObject {
    Q_OBJECT
private Q_SLOTS:

    void theFirstLetterThatIsFreeIsTaken() {
        QCOMPARE(Mnemonics::Spread({u"New"_s, u"Open"_s, u"Name"_s}), QStringList({u"&New"_s, u"&Open"_s, u"N&ame"_s}));
    }

    void anotherWordsFirstLetterGoesBeforeTheNextLetter() {
        QCOMPARE(Mnemonics::Spread({u"Save"_s, u"Save as"_s}), QStringList({u"&Save"_s, u"Save &as"_s}));
    }

    void aPlainLetterGoesBeforeAnAccentedOne() {
        QCOMPARE(Mnemonics::Spread({u"Édition"_s, u"À propos"_s}), QStringList({u"É&dition"_s, u"À &propos"_s}));
    }

    void anAccentedLetterIsBetterThanNone() {
        QCOMPARE(Mnemonics::Spread({u"Вид"_s, u"é"_s}), QStringList({u"&Вид"_s, u"&é"_s}));
    }

    void aLetterThatATextMarksItselfIsKept() {
        QCOMPARE(Mnemonics::Spread({u"Exit"_s, u"R&edo"_s, u"A && B"_s}),
                 QStringList({u"E&xit"_s, u"R&edo"_s, u"&A && B"_s}));
    }

    void aTextWithoutAFreeLetterStaysAsItIs() {
        QCOMPARE(Mnemonics::Spread({u"a"_s, u"A"_s, u""_s, u"..."_s}), QStringList({u"&a"_s, u"A"_s, u""_s, u"..."_s}));
    }

    void controlsGetLettersInTheirOrder() {
        QPushButton next(u"Next"_s);
        QPushButton now(u"Now"_s);
        QLabel name(u"Name:"_s);
        Mnemonics::AddTo({&next, &name, &now});
        QCOMPARE(next.text(), u"&Next"_s);
        QCOMPARE(name.text(), u"N&ame:"_s);
        QCOMPARE(now.text(), u"N&ow"_s);
    }
};

WINDOW_TEST(tst_mnemonics)
#include "tst_mnemonics.moc"
