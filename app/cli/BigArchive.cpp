// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/cli/BigArchive.h"

#include "app/cli/Output.h"
#include "core/SettingKeys.h"
#include "core/Settings.h"
#include "platform/Console.h"
#include "platform/File.h"
#include "platform/Paths.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// Raises for what the format can't hold, or what would not be read again.
void CheckSavable(const Archive& archive, const QString& target, bool exact) {
    const auto kept = std::ranges::count(archive.Entries, false, &BigEntry::Deleted);
    if (Archives::IsBlank(archive) || kept == 0)
        Fail(Paths::ToNative(target), u"no entry would be left"_s);
    if (archive.Entries.size() < 2 && !exact)
        Fail(Paths::ToNative(target), u"an archive of fewer than two entries can't be saved without --exact"_s);
}

/// A file that the system could not read may well be an archive.
bool IsOfTheSystem(const RuntimeError& error) {
    const int number = error.Number();
    return number == ErrorNumber::DeviceError || number == ErrorNumber::PermissionDenied;
}

void FailAsGone(const BigEntry& entry) {
    Fail(Paths::ToNative(entry.SourcePath), u"no such file"_s);
}

void TellShift(const QString& target, const OffsetShift::Shift& shift) {
    const QString text =
        u"brindock-cli: %1: the data of %2 entries do not lie where the directory says, the first by %3 "
        u"bytes; --exact saves without\n"_s;
    Console::WriteError(Paths::EncodeNative(text.arg(target).arg(shift.Count).arg(shift.First)));
}

} // namespace

Archive ReadArchive(const QString& path) {
    const File file = File::Open(path, File::Access::Read); // what can't be opened tells why
    try {
        Archive archive = Archives::Read(file);
        archive.FileName = path;
        archive.Stood = file.State();
        return archive;
    } catch (const RuntimeError& error) {
        if (IsOfTheSystem(error))
            throw;
        FailAsNoArchive(path);
    }
}

void FailAsNoArchive(const QString& path) {
    Fail(Paths::ToNative(path), u"not a BIG archive, or one without entries"_s);
}

int EntryNamed(const Archive& archive, const QString& name) {
    const int index = name.isEmpty() ? -1 : Archives::Find(archive, name);
    if (index < 0)
        Fail(Paths::ToNative(archive.FileName), u"no entry is named %1"_s.arg(name));
    return index;
}

Parameter Exact() {
    return {Parameter::Kind::Flag, "--exact", "Put each entry's data where the directory says, as games trust it"};
}

void SaveArchive(const Archive& archive, const QString& target, const Arguments& given) {
    const bool exact = given.Has("--exact") || ReadSetting(SettingKeys::ExactOffsets) == "1"_L1;
    CheckSavable(archive, target, exact);
    const auto placement = exact ? Archives::Placement::Exact : Archives::Placement::Told;
    const OffsetShift::Shift shift = Archives::Write(archive, target, placement, {.Gone = FailAsGone});
    if (!shift.IsNone())
        TellShift(Paths::ToNative(target), shift);
}
