// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/support/World.h"
#include "tests/windows/WindowTests.h"
#include "ui/text/ControlTexts.h"

#include <QApplication>
#include <QKeySequence>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>

using namespace Qt::StringLiterals;

class tst_controltexts : public QObject {
    Q_OBJECT
private:
    static QStringList TextsOf(const std::unique_ptr<QMenu>& menu) {
        QStringList texts;
        for (const QAction* action : menu->actions())
            if (!action->isSeparator())
                texts += action->text().section(u'\t', 0, 0);
        return texts;
    }

    std::unique_ptr<World> world_;
    std::unique_ptr<ControlTexts> texts_;

private Q_SLOTS:

    void init() {
        world_ = std::make_unique<World>();
        world_->UseLanguage("[LNG]\r\nUndo=R\xFC"
                            "ck\r\nRedo=Vor\r\nCut=Aus\r\nCopy=Kopie\r\nPaste=Ein\r\nDelete=Weg\r\nSelectAll=Alles\r\n"
                            "KeyControl=Strg\r\nKeyInsert=Einfg\r\nKeyDelete=Entf\r\nKeyShift=Umschalt\r\n");
        world_->Start();
        texts_ = std::make_unique<ControlTexts>();
        QApplication::installTranslator(texts_.get());
    }

    void cleanup() {
        texts_.reset();
        world_.reset();
    }

    void theMenusOfTextBoxesAreInTheUsersLanguage() {
        const QStringList expected{u"Rück"_s, u"Vor"_s, u"Aus"_s, u"Kopie"_s, u"Ein"_s, u"Weg"_s, u"Alles"_s};
        QLineEdit line;
        QCOMPARE(TextsOf(std::unique_ptr<QMenu>(line.createStandardContextMenu())), expected);
        QPlainTextEdit box;
        QCOMPARE(TextsOf(std::unique_ptr<QMenu>(box.createStandardContextMenu())), expected);
    }

    void keysHaveTheirNamesInTheUsersLanguage() {
        QCOMPARE(QKeySequence(u"Ins"_s).toString(QKeySequence::NativeText), u"Einfg"_s);
        QCOMPARE(QKeySequence(u"Ctrl+Shift+Del"_s).toString(QKeySequence::NativeText), u"Strg+Umschalt+Entf"_s);
        QCOMPARE(QKeySequence(u"Ins"_s).toString(), u"Ins"_s);
    }

    void allOtherTextsAreLeftAlone() {
        QCOMPARE(QCoreApplication::translate("frmAbout", "Delete"), u"Delete"_s);
        QCOMPARE(QCoreApplication::translate("QLineEdit", "Other"), u"Other"_s);
    }
};

WINDOW_TEST(tst_controltexts)
#include "tst_controltexts.moc"
