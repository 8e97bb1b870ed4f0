// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "install/wizard/EntryNames.h"

#include <algorithm>

QString EntryNames::End(const QString& name, qsizetype count) {
    return name.right(count).toLower();
}

QString EntryNames::FileName(const QString& entry) {
    return entry.sliced(entry.lastIndexOf(u'/') + 1);
}

QString EntryNames::LastPart(const QString& name) {
    return name.sliced(std::max(name.lastIndexOf(u'/'), name.lastIndexOf(u'\\')) + 1);
}

QString EntryNames::Folder(const QString& entry) {
    return entry.chopped(LastPart(entry).size()).replace(u'\\', u'/');
}

QString EntryNames::Without(const QString& name, qsizetype count) {
    return name.chopped(std::min(count, name.size()));
}

AllEntries::AllEntries(const QStringList& names) {
    parts_.reserve(names.size());
    for (const QString& name : names) {
        parts_.insert(name);
        if (!name.contains(u'\\'))
            continue;
        for (const QString& part : name.split(u'\\'))
            parts_.insert(part);
    }
    // Only a name that holds a backslash itself can be found across the ends of others.
    const bool needsText = std::ranges::any_of(names, [](const QString& name) { return name.contains(u'\\'); });
    if (needsText)
        text_ = u'\\' + names.join(QStringView(u"\\\\")) + u'\\';
}

bool AllEntries::Has(const QString& name) const {
    if (parts_.contains(name))
        return true;
    return name.contains(u'\\') && text_.contains(u'\\' + name + u'\\');
}
