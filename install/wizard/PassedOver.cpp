// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "install/wizard/PassedOver.h"

#include "install/wizard/EntryNames.h"

using namespace Qt::StringLiterals;

namespace {

/// What a list of an archive shows of a name at most.
constexpr qsizetype LongestListed = 255;

bool IsOfMac(const QString& entry, const QString& name) {
    return entry.startsWith(u"__MACOSX/"_s) || entry.contains(u"/__MACOSX/"_s) || name == u".ds_store" ||
           name.startsWith(u"._"_s);
}

bool IsOfWindows(const QString& name) {
    return name == u"thumbs.db" || name == u"desktop.ini" || name == u"ehthumbs.db";
}

bool EndsInOne(const QString& name, const QStringList& endings) {
    return endings.contains(name.sliced(name.lastIndexOf(u'.') + 1));
}

bool IsArchive(const QString& name) {
    static const QStringList endings{u"zip"_s, u"rar"_s, u"7z"_s, u"ace"_s, u"gz"_s, u"tar"_s, u"cab"_s};
    return EndsInOne(name, endings);
}

bool IsProgram(const QString& name) {
    static const QStringList endings{u"exe"_s, u"msi"_s, u"bat"_s, u"cmd"_s, u"com"_s, u"scr"_s, u"dll"_s};
    return EndsInOne(name, endings);
}

bool IsToRead(const QString& name) {
    static const QStringList endings{u"txt"_s, u"doc"_s,  u"docx"_s, u"rtf"_s, u"pdf"_s, u"htm"_s,
                                     u"md"_s,  u"html"_s, u"nfo"_s,  u"diz"_s, u"url"_s, u"odt"_s};
    return EndsInOne(name, endings) || name.startsWith(u"readme"_s) || name.startsWith(u"liesmich"_s) ||
           name.startsWith(u"lisezmoi"_s);
}

} // namespace

std::vector<PassedOverEntry> PassedOver::Entries() const {
    std::vector<PassedOverEntry> entries;
    for (const QString& entry : others_) {
        if (entry.endsWith(u'/'))
            continue;
        if (const std::optional<QString> reason = ReasonOf(entry))
            entries.push_back({.Name = entry, .Reason = *reason});
    }
    return entries;
}

/// Nothing for a file that goes with a map.
std::optional<QString> PassedOver::ReasonOf(const QString& entry) const {
    const QString name = EntryNames::LastPart(entry).toLower();
    const QString folder = EntryNames::Folder(entry);
    if (mapFolders_.contains(folder))
        return std::nullopt;
    if (IsOfMac(entry, name))
        return u"PassedOverMac"_s;
    if (IsOfWindows(name))
        return u"PassedOverWindows"_s;
    if (entry.size() >= LongestListed)
        return u"PassedOverLongName"_s;
    if (modInis_.contains(entry))
        return u"PassedOverModIni"_s;
    if (tooLarge_.contains(entry))
        return u"PassedOverTooLarge"_s;
    if (IsArchive(name))
        return u"PassedOverArchive"_s;
    if (IsBelowAMap(folder))
        return u"PassedOverBelow"_s;
    if (IsToRead(name))
        return u"PassedOverToRead"_s;
    return IsProgram(name) ? u"PassedOverProgram"_s : u"PassedOverUnknown"_s;
}

bool PassedOver::IsBelowAMap(QString folder) const {
    while (!folder.isEmpty()) {
        folder = EntryNames::Folder(folder.chopped(1));
        if (mapFolders_.contains(folder))
            return true;
    }
    return false;
}
