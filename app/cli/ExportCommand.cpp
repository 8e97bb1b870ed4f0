// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/cli/ExportCommand.h"

#include "app/cli/GameArgument.h"
#include "app/cli/ListRows.h"
#include "app/cli/Output.h"
#include "install/InstallSource.h"
#include "install/export/ExportDialogs.h"
#include "personal/lists/MapList.h"
#include "personal/lists/ModList.h"
#include "personal/lists/ShellMapList.h"
#include "personal/replay/Replay.h"
#include "platform/Console.h"
#include "platform/Files.h"
#include "platform/Paths.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

using Kind = Parameter::Kind;

[[noreturn]] void EndAsWrongUsage(const QString& reason) {
    constexpr int wrongUsage = 2;
    Report({ErrorNumber::InvalidCall, reason});
    EndWith(wrongUsage);
}

void CheckUsage(const Arguments& given) {
    if (!given.Has("--map") && !given.Has("--mod") && !given.Has("--replay") && !given.Has("--shellmap"))
        EndAsWrongUsage(u"nothing is chosen: --map, --mod, --replay or --shellmap"_s);
    if (given.Has("--zip") == given.Has("--folder"))
        EndAsWrongUsage(u"either --zip or --folder is needed"_s);
    for (const char* const option : {"--readme", "--utf8"})
        if (given.Has(option) && !given.Has("--zip"))
            EndAsWrongUsage(u"%1 goes with --zip only"_s.arg(QLatin1StringView(option)));
}

/// What the list hands to an export when these rows have a check mark.
void Take(GameList& list, const std::vector<int>& places, std::vector<ExportRecord>& records) {
    if (places.empty())
        return;
    for (const int place : places)
        list.Rows().SetChecked(place, true);
    list.BuildExportList();
    records.insert(records.end(), ExportRecords.begin(), ExportRecords.end());
}

void TakeNamed(GameList& list, qint32 game, const QStringList& names, std::vector<ExportRecord>& records) {
    list.List(game, false);
    std::vector<int> places;
    for (const QString& name : names)
        places.push_back(ListRows::PlaceOf(list, name));
    Take(list, places, records);
}

void TakeShellMaps(qint32 game, const QStringList& numbers, std::vector<ExportRecord>& records) {
    ShellMapList list;
    list.ListShellmaps(game);
    std::vector<int> places;
    for (const QString& number : numbers)
        places.push_back(ListRows::PlaceOfNumber(list, number.toInt()));
    Take(list, places, records);
}

/// The file name of a replay by its name, with the extension or without.
QString ReplayFile(const QStringList& files, const QString& name, const QString& extension) {
    const QString wanted = Paths::NameFromNative(name);
    for (const auto sensitivity : {Qt::CaseSensitive, Qt::CaseInsensitive})
        for (const QString& whole : {wanted + extension, wanted})
            for (const QString& file : files)
                if (file.compare(whole, sensitivity) == 0)
                    return file;
    Fail(name, u"the game has no replay of that name"_s);
}

/// By the files' names alone: one that is no true replay would end their listing.
void TakeReplays(GameIndex game, const QStringList& names, std::vector<ExportRecord>& records) {
    if (names.isEmpty())
        return;
    const QString folder = Game.at(static_cast<std::size_t>(game)).ReplayFolder();
    const QString extension = Replays::Extension(game);
    const QStringList files = folder.isEmpty() ? QStringList() : Files::ListFolder(folder + u'*' + extension);
    for (const QString& name : names) {
        const QString file = ReplayFile(files, name, extension);
        const ExportRecord record{.Path = folder + file, .Name = file, .Kind = FileKind::Replay};
        if (std::ranges::find(records, record) == records.end())
            records.push_back(record);
    }
}

std::vector<ExportRecord> RecordsOf(const Arguments& given) {
    const GameIndex game = GameArgument::Prepared(given, "--game");
    std::vector<ExportRecord> records;
    MapList maps;
    TakeNamed(maps, game, given.Texts("--map"), records);
    ModList mods;
    TakeNamed(mods, game, given.Texts("--mod"), records);
    TakeReplays(game, given.Texts("--replay"), records);
    TakeShellMaps(game, given.Texts("--shellmap"), records);
    return records;
}

QString ReasonOf(const ExportLine& line) {
    switch (line.Outcome) {
    case ExportOutcome::Done:
    case ExportOutcome::AlreadyThere:
        break;
    case ExportOutcome::NoPath:
        return u"nothing is named"_s;
    case ExportOutcome::Refused:
        return u"left out, as a folder's name it %1"_s.arg(line.Reason);
    case ExportOutcome::Empty:
        return u"left out, a ZIP takes no empty file"_s;
    case ExportOutcome::LeftOut:
        return u"left out with the file named before, which ended the search"_s;
    case ExportOutcome::NoDot:
        return u"left out, its name has no dot"_s;
    case ExportOutcome::NotPlain:
        return u"left out, a link that leads elsewhere, or no plain file"_s;
    case ExportOutcome::Subfolder:
        return u"left out, a folder inside a shell map"_s;
    case ExportOutcome::Gone:
        return u"left out, there is no such file"_s;
    case ExportOutcome::LettersLost:
        return u"letters that the code page lacks became '?'"_s;
    case ExportOutcome::Replaced:
        return u"exported, over another of the same name"_s;
    case ExportOutcome::NotWritten:
        return u"could not be written, so nothing was exported: %1"_s.arg(line.Reason);
    case ExportOutcome::Failed:
        return u"left out: %1"_s.arg(line.Reason);
    }
    return {};
}

ExportReport ToZip(const Arguments& given, const std::vector<ExportSource>& sources, ExportChoice choice) {
    choice.Utf8Names = given.Has("--utf8");
    if (given.Has("--readme"))
        choice.ReadMe = ExportDialogs::ReadMeOf(given.Path("--readme"));
    if (!choice.Utf8Names)
        for (const QString& name : ExportSources::NamesBeyondThePage(sources))
            Console::WriteError("a letter becomes '?'\t" + Paths::EncodeNative(ExportSources::Shown(name)) + '\n');
    return Exporting::ToZip(sources, given.Path("--zip"), choice);
}

void Export(const Arguments& given) {
    CheckUsage(given);
    const std::vector<ExportSource> sources = ExportSources::Of(RecordsOf(given));
    const ExportChoice choice{.ModRecords = given.Has("--with-ini")};
    const ExportReport report = given.Has("--zip") ? ToZip(given, sources, choice)
                                                   : Exporting::ToFolder(sources, given.Path("--folder"), choice);
    for (const ExportLine& line : report.Lines)
        if (!IsDone(line))
            Report({ErrorNumber::PathFileAccess, line.Item + u": "_s + ReasonOf(line)});
    if (report.HasFailures())
        EndWith(1);
}

} // namespace

std::vector<Command> ExportCommands() {
    return {{"export",
             "Take maps, mods, replays and shell maps out of a game, into a ZIP or as copies into a folder; what could "
             "not be taken is told, and the rest is done",
             {GameArgument::Word(Kind::Option, "--game"),
              {.What = Kind::List, .Name = "--map", .Description = "A map as maps list prints it", .TypeName = "NAME"},
              {.What = Kind::List, .Name = "--mod", .Description = "A mod as mods list prints it", .TypeName = "FILE"},
              {.What = Kind::List,
               .Name = "--replay",
               .Description = "A replay as replays list prints it",
               .TypeName = "FILE"},
              {.What = Kind::List,
               .Name = "--shellmap",
               .Description = "A shell map as shellmaps list prints it",
               .TypeName = "NUMBER",
               .Check = ListRows::NumberComplaint},
              {.What = Kind::Option,
               .Name = "--zip",
               .Description = "The ZIP to write, over what stands there",
               .TypeName = "OUT.zip"},
              {.What = Kind::Option,
               .Name = "--readme",
               .Description = "A text file to put into the ZIP as ReadMe.txt",
               .TypeName = "FILE"},
              {.What = Kind::Option,
               .Name = "--folder",
               .Description = "The folder to copy into, over what stands there",
               .TypeName = "DIR"},
              {.What = Kind::Flag,
               .Name = "--with-ini",
               .Description = "With each mod an INI file that holds its name and comments"},
              {.What = Kind::Flag,
               .Name = "--utf8",
               .Description = "Names that the code page lacks letters for in UTF-8, and not with '?' for them"}},
             Export,
             true}};
}
