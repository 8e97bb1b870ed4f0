// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "csf/window/ValueText.h"

#include "core/LostLetters.h"

#include <algorithm>
#include <array>
#include <utility>

using namespace Qt::StringLiterals;

namespace {
constexpr QChar returnSign = u'\u240D';

/// Letters that the box or this code take for something else, and what no text holds in their place.
constexpr std::array<std::pair<QChar, QChar>, 5> standIns{{{returnSign, u'\uFDD2'},
                                                           {QChar::LineSeparator, u'\uFDD3'},
                                                           {QChar::ParagraphSeparator, u'\uFDD4'},
                                                           {u'\uFDD0', u'\uFDD5'},
                                                           {u'\uFDD1', u'\uFDD6'}}};

/// Whether a character of the box is one of the value too.
bool IsText(QChar character) {
    return character != returnSign && character != QChar::ParagraphSeparator && character != QChar::LineSeparator;
}

/// Whether a line is longer than words can be sought in: the time for a line without blanks grows with its square.
bool HasEndlessLine(const QString& text) {
    constexpr qsizetype longest = 10'000;
    return std::ranges::any_of(QStringView(text).split(u'\n'), [](QStringView line) { return line.size() > longest; });
}

} // namespace

void ShowValue(QPlainTextEdit& box, const QString& value) {
    QString shown = value;
    for (const auto& [letter, standIn] : standIns)
        shown.replace(letter, standIn);
    shown.replace(u"\r\n"_s, u"\n"_s).replace(u'\r', returnSign);
    box.setWordWrapMode(HasEndlessLine(shown) ? QTextOption::WrapAnywhere : QTextOption::WrapAtWordBoundaryOrAnywhere);
    box.setPlainText(shown);
}

void ShowAsStored(QPlainTextEdit& box) {
    const QString text = box.document()->toRawText();
    QTextCursor cursor(box.document());
    cursor.beginEditBlock();
    const auto isLost = [&](qsizetype at) {
        // Half of a letter of two units is a lost one, too.
        return text[at].isSurrogate() || (IsText(text[at]) && LostLetters::AsStored(text[at]) != text[at]);
    };
    for (qsizetype end = text.size(); end > 0; --end) {
        if (!isLost(end - 1))
            continue;
        qsizetype begin = end;
        while (begin > 0 && isLost(begin - 1))
            --begin;
        cursor.setPosition(static_cast<int>(begin));
        cursor.setPosition(static_cast<int>(end), QTextCursor::KeepAnchor);
        cursor.insertText(LostLetters::AsStored(text.sliced(begin, end - begin)));
        end = begin + 1;
    }
    cursor.endEditBlock();
    box.document()->clearUndoRedoStacks();
}

QString ShownValue(const QPlainTextEdit& box) {
    // The raw text: the plain one has ordinary blanks in place of no-break ones.
    QString text = box.document()->toRawText();
    text.replace(returnSign, u'\r').replace(QChar::ParagraphSeparator, u'\n').replace(QChar::LineSeparator, u'\n');
    for (const auto& [letter, standIn] : standIns)
        text.replace(standIn, letter);
    return text.replace(u"\n"_s, u"\r\n"_s);
}
