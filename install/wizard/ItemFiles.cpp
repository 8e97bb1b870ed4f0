// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "install/wizard/ItemFiles.h"

#include "core/NameOrder.h"
#include "install/wizard/EntryNames.h"
#include "install/zip/ccZip.h"
#include "platform/Files.h"
#include "platform/FolderBounds.h"
#include "platform/FolderEntries.h"
#include "platform/Paths.h"

#include <QStringList>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype ExtensionWithDot = 4;

SourceFile Loose(const QString& path) {
    const qint64 size = Files::FileLength(path);
    return {.Name = Paths::LastPart(path), .From = path, .Size = size, .Packed = size};
}

/// All files beside a map travel with it. This is meant.
std::vector<SourceFile> AllIn(const QString& folder) {
    QHash<QString, FolderEntry> entries;
    QStringList names;
    for (const FolderEntry& entry : FolderEntries(folder)) {
        if (entry.IsFolder)
            continue;
        names.append(entry.Name);
        entries.insert(entry.Name, entry);
    }
    NameOrder::Sort(names);
    FolderBounds bounds(folder);
    std::vector<SourceFile> files;
    for (const QString& name : names) {
        const FolderEntry& entry = entries[name];
        SourceFile file{.Name = name, .From = folder + name, .Size = entry.Size, .Packed = entry.Size};
        if (!entry.IsPlain)
            file.Refusal = u"is no plain file"_s;
        else if (bounds.LeadsOut(file.From))
            file.Refusal = u"is a link that leads out of its folder"_s;
        files.push_back(file);
    }
    return files;
}

std::vector<SourceFile> LooseFiles(const InstallRecord& record) {
    const QString& path = record.EntryPath;
    if (record.Kind == FileKind::Map || record.Kind == FileKind::ShellMap)
        return AllIn(Paths::Folder(path));
    std::vector<SourceFile> files{Loose(path)};
    const QString ini = EntryNames::Without(path, ExtensionWithDot) + u".ini"_s;
    if (record.Kind == FileKind::Mod && Files::FileExists(ini))
        files.push_back(Loose(ini));
    return files;
}

} // namespace

std::vector<SourceFile> ItemFiles::Of(const InstallRecord& record) {
    if (zip_ == nullptr)
        return LooseFiles(record);
    std::vector<SourceFile> files;
    if (record.Kind == FileKind::Map || record.Kind == FileKind::ShellMap) {
        if (!isRead_)
            ReadArchive();
        for (const qint32 index : folders_.value(EntryNames::Folder(record.EntryPath)))
            files.push_back(Entry(index));
    } else {
        files.push_back(Entry(zip_->Find(record.EntryPath)));
        files.back().From = record.EntryPath;
        files.back().Name = EntryNames::LastPart(record.EntryPath);
    }
    return files;
}

void ItemFiles::ReadArchive() {
    isRead_ = true;
    for (qint32 index = 1; index <= zip_->Count(); ++index) {
        const QString name = zip_->GetFile(index);
        if (!EntryNames::LastPart(name).isEmpty())
            folders_[EntryNames::Folder(name)].push_back(index);
    }
}

SourceFile ItemFiles::Entry(qint32 index) const {
    const QString name = zip_->GetFile(index);
    return {.Name = EntryNames::LastPart(name),
            .From = name,
            .Size = zip_->Size(index),
            .Packed = zip_->Packed(index),
            .IsEntry = true,
            .Crc = zip_->Crc(index)};
}
