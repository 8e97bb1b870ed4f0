// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "personal/lists/GameList.h"

#include "platform/RuntimeError.h"

#include <limits>

using namespace Qt::StringLiterals;

void GameList::Begin(qint32& game) {
    rows_.Clear();
    selected_ = None;
    if (game == CurrentGame)
        game = game_;
    EntryOf(game);
    game_ = game;
}

const ListRow& GameList::SelectedRow() const {
    if (selected_ < 0 || selected_ >= rows_.Count())
        throw RuntimeError(ErrorNumber::ObjectNotSet, u"no row is selected"_s);
    return rows_.Row(selected_);
}

void GameList::FillExportRecords(const std::function<ExportRecord(const ListRow&)>& recordOf) const {
    ExportRecords.assign(1, {});
    for (const int place : rows_.Checked()) {
        ExportRecords.back() = recordOf(rows_.Row(place));
        ExportRecords.emplace_back();
    }
    // The record behind the last one is taken away, and of an only record nothing would be left. This is meant.
    if (ExportRecords.size() == 1)
        throw RuntimeError(ErrorNumber::Subscript, u"no row has a check mark"_s);
    ExportRecords.pop_back();
}

void GameList::Increment(qint16& count) {
    if (count == std::numeric_limits<qint16>::max())
        throw RuntimeError(ErrorNumber::Overflow, u"a list has 32,767 rows at most"_s);
    ++count;
}

const GameEntry& GameList::EntryOf(qint32 game) {
    if (game < 0 || game >= GameCount)
        throw RuntimeError(ErrorNumber::Subscript, u"%1: no such game"_s.arg(game));
    return Game.at(static_cast<std::size_t>(game));
}
