// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/cli/GameArgument.h"
#include "app/cli/ListCommands.h"
#include "app/cli/ListRows.h"
#include "app/cli/Output.h"
#include "personal/lists/ShellMapList.h"
#include "personal/mShellMaps.h"
#include "platform/Paths.h"

#include <QJsonObject>

#include <optional>
#include <set>

using namespace Qt::StringLiterals;

namespace {

using Kind = Parameter::Kind;

constexpr qsizetype Digits = 3;

/// The number; of a folder that has none, its last three characters.
QString NumberText(const ListRow& row) {
    const std::optional<int> number = ListRows::NumberOf(row);
    return number ? QString::number(*number) : row.Key.last(Digits);
}

QJsonObject Object(const ShellMapList& list, int place) {
    const ListRow& row = list.Rows().Row(place);
    const std::optional<int> number = ListRows::NumberOf(row);
    return {{u"number"_s, number ? QJsonValue(*number) : QJsonValue()},
            {u"name"_s, row.Text},
            {u"comments"_s, list.Rows().Text(place, ShellMapList::Comments)},
            {u"path"_s, ListRows::PathOf(row)}};
}

void List(const Arguments& given) {
    qint32 game = GameArgument::Prepared(given);
    ShellMapList list;
    list.ListShellmaps(game);
    QJsonArray shellMaps;
    for (int place = 0; place < list.Rows().Count(); ++place) {
        const ListRow& row = list.Rows().Row(place);
        if (given.Has("--json"))
            shellMaps.append(Object(list, place));
        else
            PrintRow({NumberText(row), row.Text, list.Rows().Text(place, ShellMapList::Comments)});
    }
    if (given.Has("--json"))
        ListRows::Print(shellMaps);
}

/// From the highest number down, as those above a deleted one move down.
void Delete(const Arguments& given) {
    qint32 game = GameArgument::Prepared(given);
    ShellMapList list;
    list.ListShellmaps(game);
    std::set<int, std::greater<>> numbers;
    for (const QString& text : given.Texts("NUMBER")) {
        numbers.insert(text.toInt());
        ListRows::PlaceOfNumber(list, text.toInt());
    }
    for (const int number : numbers)
        ListRows::Delete(list, ListRows::PlaceOfNumber(list, number));
}

void Activate(const Arguments& given) {
    mShellMaps::ActivateShellMap(GameArgument::Prepared(given));
}

void Describe(const Arguments& given) {
    qint32 game = GameArgument::Prepared(given);
    ShellMapList list;
    list.ListShellmaps(game);
    const ListRow& row = list.Rows().Row(ListRows::PlaceOfNumber(list, given.Text("NUMBER").toInt()));
    ListRows::Describe(GameFiles::ShellMapRecord(game, Paths::LastPart(row.Key)), given);
}

Parameter Number(Kind kind, const std::string& description) {
    return {.What = kind,
            .Name = "NUMBER",
            .Description = description,
            .TypeName = "INT",
            .Required = true,
            .Check = ListRows::NumberComplaint};
}

Command DescribeCommand() {
    Command command{"describe",
                    "Write the name or the comments of a shell map into its folder",
                    {GameArgument::Word(), Number(Kind::Place, "A shell map as list prints it")},
                    Describe};
    for (const Parameter& parameter : ListRows::Description())
        command.Parameters.push_back(parameter);
    return command;
}

} // namespace

std::vector<Command> ShellMapCommands() {
    return {{"list",
             "Print a game's shell maps, a line each: number, name, comments; separated by tabs",
             {GameArgument::Word(), ListRows::Json()},
             List},
            {"delete",
             "Delete shell maps; those above each move one number down",
             {GameArgument::Word(), Number(Kind::Places, "Shell maps as list prints them before"), ListRows::Yes()},
             Delete,
             true},
            {"activate",
             "Put the chosen shell map in place, as a launch does before it starts the game",
             {GameArgument::Word()},
             Activate,
             true},
            DescribeCommand()};
}
