// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/cli/BigArchive.h"
#include "app/cli/BigCommands.h"
#include "app/cli/Output.h"
#include "big/format/ArchiveEdits.h"
#include "platform/Paths.h"
#include "platform/SaveLock.h"

using namespace Qt::StringLiterals;

namespace {

using Kind = Parameter::Kind;

bool IsFolder(const QString& name) {
    return name.endsWith(u'\\');
}

QString TargetOf(const Arguments& given) {
    return given.Path(given.Has("--target") ? "--target" : "ARCHIVE");
}

/// Fails when an edit of a folder found no entry.
void CheckFound(int count, const Archive& archive, const QString& folder) {
    if (count == 0)
        Fail(Paths::ToNative(archive.FileName), u"no entry is in %1"_s.arg(folder));
}

void Rename(const Arguments& given) {
    const QString old = given.Text("OLD");
    const QString text = given.Text("NEW");
    const SaveLock lock(TargetOf(given));
    Archive archive = ReadArchive(given.Path("ARCHIVE"));
    if (text.isEmpty() || text.contains(u'\\'))
        Fail(Paths::ToNative(archive.FileName), u"%1 is no last part of a name"_s.arg(text));
    if (IsFolder(old)) {
        CheckFound(ArchiveEdits::RenameFolder(archive, old, ArchiveEdits::RenamedKey(old, text)), archive, old);
    } else {
        const int index = EntryNamed(archive, old);
        const QString name = archive.Entries[static_cast<std::size_t>(index)].Name;
        ArchiveEdits::RenameEntry(archive, index, name.sliced(name.lastIndexOf(u'\\') + 1), text);
    }
    SaveArchive(archive, TargetOf(given), given);
}

void Delete(const Arguments& given) {
    const SaveLock lock(TargetOf(given));
    Archive archive = ReadArchive(given.Path("ARCHIVE"));
    for (const QString& name : given.Texts("NAME")) {
        if (IsFolder(name))
            CheckFound(ArchiveEdits::DeleteFolder(archive, name), archive, name);
        else
            ArchiveEdits::DeleteEntry(archive, EntryNamed(archive, name));
    }
    SaveArchive(archive, TargetOf(given), given);
}

Parameter Target() {
    return {Kind::Option, "--target", "Write this archive and leave ARCHIVE as it is", "FILE"};
}

} // namespace

std::vector<Command> BigEditCommands() {
    return {{"rename",
             "Give a file or a folder another name, in its place",
             {{Kind::Place, "ARCHIVE"},
              {Kind::Place, "OLD", "An entry's name, or a folder's as stored, with a backslash at its end"},
              {Kind::Place, "NEW", "The new last part of the name"},
              Target(),
              Exact()},
             Rename},
            {"delete",
             "Leave out files and folders",
             {{Kind::Place, "ARCHIVE"},
              {.What = Kind::Places,
               .Name = "NAME",
               .Description = "Entries' names, or folders' as stored, with a backslash at the end",
               .Required = true},
              Target(),
              Exact()},
             Delete}};
}
