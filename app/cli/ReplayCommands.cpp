// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/cli/ReplayCommands.h"

#include "app/cli/GameArgument.h"
#include "app/cli/Output.h"
#include "personal/lists/ReplayList.h"
#include "personal/replay/Replay.h"
#include "platform/File.h"
#include "platform/Paths.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <array>
#include <optional>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

using Kind = Parameter::Kind;

/// A replay as it is printed.
struct Shown {
    QString Name; ///< as the system writes it
    QString Date;
    QString Version;
    QString Players;
    QString Map;
    QString Path; ///< native
};

QJsonObject Object(const Shown& row) {
    return {{u"name"_s, row.Name},       {u"date"_s, row.Date},
            {u"version"_s, row.Version}, {u"players"_s, row.Players.toInt()},
            {u"map"_s, row.Map},         {u"path"_s, row.Path}};
}

template <typename Json>
void PrintJson(const Json& json) {
    Print(QString::fromUtf8(QJsonDocument(json).toJson(QJsonDocument::Indented)).trimmed());
}

/// Where a file has ended the listing, its row is the last one and lacks the tag.
bool IsWhole(const ListRow& row) {
    return !row.Tag.isEmpty();
}

Shown ShownOf(const RowList& rows, int place) {
    const ListRow& row = rows.Row(place);
    return {.Name = Paths::NameToNative(row.Text),
            .Date = rows.Text(place, ReplayList::Date),
            .Version = rows.Text(place, ReplayList::Version),
            .Players = rows.Text(place, ReplayList::Players),
            .Map = rows.Text(place, ReplayList::Map),
            .Path = Paths::ToNativeAsGiven(row.Key)};
}

void PrintLines(const RowList& rows, int count) {
    Print(u"count %1"_s.arg(count));
    for (int place = 0; place < rows.Count(); ++place) {
        const ListRow& row = rows.Row(place);
        if (!IsWhole(row))
            continue;
        const QString name = Paths::NameToNative(row.Text);
        std::array<QStringView, ReplayList::Map + 1> columns{name};
        std::ranges::copy(row.SubItems, columns.begin() + 1);
        PrintRow(columns);
    }
}

void PrintObjects(const RowList& rows, int count) {
    QJsonArray replays;
    for (int place = 0; place < rows.Count(); ++place) {
        if (IsWhole(rows.Row(place)))
            replays.append(Object(ShownOf(rows, place)));
    }
    PrintJson(QJsonObject{{u"count"_s, count}, {u"replays"_s, replays}});
}

void List(const Arguments& given) {
    qint32 game = GameArgument::Prepared(given);
    ReplayList list;
    int count = 0;
    std::optional<RuntimeError> failure;
    try {
        count = list.ListReplays(game);
    } catch (const RuntimeError& error) {
        failure = error;
        count = list.Rows().Count(); // where there are too many to be counted
        Ignoring([&] { count = ReplayList().ListReplays(game, true); });
    }
    if (given.Has("--json"))
        PrintObjects(list.Rows(), count);
    else
        PrintLines(list.Rows(), count);
    Flush();
    // All is done by then; taking thousands of rows apart would only cost time.
    EndWith(failure ? Report(*failure) : 0);
}

/// The children of a node, or the branches for an empty key.
QJsonArray Nodes(const std::vector<PlayerNode>& tree, const QString& parent) {
    QJsonArray nodes;
    for (const PlayerNode& node : tree) {
        if (node.Parent != parent)
            continue;
        QJsonObject object{{u"key"_s, node.Key}, {u"text"_s, node.Text}, {u"picture"_s, node.Picture}};
        if (parent.isEmpty())
            object.insert(u"players"_s, Nodes(tree, node.Key));
        nodes.append(object);
    }
    return nodes;
}

/// The columns of a replay wherever it lies, and its slots.
Shown Read(const QString& path, QString& slotEntry) {
    const QString native = Paths::ToNative(path);
    const File file = File::Open(path, File::Access::Read);
    const QByteArray header = file.Read(0, Replays::HeaderLength);
    if (!Replays::HasMark(header))
        Fail(native, u"not a replay"_s);
    const QString fileName = Paths::LastPart(path);
    Shown shown;
    shown.Path = native;
    Replay replay;
    try {
        shown.Name = Paths::NameToNative(Replays::IsFileName(fileName) ? Replays::NameOf(fileName) : fileName);
        Replays::ReadMatch(header, replay);
        Replays::ReadVersion(header, replay);
    } catch (const RuntimeError& error) {
        Fail(native, error.Description());
    }
    shown.Date = Replays::Dates().Of(file.Modified());
    shown.Version = replay.Version;
    shown.Players = QString::number(replay.Players);
    shown.Map = replay.Map;
    slotEntry = replay.Slots + u';';
    return shown;
}

void Show(const Arguments& given) {
    const GameIndex game = GameArgument::Prepared(given, "--game");
    QString slotEntry;
    const Shown shown = Read(given.Path("FILE"), slotEntry);
    const std::vector<PlayerNode> tree = ReplayPlayers::Tree(slotEntry, game);
    if (given.Has("--json")) {
        QJsonObject object = Object(shown);
        object.insert(u"tree"_s, Nodes(tree, {}));
        PrintJson(object);
        return;
    }
    PrintRow({shown.Name, shown.Date, shown.Version, shown.Players, shown.Map});
    for (const PlayerNode& node : tree)
        PrintRow(QStringList((node.Parent.isEmpty() ? u"  "_s : u"    "_s) + node.Text));
}

} // namespace

std::vector<Command> ReplayCommands() {
    return {
        {"list",
         "Print the count of a game's replays, then a replay a line: name, date, version, players, map; separated by "
         "tabs. A file that ends the listing is named on standard error, and the exit code is 1",
         {GameArgument::Word(), {Kind::Flag, "--json", "Print JSON"}},
         List},
        {"show",
         "Print a replay's name, date, version, players and map, and its players by team",
         {{Kind::Place, "FILE"}, GameArgument::Word(Kind::Option, "--game"), {Kind::Flag, "--json", "Print JSON"}},
         Show}};
}
