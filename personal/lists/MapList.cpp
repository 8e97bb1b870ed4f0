// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "personal/lists/MapList.h"

#include "core/FileMoves.h"
#include "core/NameOrder.h"
#include "core/mTraduction.h"
#include "platform/Files.h"
#include "platform/Namesakes.h"
#include "platform/RuntimeError.h"

using namespace Qt::StringLiterals;

namespace {

constexpr qint32 KindMap = 0;

QString Ending() {
    return u".map"_s;
}

QString MapFile(const QString& mapFolder, const QString& map) {
    return mapFolder + u'\\' + map + Ending();
}

/// Of a link only the link goes: what it leads to is somebody else's.
void DeleteMapFolder(const QString& folder) {
    if (Files::IsLink(folder)) {
        Files::RemoveLink(folder);
        return;
    }
    Files::Delete(folder + u"\\*.*"_s);
    Files::RemoveFolder(folder);
}

} // namespace

MapList::MapList() : GameList({{.Caption = mTraduction::GetText(u"Name"_s), .Fraction = 1}}) {}

qint16 MapList::ListMaps(qint32& game, bool countOnly) {
    if (!countOnly) {
        Begin(game);
        SetFolder(EntryOf(game).MapFolder());
    }
    const QString folder = EntryOf(game).MapFolder();
    if (folder.isEmpty()) // would be the current folder
        return 0;
    QStringList names = FoldersWithNamesake(folder, Ending());
    if (!countOnly)
        NameOrder::Sort(names);
    qint16 count = 0;
    for (const QString& name : names) {
        if (!countOnly)
            Rows().Add({.Text = name, .Key = folder + name});
        Increment(count);
    }
    return count;
}

void MapList::DeleteMap(bool& done) {
    const QString& map = SelectedRow().Text;
    const QString folder = Folder() + map;
    done = Ignoring([&] { DeleteMapFolder(folder); }) && !Files::FileExists(MapFile(folder, map));
    FileMoves::Deleted(folder);
}

void MapList::BuildExportList() {
    // Without a check mark the one empty record stays. This is meant.
    ExportRecords.assign(1, {});
    std::size_t next = 0;
    for (const int place : Rows().Checked()) {
        const ListRow& row = Rows().Row(place);
        ExportRecords.resize(next + 1);
        ExportRecords[next++] = {.Path = row.Key, .Name = row.Text, .Kind = KindMap};
    }
}

QString MapFiles::Preview(const QString& mapFolder, const QString& map) {
    for (const QString& ending : {u".tga"_s, u"_pic.tga"_s}) {
        if (QString path = mapFolder + u'\\' + map + ending; Files::FileExists(path))
            return path;
    }
    return {};
}
