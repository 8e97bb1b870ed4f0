// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/cli/DecodedPicture.h"
#include "app/cli/GameArgument.h"
#include "app/cli/ListCommands.h"
#include "app/cli/ListRows.h"
#include "app/cli/Output.h"
#include "personal/lists/MapList.h"
#include "platform/Paths.h"

#include <QJsonObject>

using namespace Qt::StringLiterals;

namespace {

using Kind = Parameter::Kind;

void List(const Arguments& given) {
    qint32 game = GameArgument::Prepared(given);
    MapList list;
    list.ListMaps(game);
    QJsonArray maps;
    for (int place = 0; place < list.Rows().Count(); ++place) {
        const ListRow& row = list.Rows().Row(place);
        const QString name = ListRows::Shown(row.Text);
        if (given.Has("--json"))
            maps.append(QJsonObject{{u"name"_s, name}, {u"path"_s, ListRows::PathOf(row)}});
        else
            PrintRow({name});
    }
    if (given.Has("--json"))
        ListRows::Print(maps);
}

void Delete(const Arguments& given) {
    const GameIndex game = GameArgument::Prepared(given);
    MapList list;
    ListRows::DeleteNamed(list, game, given.Texts("NAME"));
}

void Preview(const Arguments& given) {
    qint32 game = GameArgument::Prepared(given);
    MapList list;
    list.ListMaps(game);
    const ListRow& map = list.Rows().Row(ListRows::PlaceOf(list, given.Text("NAME")));
    const QString picture = MapFiles::Preview(map.Key, map.Text);
    if (picture.isEmpty())
        Fail(ListRows::PathOf(map), u"The map has no preview."_s);
    if (!DecodeToBitmap(picture, given.Path("OUT")))
        Fail(Paths::ToNative(picture), u"no picture that can be read"_s);
}

} // namespace

std::vector<Command> MapCommands() {
    return {{"list", "Print the names of a game's maps, one a line", {GameArgument::Word(), ListRows::Json()}, List},
            {"delete",
             "Delete maps, each with its folder",
             {GameArgument::Word(),
              {.What = Kind::Places, .Name = "NAME", .Description = "Maps as list prints them", .Required = true},
              ListRows::Yes()},
             Delete},
            {"preview",
             "Write the preview of a map as a bitmap of 32 bits a pixel, or as a PNG where OUT ends in .png",
             {GameArgument::Word(), {Kind::Place, "NAME"}, {Kind::Place, "OUT"}},
             Preview}};
}
