// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "personal/lists/ShellMapList.h"

#include "core/GameFiles.h"
#include "core/mTraduction.h"
#include "personal/mShellMaps.h"
#include "platform/Files.h"
#include "platform/Paths.h"

using namespace Qt::StringLiterals;

namespace {

constexpr qint32 KindShellMap = 3;

std::vector<RowColumn> ShellMapColumns() {
    constexpr double half = 1.0 / 2;
    // The last caption is not translated. This is meant.
    return {{.Caption = mTraduction::GetText(u"Name"_s), .Fraction = half},
            {.Caption = u"Comments"_s, .Fraction = half}};
}

ListRow RowOf(GameIndex game, const QString& name) {
    const GameFiles::Record record = GameFiles::ReadRecord(GameFiles::ShellMapRecord(game, name));
    return {.Text = record.Name, .SubItems = {record.Comments}, .Key = GameFiles::ShellMapFolder(game, name)};
}

/// The number under which a shell map can be removed: its folder is the very one that the number stands for.
std::optional<int> RemovableNumber(GameIndex game, const QString& folder) {
    const std::optional<int> number = GameFiles::NumberIn(Paths::LastPart(folder));
    if (!number)
        return std::nullopt;
    const QString meant = GameFiles::ShellMapFolder(game, GameFiles::ShellMapName(QString::number(*number)));
    return Files::SameFile(folder, meant) ? number : std::nullopt;
}

} // namespace

ShellMapList::ShellMapList() : GameList(ShellMapColumns()) {}

qint16 ShellMapList::ListShellmaps(qint32& game, bool countOnly) {
    if (!countOnly) {
        Begin(game);
        SetFolder(EntryOf(game).InstallFolder());
    }
    EntryOf(game);
    qint16 count = 0;
    for (const QString& name : GameFiles::ShellMaps(game)) {
        if (!countOnly)
            Rows().Add(RowOf(game, name));
        Increment(count);
    }
    return count;
}

void ShellMapList::DeleteShellMap() {
    const std::optional<int> number = RemovableNumber(Listed(), SelectedRow().Key);
    if (number)
        mShellMaps::RemoveShellMap(static_cast<qint16>(*number), Listed());
}

void ShellMapList::Delete(bool& done) {
    const qsizetype before = GameFiles::ShellMaps(Listed()).size();
    DeleteShellMap();
    done = GameFiles::ShellMaps(Listed()).size() < before;
}

void ShellMapList::BuildExportList() {
    FillExportRecords([](const ListRow& row) {
        return ExportRecord{.Path = row.Key + u"\\*.*"_s, .Name = row.Text, .Kind = KindShellMap};
    });
}
