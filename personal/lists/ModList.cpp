// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "personal/lists/ModList.h"

#include "core/FileMoves.h"
#include "core/GameFiles.h"
#include "core/mTraduction.h"
#include "platform/Files.h"
#include "platform/RuntimeError.h"

using namespace Qt::StringLiterals;

namespace {

constexpr qint32 KindMod = 1;

std::vector<RowColumn> ModColumns() {
    constexpr double third = 1.0 / 3;
    // The last caption is not translated. This is meant.
    return {{.Caption = mTraduction::GetText(u"Filename"_s), .Fraction = third},
            {.Caption = mTraduction::GetText(u"Name"_s), .Fraction = third},
            {.Caption = u"Comments"_s, .Fraction = third}};
}

ListRow RowOf(GameIndex game, const QString& folder, const QString& fileName) {
    ListRow row{.Text = fileName, .Key = folder + fileName};
    const GameFiles::RecordPlace place = GameFiles::ModRecord(game, fileName);
    if (Files::FileExists(place.File)) {
        const GameFiles::Record record = GameFiles::ReadRecord(place);
        row.SubItems = {record.Name, record.Comments};
    }
    return row;
}

} // namespace

ModList::ModList() : GameList(ModColumns()) {}

qint16 ModList::ListMods(qint32& game, bool countOnly) {
    if (!countOnly) {
        Begin(game);
        SetFolder(EntryOf(game).InstallFolder());
    }
    const QString folder = EntryOf(game).InstallFolder();
    qint16 count = 0;
    for (const QString& name : GameFiles::Mods(game)) {
        if (!countOnly)
            Rows().Add(RowOf(game, folder, name));
        Increment(count);
    }
    return count;
}

void ModList::DeleteMod(bool& done) {
    const QString file = Folder() + SelectedRow().Text;
    // The file with the mod's name and comments stays: a mod of the same name finds it again. This is meant.
    Ignoring([&] { Files::DeleteUnprotected(file); });
    FileMoves::Deleted(file);
    done = !Files::FileExists(file);
}

void ModList::BuildExportList() {
    FillExportRecords(
        [](const ListRow& row) { return ExportRecord{.Path = row.Key, .Name = row.Text, .Kind = KindMod}; });
}
