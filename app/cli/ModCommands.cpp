// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/cli/GameArgument.h"
#include "app/cli/ListCommands.h"
#include "app/cli/ListRows.h"
#include "app/cli/Output.h"
#include "personal/lists/ModList.h"

#include <QJsonObject>

using namespace Qt::StringLiterals;

namespace {

using Kind = Parameter::Kind;

QJsonObject Object(const ModList& list, int place) {
    const RowList& rows = list.Rows();
    return {{u"file"_s, ListRows::Shown(rows.Text(place, ModList::FileName))},
            {u"name"_s, rows.Text(place, ModList::Name)},
            {u"comments"_s, rows.Text(place, ModList::Comments)},
            {u"path"_s, ListRows::PathOf(rows.Row(place))}};
}

void List(const Arguments& given) {
    qint32 game = GameArgument::Prepared(given);
    ModList list;
    list.ListMods(game);
    const RowList& rows = list.Rows();
    QJsonArray mods;
    for (int place = 0; place < rows.Count(); ++place) {
        if (given.Has("--json"))
            mods.append(Object(list, place));
        else
            PrintRow({ListRows::Shown(rows.Text(place, ModList::FileName)), rows.Text(place, ModList::Name),
                      rows.Text(place, ModList::Comments)});
    }
    if (given.Has("--json"))
        ListRows::Print(mods);
}

void Delete(const Arguments& given) {
    const GameIndex game = GameArgument::Prepared(given);
    ModList list;
    ListRows::DeleteNamed(list, game, given.Texts("FILE"));
}

void Describe(const Arguments& given) {
    qint32 game = GameArgument::Prepared(given);
    ModList list;
    list.ListMods(game);
    const QString& file = list.Rows().Row(ListRows::PlaceOf(list, given.Text("FILE"))).Text;
    ListRows::Describe(GameFiles::ModRecord(game, file), given);
}

Command DescribeCommand() {
    Command command{"describe",
                    "Write the name or the comments of a mod into the INI file beside it",
                    {GameArgument::Word(), {Kind::Place, "FILE", "A mod as list prints it"}},
                    Describe};
    for (const Parameter& parameter : ListRows::Description())
        command.Parameters.push_back(parameter);
    return command;
}

} // namespace

std::vector<Command> ModCommands() {
    return {{"list",
             "Print a game's mods, a line each: file, name, comments; separated by tabs",
             {GameArgument::Word(), ListRows::Json()},
             List},
            {"delete",
             "Delete the archives of mods; the INI file beside each stays",
             {GameArgument::Word(),
              {.What = Kind::Places, .Name = "FILE", .Description = "Mods as list prints them", .Required = true},
              ListRows::Yes()},
             Delete},
            DescribeCommand()};
}
