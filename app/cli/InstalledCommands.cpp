// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/cli/InstalledCommands.h"

#include "app/cli/GameArgument.h"
#include "app/cli/ListRows.h"
#include "app/cli/Output.h"
#include "install/journal/InstallJournal.h"
#include "install/journal/Uninstall.h"
#include "platform/Paths.h"

#include <QJsonObject>

#include <algorithm>
#include <array>
#include <utility>

using namespace Qt::StringLiterals;
using Fate = PlannedRemoval::Fate;

namespace {

using Kind = Parameter::Kind;

constexpr int WrongUsage = 2;

QString StateText(const JournalEntry& entry) {
    switch (entry.How) {
    case JournalEntry::State::Running:
        return u"running"_s;
    case JournalEntry::State::BrokenOff:
        return u"broken off"_s;
    case JournalEntry::State::Ended:
        break;
    }
    return u"ended"_s;
}

QString TimeText(const JournalEntry& entry) {
    return entry.Time.toString(Qt::ISODate);
}

QString GameText(const JournalEntry& entry) {
    return SettingsPrefix(entry.Game).toLower();
}

QString SourceText(const JournalEntry& entry) {
    return Paths::NameToNative(entry.Source);
}

QString Shown(const QString& path) {
    return Paths::ToNativeAsGiven(path);
}

QJsonValue HashText(const QByteArray& hash) {
    return hash.isEmpty() ? QJsonValue() : QJsonValue(QString::fromLatin1(hash.toHex()));
}

QJsonObject Object(const JournalEntry& entry) {
    QJsonArray files;
    for (const JournalFile& file : entry.Files)
        files.append(QJsonObject{
            {u"path"_s, Shown(file.Path)},
            {u"hash"_s, HashText(file.Hash)},
            {u"replaced"_s, file.Replaced},
            {u"kept"_s, file.Kept.isEmpty() ? QJsonValue() : QJsonValue(Shown(InstallJournal::KeptPath(file.Kept)))}});
    return {{u"id"_s, entry.Id},
            {u"time"_s, TimeText(entry)},
            {u"game"_s, GameText(entry)},
            {u"source"_s, SourceText(entry)},
            {u"sourceHash"_s, HashText(entry.SourceHash)},
            {u"state"_s, StateText(entry)},
            {u"files"_s, files}};
}

void List(const Arguments& given) {
    const Journal journal = InstallJournal::Read();
    QJsonArray installs;
    for (const JournalEntry& entry : journal.Entries) {
        if (given.Has("--json"))
            installs.append(Object(entry));
        else
            PrintRow({QString::number(entry.Id), TimeText(entry), GameText(entry), StateText(entry),
                      QString::number(entry.Files.size()), SourceText(entry)});
    }
    if (given.Has("--json"))
        ListRows::Print(installs);
}

void PrintPaths(const QString& word, const QStringList& paths) {
    for (const QString& path : paths)
        PrintRow({word, Shown(path)});
}

void Print(const UninstallPlan& plan) {
    const std::array<std::pair<Fate, QString>, 6> words{{{Fate::Goes, u"goes"_s},
                                                         {Fate::ComesBack, u"comes back"_s},
                                                         {Fate::Changed, u"stays, changed"_s},
                                                         {Fate::Unknown, u"stays, unknown"_s},
                                                         {Fate::Superseded, u"stays, a later install's"_s},
                                                         {Fate::Gone, u"is gone"_s}}};
    for (const auto& [fate, word] : words)
        PrintPaths(word, plan.Paths(fate));
    PrintPaths(u"folder goes"_s, plan.Folders);
}

/// What is printed is the plan; what of it could not be done stands on standard error.
void UninstallOne(const Arguments& given) {
    if (given.Has("--yes") == given.Has("--plan")) {
        Report({ErrorNumber::InvalidCall, u"either --yes or --plan is needed"_s});
        EndWith(WrongUsage);
    }
    GameArgument::Prepare();
    const UninstallPlan plan = Uninstall::Plan(InstallJournal::Read(), given.Text("ID").toInt());
    Print(plan);
    if (given.Has("--plan"))
        return;
    const QStringList failures = Uninstall::Run(plan);
    Flush();
    for (const QString& failure : failures)
        Report({ErrorNumber::PathFileAccess, failure});
    if (!failures.isEmpty())
        EndWith(1);
}

void ForgetOne(const Arguments& given) {
    const int id = given.Text("ID").toInt();
    const Journal journal = InstallJournal::Read();
    if (const JournalEntry* const entry = journal.Find(id); entry != nullptr && !given.Has("--yes")) {
        const auto kept =
            std::ranges::count_if(entry->Files, [](const JournalFile& file) { return !file.Kept.isEmpty(); });
        if (kept > 0)
            Fail(given.Text("ID"),
                 u"%1 replaced files are kept for it and would be deleted; --yes does it"_s.arg(kept));
    }
    Uninstall::Forget(id);
}

Parameter Id() {
    const auto isNumber = [](const std::string& text) {
        constexpr std::size_t mostDigits = 9;
        const bool fits = !text.empty() && text.size() <= mostDigits &&
                          std::ranges::all_of(text, [](char letter) { return letter >= '0' && letter <= '9'; });
        return fits ? std::string() : text + " is no number of an install";
    };
    return {.What = Kind::Place,
            .Name = "ID",
            .Description = "An install's number as list prints it",
            .TypeName = "INT",
            .Check = isNumber};
}

} // namespace

std::vector<Command> InstalledCommands() {
    return {
        {"list",
         "Print what was installed, an install a line: number, time, game, state, count of files, source; separated "
         "by tabs",
         {ListRows::Json()},
         List},
        {"uninstall",
         "Delete what an install brought as far as it is unchanged, and put back what it replaced; prints what goes, "
         "comes back and stays",
         {Id(),
          {Kind::Flag, "--plan", "Only print what would be done"},
          {Kind::Flag, "--yes", "Nothing is deleted without it"}},
         UninstallOne,
         true},
        {"forget",
         "Take an install out of the list and leave its files",
         {Id(), {Kind::Flag, "--yes", "Also when replaced files are kept for it, which are deleted then"}},
         ForgetOne}};
}
