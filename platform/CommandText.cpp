// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/CommandText.h"

namespace {

bool IsBlank(QChar character) {
    return character == u' ' || character == u'\t';
}

QString WithoutLeadingBlanks(const QString& text) {
    qsizetype at = 0;
    while (at < text.size() && IsBlank(text[at]))
        ++at;
    return text.sliced(at);
}

/// Reads one argument from `at` on and moves behind it.
QString ReadArgument(const QString& text, qsizetype& at) {
    QString argument;
    bool quoted = false;
    for (; at < text.size() && (quoted || !IsBlank(text[at])); ++at) {
        qsizetype backslashes = 0;
        for (; at < text.size() && text[at] == u'\\'; ++at)
            ++backslashes;
        const bool beforeQuote = at < text.size() && text[at] == u'"';
        argument += QString(beforeQuote ? backslashes / 2 : backslashes, u'\\');
        if (at == text.size() || (!quoted && IsBlank(text[at])))
            break;
        if (!beforeQuote || backslashes % 2 != 0) {
            argument += text[at];
        } else if (quoted && at + 1 < text.size() && text[at + 1] == u'"') {
            argument += text[++at];
        } else {
            quoted = !quoted;
        }
    }
    return argument;
}

} // namespace

CommandText::Parts CommandText::Split(const QString& command) {
    if (command.startsWith(u'"')) {
        const qsizetype close = command.indexOf(u'"', 1);
        const qsizetype end = close < 0 ? command.size() : close;
        return {command.sliced(1, end - 1), WithoutLeadingBlanks(command.sliced(qMin(end + 1, command.size())))};
    }
    qsizetype end = 0;
    while (end < command.size() && !IsBlank(command[end]))
        ++end;
    return {command.first(end), WithoutLeadingBlanks(command.sliced(end))};
}

QStringList CommandText::Arguments(const QString& text) {
    QStringList arguments;
    for (qsizetype at = 0; at < text.size();) {
        if (IsBlank(text[at]))
            ++at;
        else
            arguments << ReadArgument(text, at);
    }
    return arguments;
}
