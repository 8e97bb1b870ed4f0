// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/text/FileFilter.h"

using namespace Qt::StringLiterals;

QStringList ToNameFilters(const QString& filter) {
    const QStringList parts = filter.split(u'|');
    QStringList filters;
    for (qsizetype at = 0; at + 1 < parts.size(); at += 2) {
        QString text = parts[at];
        // The toolkit reads the patterns out of the last parentheses: only ours may stand there.
        if (const qsizetype parenthesis = text.indexOf(u'('); parenthesis >= 0)
            text.truncate(parenthesis);
        QStringList patterns = parts[at + 1].split(u';', Qt::SkipEmptyParts);
        patterns.replaceInStrings(u"*.*"_s, u"*"_s);
        for (QString& pattern : patterns)
            pattern = pattern.trimmed();
        if (!patterns.isEmpty())
            filters.append(u"%1 (%2)"_s.arg(text.trimmed(), patterns.join(u' ')));
    }
    return filters;
}
