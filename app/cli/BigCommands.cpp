// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/cli/BigCommands.h"

#include "app/cli/Output.h"
#include "big/document/ArchiveExtractor.h"
#include "big/format/mBIG.h"
#include "platform/File.h"
#include "platform/Files.h"
#include "platform/NumberedFiles.h"
#include "platform/Paths.h"
#include "platform/RuntimeError.h"
#include "platform/Wildcards.h"

#include <CLI/CLI.hpp>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <array>
#include <charconv>
#include <memory>
#include <string>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

struct Options {
    std::string Archive;
    std::string Target;
    std::string Folder;
    std::vector<std::string> Names;
    std::vector<std::string> Added;
    std::vector<std::string> Deleted;
    int Version = 0;
    bool Flat = false;
    bool Json = false;
};

using SharedOptions = std::shared_ptr<Options>;

/// Raises for a file that can't be opened, and tells why.
void CheckReadable(const QString& path) {
    constexpr int number = 7;
    NumberedFiles::Open(number, path, NumberedFiles::Access::Read);
    NumberedFiles::Close(number);
}

[[noreturn]] void FailAsNoArchive(const QString& path) {
    Fail(path, u"not a BIG archive, or one without entries"_s);
}

void ListAsJson(const Options& options) {
    ReadArchive(ArgumentPath(options.Archive));
    QJsonArray entries;
    for (const BigEntry& entry : mBIG::BigEntries)
        entries.append(QJsonObject{{u"index"_s, entries.size()},
                                   {u"offset"_s, entry.Offset},
                                   {u"size"_s, entry.Size},
                                   {u"name"_s, entry.Name}});
    const QJsonObject archive{{u"version"_s, mBIG::BigVersion}, {u"entries"_s, entries}};
    Print(QString::fromUtf8(QJsonDocument(archive).toJson(QJsonDocument::Indented)).trimmed());
}

/// Prints each record as it is read: a table of them all would take longer to fill than the lines to print.
void ListAsLines(const Options& options) {
    int index = 0;
    bool shown = false;
    std::array<char, 48> numbers{};
    const auto print = [&](const BigEntry& entry, qint32 version) {
        shown = true;
        if (index == 0)
            Print(u"version %1"_s.arg(version));
        char* end = numbers.data();
        for (const qint32 number : {index++, entry.Offset, entry.Size}) {
            end = std::to_chars(end, numbers.data() + numbers.size(), number).ptr;
            *end++ = '\t';
        }
        Print(QByteArrayView(numbers.data(), end), entry.Name);
    };
    const QString archive = ArgumentPath(options.Archive);
    CheckReadable(archive);
    try {
        Archives::List(File::Open(archive, File::Access::Read), 0, print);
    } catch (const RuntimeError&) {
        if (shown)
            throw;
        FailAsNoArchive(archive);
    }
}

/// The entries that the names and patterns choose, in the archive's order; all of them without any.
std::vector<const BigEntry*> Chosen(const QString& archive, const std::vector<std::string>& names) {
    std::vector<bool> chosen(mBIG::BigEntries.size(), names.empty());
    for (const std::string& given : names) {
        const QString pattern = ArgumentText(given);
        bool found = false;
        for (std::size_t i = 0; i < chosen.size(); ++i) {
            if (FitsPattern(mBIG::BigEntries[i].Name, pattern))
                chosen[i] = found = true;
        }
        if (!found)
            Fail(archive, u"no entry is named %1"_s.arg(pattern));
    }
    std::vector<const BigEntry*> entries;
    for (std::size_t i = 0; i < chosen.size(); ++i) {
        if (chosen[i])
            entries.push_back(&mBIG::BigEntries[i]);
    }
    return entries;
}

QString LastPart(const QString& name) {
    return name.sliced(std::max(name.lastIndexOf(u'\\'), name.lastIndexOf(u'/')) + 1);
}

void Extract(const Options& options) {
    const QString archive = ArgumentPath(options.Archive);
    ReadArchive(archive);
    const auto entries = Chosen(archive, options.Names);
    ArchiveExtractor extractor(archive, ArgumentPath(options.Folder));
    QSet<QString> written;
    QString firstFailure;
    int failures = 0;
    for (const BigEntry* entry : entries) {
        const QString name = options.Flat ? LastPart(entry->Name) : entry->Name;
        try {
            if (options.Flat && written.contains(name.toCaseFolded()))
                throw RuntimeError(ErrorNumber::FileAlreadyExists, entry->Name + u": another entry has that name"_s);
            extractor.Extract(*entry, name);
            if (options.Flat)
                written.insert(name.toCaseFolded());
        } catch (const RuntimeError& error) {
            if (failures++ == 0)
                firstFailure = error.Description();
        }
    }
    if (failures == 1)
        throw RuntimeError(ErrorNumber::PathFileAccess, firstFailure);
    if (failures > 1)
        throw RuntimeError(ErrorNumber::PathFileAccess,
                           u"%1 (and %2 more not extracted)"_s.arg(firstFailure).arg(failures - 1));
}

void DeleteEntry(const QString& archive, const QString& name) {
    const int index = mBIG::FindEntry(name);
    if (index < 0)
        Fail(archive, u"no entry is named %1"_s.arg(name));
    mBIG::BigEntries[static_cast<std::size_t>(index)].Deleted = true;
}

/// As the editor adds a file: an entry of that name is replaced, in place and with the new case; else one is appended.
void AddEntry(const std::string& given) {
    const auto split = given.find('=');
    const QString name = ArgumentText(given.substr(0, split));
    const QString source = ArgumentPath(given.substr(split + 1));
    Files::FileLength(source); // a missing file is refused here, by its name
    BigEntry added{name, 0, 0, true, false, source};
    const int index = mBIG::FindEntry(name);
    if (index < 0)
        mBIG::BigEntries.push_back(std::move(added));
    else
        mBIG::BigEntries[static_cast<std::size_t>(index)] = std::move(added);
}

void SaveArchive(const Options& options, bool versionGiven) {
    const QString archive = ArgumentPath(options.Archive);
    ReadArchive(archive);
    if (versionGiven)
        mBIG::BigVersion = options.Version;
    for (const std::string& name : options.Deleted)
        DeleteEntry(archive, ArgumentText(name));
    for (const std::string& added : options.Added)
        AddEntry(added);
    WriteArchive(ArgumentPath(options.Target));
}

/// Fills a fresh table with the files of a folder, sorted by name; the first takes the blank record's place.
void TakeFolder(const QString& folder, const QString& target) {
    for (const Files::FoundFile& file : Files::ListFolderFiles(folder, true)) {
        if (file.Path != target)
            mBIG::BigEntries.push_back(
                {file.Path.sliced(folder.size() + 1), 0, static_cast<qint32>(file.Size), true, false, file.Path});
    }
    std::vector<std::pair<QString, BigEntry*>> order;
    order.reserve(mBIG::BigEntries.size());
    for (BigEntry& entry : mBIG::BigEntries)
        order.emplace_back(entry.Name.toCaseFolded(), &entry);
    std::ranges::sort(order, {}, [](const auto& item) { return std::tie(item.first, item.second->Name); });
    for (std::size_t i = 1; i < order.size(); ++i) {
        if (order[i].first == order[i - 1].first)
            Fail(order[i].second->SourcePath, u"differs from another file only in case"_s);
    }
    std::vector<BigEntry> sorted;
    sorted.reserve(order.size());
    for (const auto& item : order)
        sorted.push_back(std::move(*item.second));
    mBIG::BigEntries = std::move(sorted);
}

void Create(const Options& options) {
    const QString folder = ArgumentPath(options.Folder);
    const QString target = ArgumentPath(options.Target);
    if (!Files::FolderExists(folder))
        Fail(folder, u"no such folder"_s);
    mBIG::BigEntries.clear();
    TakeFolder(folder, target);
    mBIG::BigVersion = options.Version;
    mBIG::BigFileName = target;
    WriteArchive(target);
}

CLI::Option* AddVersion(CLI::App* command, const SharedOptions& options) {
    return command
        ->add_option("--version", options->Version,
                     "0 and 1: Generals, Zero Hour; 2 and 3: The Battle for Middle-earth I and II; "
                     "1 and 3 hold translated text")
        ->check(CLI::Range(0, 3));
}

void AddList(CLI::App* big, const SharedOptions& options) {
    CLI::App* list = big->add_subcommand("list", "Print the variant, then an entry a line: index, offset, size, name");
    list->add_option("ARCHIVE", options->Archive)->required();
    list->add_flag("--json", options->Json, "Print JSON");
    list->callback([options] { options->Json ? ListAsJson(*options) : ListAsLines(*options); });
}

void AddExtract(CLI::App* big, const SharedOptions& options) {
    CLI::App* extract = big->add_subcommand("extract", "Write entries to files below a folder, never outside it");
    extract->add_option("ARCHIVE", options->Archive)->required();
    extract->add_option("FOLDER", options->Folder)->required();
    extract->add_option("NAME", options->Names, "Names and patterns with * and ?; all entries without any");
    extract->add_flag("--flat", options->Flat, "Put all files into the folder itself");
    extract->callback([options] { Extract(*options); });
}

void AddSave(CLI::App* big, const SharedOptions& options) {
    CLI::App* save = big->add_subcommand("save", "Write an archive anew: deletes first, then adds");
    save->add_option("ARCHIVE", options->Archive)->required();
    save->add_option("TARGET", options->Target, "May be ARCHIVE itself")->required();
    const CLI::Option* version = AddVersion(save, options);
    save->add_option("--add", options->Added, "NAME=FILE: add a file, or replace the entry of that name")
        ->type_name("NAME=FILE")
        ->check([](const std::string& given) {
            const auto split = given.find('=');
            return split == std::string::npos || split == 0 ? std::string("must be NAME=FILE") : std::string();
        });
    save->add_option("--delete", options->Deleted, "Leave out the entry of that name")->type_name("NAME");
    save->callback([options, version] { SaveArchive(*options, version->count() > 0); });
}

void AddCreate(CLI::App* big, const SharedOptions& options) {
    CLI::App* create = big->add_subcommand("create", "Make an archive of a folder's files, sorted by name");
    create->add_option("TARGET", options->Target)->required();
    AddVersion(create, options)->required();
    create->add_option("FOLDER", options->Folder)->required();
    create->callback([options] { Create(*options); });
}

} // namespace

void ReadArchive(const QString& path) {
    CheckReadable(path);
    if (!mBIG::ReadBigFile(path))
        FailAsNoArchive(path);
    mBIG::BigFileName = path;
}

void WriteArchive(const QString& target) {
    if (mBIG::HighestIndex() == 0)
        Fail(target, u"an archive of fewer than two entries can't be saved"_s);
    if (std::ranges::all_of(mBIG::BigEntries, &BigEntry::Deleted))
        Fail(target, u"no entry would be left"_s);
    mBIG::Save(target);
}

void AddBigCommands(CLI::App& commands) {
    CLI::App* big = commands.add_subcommand("big", "BIG archives")->require_subcommand(1);
    const auto options = std::make_shared<Options>();
    AddList(big, options);
    AddExtract(big, options);
    AddSave(big, options);
    AddCreate(big, options);
}
