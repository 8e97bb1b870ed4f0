// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/cli/BigArchive.h"
#include "app/cli/BigCommands.h"
#include "app/cli/Output.h"
#include "big/format/ArchiveEdits.h"
#include "platform/AnsiCodec.h"
#include "platform/File.h"
#include "platform/Files.h"
#include "platform/Paths.h"
#include "platform/SaveLock.h"

#include <algorithm>
#include <tuple>

using namespace Qt::StringLiterals;

namespace {

using Kind = Parameter::Kind;

/// A file for a new entry; what can't be opened is refused here, by its name.
ArchiveEdits::Source SourceAt(const QString& path) {
    return {path, File::Open(path, File::Access::Read).Length()};
}

void Save(const Arguments& given) {
    const SaveLock lock(given.Path("TARGET"));
    Archive archive = ReadArchive(given.Path("ARCHIVE"));
    archive.Version = given.Number("--version").value_or(archive.Version);
    for (const QString& name : given.Texts("--delete"))
        ArchiveEdits::DeleteEntry(archive, EntryNamed(archive, name));
    for (const std::string& added : given.Raws("--add")) {
        const auto split = added.find('=');
        ArchiveEdits::Put(archive, ArgumentText(added.substr(0, split)),
                          SourceAt(ArgumentPath(added.substr(split + 1))));
    }
    SaveArchive(archive, given.Path("TARGET"), given);
}

/// The files of a folder as an archive's table, sorted by name; names that differ in case only are refused, and unless
/// they may be changed those with letters that archives lack.
std::vector<BigEntry> TableOf(const QString& folder, const QString& target, bool lossy) {
    std::vector<std::tuple<QString, QString, QString, qint64>> files; // folded name, name, path, length
    for (const Files::FoundFile& file : Files::ListFolderFilesStrict(folder, true)) {
        if (file.Path == target)
            continue;
        if (!file.IsPlain)
            Fail(Paths::ToNative(file.Path), u"no plain file"_s);
        QString name = file.Path.sliced(folder.size() + 1);
        if (!lossy && AnsiCodec::Decode(AnsiCodec::Encode(name)) != name)
            Fail(Paths::ToNative(file.Path),
                 u"a letter of its name would become '?' (--lossy takes it all the same)"_s);
        files.emplace_back(name.toCaseFolded(), name, file.Path, file.Size);
    }
    std::ranges::sort(files);
    std::vector<BigEntry> table;
    table.reserve(files.size());
    for (std::size_t i = 0; i < files.size(); ++i) {
        const auto& [folded, name, path, length] = files[i];
        if (i > 0 && folded == std::get<0>(files[i - 1]))
            Fail(Paths::ToNative(path), u"differs from another file only in case"_s);
        table.push_back({.Name = name, .IsNew = true, .SourcePath = path, .SourceLength = length});
    }
    return table;
}

void Create(const Arguments& given) {
    const QString folder = given.Path("FOLDER");
    const QString target = given.Path("TARGET");
    if (!Files::FolderExists(folder))
        Fail(Paths::ToNative(folder), u"no such folder"_s);
    SaveArchive({TableOf(folder, target, given.Has("--lossy")), given.Number("--version").value_or(0), {}}, target,
                given);
}

Parameter Version(bool required) {
    return {.What = Kind::Number,
            .Name = "--version",
            .Description = "0 and 1: Generals, Zero Hour; 2 and 3: The Battle for Middle-earth I and II; "
                           "1 and 3 hold translated text",
            .Required = required,
            .Least = 0,
            .Most = 3};
}

std::string ComplaintAboutAdded(const std::string& given) {
    const auto split = given.find('=');
    return split == std::string::npos || split == 0 ? "must be NAME=FILE" : "";
}

} // namespace

std::vector<Command> BigSavingCommands() {
    return {{"save",
             "Write an archive anew: deletes first, then adds",
             {{Kind::Place, "ARCHIVE"},
              {Kind::Place, "TARGET", "May be ARCHIVE itself"},
              Version(false),
              {.What = Kind::List,
               .Name = "--add",
               .Description = "NAME=FILE: add a file, or replace the entry of that name",
               .TypeName = "NAME=FILE",
               .Check = ComplaintAboutAdded},
              {Kind::List, "--delete", "Leave out the entry of that name", "NAME"},
              Exact()},
             Save},
            {"create",
             "Make an archive of a folder's files, sorted by name",
             {{Kind::Place, "TARGET"},
              Version(true),
              {Kind::Place, "FOLDER"},
              {Kind::Flag, "--lossy", "Take names with letters that become '?', too"},
              Exact()},
             Create}};
}
