// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "personal/lists/ReplayList.h"

#include "core/FileMoves.h"
#include "core/FolderGateway.h"
#include "core/NameOrder.h"
#include "core/mTraduction.h"
#include "personal/lists/ExportRecords.h"
#include "personal/replay/Replay.h"
#include "platform/FileNumbers.h"
#include "platform/Files.h"
#include "platform/ListedFolder.h"
#include "platform/NumberedFiles.h"
#include "platform/Paths.h"
#include "platform/RuntimeError.h"

#include <QStringBuilder>

#include <array>
#include <optional>

using namespace Qt::StringLiterals;
using mTraduction::GetText;

namespace {

constexpr qint32 ReplayKind = 2;

std::vector<RowColumn> Columns() {
    return {{.Caption = GetText(u"FileName"_s), .Fraction = 1 / 2.4},
            {.Caption = GetText(u"Date"_s), .Fraction = 1 / 4.0},
            {.Caption = GetText(u"Version"_s), .Fraction = 1 / 8.0},
            {.Caption = GetText(u"Players"_s), .Sort = SortKind::Number, .Fraction = 1 / 8.0},
            {.Caption = GetText(u"Map"_s)}};
}

QStringList ReplayNames(const ListedFolder& folder) {
    QStringList names;
    Ignoring([&] { names = folder.Names(false); });
    names.removeIf([](const QString& name) { return !Replays::IsFileName(name); });
    NameOrder::Sort(names);
    return names;
}

/// Opens a replay under the replays' number.
void OpenReplay(const ListedFolder& folder, const QString& name) {
    if (NumberedFiles::IsOpen(FileNumbers::Replay)) {
        const QString holder = NumberedFiles::Of(FileNumbers::Replay).Name();
        throw RuntimeError(ErrorNumber::FileAlreadyOpen,
                           u"%1: can't be opened while %2 is, which is no whole replay and was left open"_s.arg(
                               folder.NativePath(name), holder));
    }
    NumberedFiles::Open(FileNumbers::Replay, folder, name);
}

/// Runs a step on what a replay holds; what it raises names the file, so that its owner knows which one to take away.
template <typename Step>
void Naming(const File& file, Step&& step) {
    try {
        std::forward<Step>(step)();
    } catch (const RuntimeError& error) {
        throw RuntimeError(error.Number(), file.Name() + u": "_s + error.Description());
    }
}

void RequirePlainName(const QString& fileName) {
    QString refusal = FolderGateway::RefusalOf(fileName);
    if (fileName.contains(u'\\') || fileName.contains(u'/'))
        refusal = u"a name can't lead into another folder"_s;
    if (!refusal.isEmpty())
        throw RuntimeError(ErrorNumber::InvalidCall, fileName + u": "_s + refusal);
}

} // namespace

/// What the reading of many files shares.
struct ReplayList::Reading {
    explicit Reading(const QString& folder) : Files(folder), Names(ReplayNames(Files)) {}

    /// One text for all rows with that number.
    const QString& NumberText(int number) {
        QString& text = Numbers.at(static_cast<std::size_t>(number));
        if (text.isEmpty())
            text = QString::number(number);
        return text;
    }

    ListedFolder Files;
    QStringList Names;
    Replays::Dates Dates;
    QByteArray Header;
    std::array<QString, Replays::CountedSlots + 1> Numbers;
};

ReplayList::ReplayList() : GameList(Columns(), RowList::Edits::Yes) {}

qint16 ReplayList::ListReplays(qint32& game, bool countOnly) {
    if (!countOnly) {
        Begin(game);
        SetFolder(EntryOf(game).ReplayFolder());
    }
    const QString folder = EntryOf(game).ReplayFolder();
    std::optional<Reading> reading;
    Ignoring([&] { reading.emplace(folder); }); // a folder that is not there has no replays
    if (reading && !countOnly)
        Rows().Reserve(static_cast<int>(reading->Names.size()));
    qint16 count = 0;
    for (const QString& name : reading ? reading->Names : QStringList()) {
        if (!countOnly)
            AddReplay(name, *reading);
        // Names count, also those of files with a wrong mark. This is meant.
        Increment(count);
    }
    return count;
}

void ReplayList::AddReplay(const QString& name, Reading& reading) {
    OpenReplay(reading.Files, name);
    const File& file = NumberedFiles::Of(FileNumbers::Replay);
    reading.Header.resize(Replays::HeaderLength);
    reading.Header.resize(file.ReadInto(0, reading.Header.data(), Replays::HeaderLength));
    // The file stays open, and the next true replay's open fails. This is meant.
    if (!Replays::HasMark(reading.Header))
        return;
    Naming(file, [&] {
        // Each step fills in what it has found before the next one can fail. Texts that stay take no more memory than
        // they need, as filling fresh memory is what thousands of rows cost most.
        const int place = Rows().Add({.Text = Replays::NameOf(name), .Key = Folder() % QStringView(name)});
        Replay replay;
        Replays::ReadMatch(reading.Header, replay);
        Rows().SetSubItem(place, Date, reading.Dates.Of(file.Modified()));
        Replays::ReadVersion(reading.Header, replay);
        Rows().SetSubItem(place, Version, replay.Version);
        Rows().SetSubItem(place, Players, reading.NumberText(replay.Players));
        Rows().SetSubItem(place, Map, replay.Map);
        Rows().SetTag(place, QString(replay.Slots % u';'));
    });
    NumberedFiles::Close(FileNumbers::Replay);
}

void ReplayList::DeleteReplay(bool& done) {
    const QString path = SelectedRow().Key;
    Ignoring([&] { Files::DeleteForced(path); });
    FileMoves::Deleted(path);
    done = !Files::FileExists(path);
}

void ReplayList::Rename(int place, const QString& text) {
    const QString old = Rows().Row(place).Text;
    if (text == old)
        return;
    Rows().SetText(place, text);
    // The game decides the extension, whatever the file's own is. This is meant.
    const QString extension = Replays::Extension(Listed());
    RequirePlainName(text.isEmpty() ? text : text + extension);
    const QString from = Folder() + old + extension;
    const QString to = Folder() + text + extension;
    // Another name of the same file, such as a link to it, is no free name either.
    if (from.compare(to, Qt::CaseInsensitive) != 0 && Files::SameFile(from, to))
        throw RuntimeError(ErrorNumber::FileAlreadyExists, Paths::ToNative(to) + u": exists already"_s);
    Files::Rename(from, to);
    FileMoves::Moved(from, to);
    Rows().SetKey(place, to);
}

void ReplayList::LoadPlayerList(std::vector<PlayerNode>& tree) const {
    if (Selected() < 0 || Selected() >= Rows().Count())
        return;
    if (const QString& tag = Rows().Row(Selected()).Tag; !tag.isEmpty())
        tree = ReplayPlayers::Tree(tag, Listed());
}

void ReplayList::BuildExportList() {
    ExportRecords = {};
    for (const int place : Rows().Checked()) {
        const ListRow& row = Rows().Row(place);
        ExportRecords.push_back({row.Key, row.Text + Replays::Extension(Listed()), ReplayKind});
    }
    if (!ExportRecords.empty())
        return;
    // The list is made with an empty record, whose taking away fails. This is meant.
    ExportRecords.emplace_back();
    throw RuntimeError(ErrorNumber::Subscript, u"no replay is checked"_s);
}
