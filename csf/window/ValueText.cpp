// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "csf/window/ValueText.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {
constexpr QChar returnSign = u'\u240D';

/// Whether a line is longer than words can be sought in: the time for a line without blanks grows with its square.
bool HasEndlessLine(const QString& text) {
    constexpr qsizetype longest = 10'000;
    return std::ranges::any_of(QStringView(text).split(u'\n'), [](QStringView line) { return line.size() > longest; });
}

} // namespace

void ShowValue(QPlainTextEdit& box, const QString& value) {
    QString shown = value;
    shown.replace(u"\r\n"_s, u"\n"_s).replace(u'\r', returnSign);
    box.setWordWrapMode(HasEndlessLine(shown) ? QTextOption::WrapAnywhere : QTextOption::WrapAtWordBoundaryOrAnywhere);
    box.setPlainText(shown);
}

QString ShownValue(const QPlainTextEdit& box) {
    // The raw text: the plain one has ordinary blanks in place of no-break ones.
    QString text = box.document()->toRawText();
    text.replace(returnSign, u'\r').replace(QChar::ParagraphSeparator, u'\n').replace(QChar::LineSeparator, u'\n');
    return text.replace(u"\n"_s, u"\r\n"_s);
}
