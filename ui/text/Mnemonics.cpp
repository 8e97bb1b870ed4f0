// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/text/Mnemonics.h"

#include <QMenu>
#include <QMenuBar>

namespace {

/// The place of the letter that an "&" in the text marks; -1 when there is none.
qsizetype MarkedLetter(const QString& text) {
    for (qsizetype place = text.indexOf(u'&'); place >= 0 && place + 1 < text.size();
         place = text.indexOf(u'&', place)) {
        if (text[place + 1] != u'&')
            return place + 1;
        place += 2;
    }
    return -1;
}

/// The place of the best letter that is left; -1 when none is.
qsizetype FreeLetter(const QString& text, const QString& taken) {
    constexpr char16_t plainEnd = 0x80;
    constexpr int beyondAscii = 2, inWord = 1, none = 4;
    qsizetype best = -1;
    int leastBad = none;
    for (qsizetype place = 0; place < text.size(); ++place) {
        if (!text[place].isLetterOrNumber() || taken.contains(text[place], Qt::CaseInsensitive))
            continue;
        const bool startsWord = place == 0 || text[place - 1].isSpace();
        const int bad = (text[place].unicode() < plainEnd ? 0 : beyondAscii) + (startsWord ? 0 : inWord);
        if (bad < leastBad) {
            leastBad = bad;
            best = place;
        }
    }
    return best;
}

void SpreadOver(const QList<QAction*>& actions) {
    QStringList texts;
    for (const QAction* action : actions)
        texts += action->text();
    texts = Mnemonics::Spread(texts);
    for (qsizetype index = 0; index < actions.size(); ++index)
        actions[index]->setText(texts[index]);
}

} // namespace

QStringList Mnemonics::Spread(const QStringList& texts) {
    QStringList spread = texts;
    QString taken;
    for (const QString& text : texts)
        if (const qsizetype letter = MarkedLetter(text); letter >= 0)
            taken += text[letter];
    for (QString& text : spread) {
        if (MarkedLetter(text) >= 0)
            continue;
        if (const qsizetype letter = FreeLetter(text, taken); letter >= 0) {
            taken += text[letter];
            text.insert(letter, u'&');
        }
    }
    return spread;
}

void Mnemonics::AddTo(QMenuBar& menuBar) {
    SpreadOver(menuBar.actions());
    for (const QAction* entry : menuBar.actions())
        if (const QMenu* menu = entry->menu())
            SpreadOver(menu->actions());
}

void Mnemonics::AddTo(const QMenu& menu) {
    SpreadOver(menu.actions());
}

void Mnemonics::AddTo(const QList<QWidget*>& controls) {
    QStringList texts;
    for (const QWidget* const control : controls)
        texts += control->property("text").toString();
    texts = Spread(texts);
    for (qsizetype index = 0; index < controls.size(); ++index)
        controls[index]->setProperty("text", texts[index]);
}
