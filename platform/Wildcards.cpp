// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/Wildcards.h"

namespace {

bool SameLetter(QChar first, QChar second) {
    return first == second || first.toCaseFolded() == second.toCaseFolded();
}

} // namespace

bool FitsPattern(QStringView name, QStringView pattern) {
    if (pattern.isEmpty() || pattern == u"*.*")
        return true;
    qsizetype at = 0;
    qsizetype inPattern = 0;
    qsizetype star = -1;
    qsizetype resume = 0;
    while (at < name.size()) {
        if (inPattern < pattern.size() && pattern[inPattern] == u'*') {
            star = inPattern++;
            resume = at;
        } else if (inPattern < pattern.size() &&
                   (pattern[inPattern] == u'?' || SameLetter(pattern[inPattern], name[at]))) {
            ++inPattern;
            ++at;
        } else if (star >= 0) {
            inPattern = star + 1;
            at = ++resume;
        } else {
            return false;
        }
    }
    while (inPattern < pattern.size() && pattern[inPattern] == u'*')
        ++inPattern;
    return inPattern == pattern.size();
}

bool IsPattern(QStringView text) {
    return text.contains(u'*') || text.contains(u'?');
}
