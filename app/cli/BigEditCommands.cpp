// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/cli/BigEditCommands.h"

#include "app/cli/BigCommands.h"
#include "app/cli/Output.h"
#include "big/format/mBIG.h"

#include <CLI/CLI.hpp>

#include <memory>
#include <string>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

struct Options {
    std::string Archive;
    std::string Old;
    std::string New;
    std::string Target;
    std::vector<std::string> Names;
};

bool IsFolder(const QString& name) {
    return name.endsWith(u'\\');
}

BigEntry& Entry(const QString& archive, const QString& name) {
    const int index = name.isEmpty() ? -1 : mBIG::FindEntry(name);
    if (index < 0)
        Fail(archive, u"no entry is named %1"_s.arg(name));
    return mBIG::BigEntries[static_cast<std::size_t>(index)];
}

/// The entries whose name holds the folder anywhere, compared exactly, as the editor takes them.
std::vector<BigEntry*> EntriesOf(const QString& archive, const QString& folder) {
    std::vector<BigEntry*> entries;
    for (BigEntry& entry : mBIG::BigEntries) {
        if (entry.Name.contains(folder))
            entries.push_back(&entry);
    }
    if (entries.empty())
        Fail(archive, u"no entry is in %1"_s.arg(folder));
    return entries;
}

void RenameFolder(const QString& archive, const QString& folder, const QString& text) {
    const QString parent = folder.first(folder.chopped(1).lastIndexOf(u'\\') + 1);
    for (BigEntry* entry : EntriesOf(archive, folder))
        entry->Name.replace(folder, parent + text + u'\\');
}

/// The text is replaced wherever it stands in the name, in a folder part too. This is meant.
void RenameFile(const QString& archive, const QString& name, const QString& text) {
    BigEntry& entry = Entry(archive, name);
    entry.Name.replace(entry.Name.sliced(entry.Name.lastIndexOf(u'\\') + 1), text);
}

void Save(const Options& options, const QString& archive) {
    WriteArchive(options.Target.empty() ? archive : ArgumentPath(options.Target));
}

void Rename(const Options& options) {
    const QString archive = ArgumentPath(options.Archive);
    const QString old = ArgumentText(options.Old);
    const QString text = ArgumentText(options.New);
    ReadArchive(archive);
    if (text.isEmpty() || text.contains(u'\\'))
        Fail(archive, u"%1 is no last part of a name"_s.arg(text));
    if (IsFolder(old))
        RenameFolder(archive, old, text);
    else
        RenameFile(archive, old, text);
    Save(options, archive);
}

void Delete(const Options& options) {
    const QString archive = ArgumentPath(options.Archive);
    ReadArchive(archive);
    for (const std::string& given : options.Names) {
        const QString name = ArgumentText(given);
        if (!IsFolder(name)) {
            Entry(archive, name).Deleted = true;
            continue;
        }
        for (BigEntry* entry : EntriesOf(archive, name))
            entry->Deleted = true;
    }
    Save(options, archive);
}

CLI::App* AddCommand(CLI::App* big, const std::string& name, const std::string& description,
                     const std::shared_ptr<Options>& options) {
    CLI::App* command = big->add_subcommand(name, description);
    command->add_option("ARCHIVE", options->Archive)->required();
    command->add_option("--target", options->Target, "Write this archive and leave ARCHIVE as it is")
        ->type_name("FILE");
    return command;
}

} // namespace

void AddBigEditCommands(CLI::App& commands) {
    CLI::App* big = commands.get_subcommand("big");
    const auto options = std::make_shared<Options>();
    CLI::App* rename = AddCommand(big, "rename", "Give a file or a folder another name, in its place", options);
    rename->add_option("OLD", options->Old, "An entry's name, or a folder's as stored, with a backslash at its end")
        ->required();
    rename->add_option("NEW", options->New, "The new last part of the name")->required();
    rename->callback([options] { Rename(*options); });
    CLI::App* remove = AddCommand(big, "delete", "Leave out files and folders", options);
    remove->add_option("NAME", options->Names, "Entries' names, or folders' as stored, with a backslash at the end")
        ->required();
    remove->callback([options] { Delete(*options); });
}
