// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// What the four lists have in common: rows with check marks, the game and the folder that they were listed for, and
/// the row that is selected.
#pragma once

#include "core/Game.h"
#include "core/rows/RowList.h"
#include "personal/lists/ExportRecords.h"

#include <functional>

class GameList {
public:
    /// Stands for the current game where a list is asked for.
    static constexpr qint32 CurrentGame = 65536;
    static constexpr int None = -1;

    GameList(const GameList&) = delete;
    GameList& operator=(const GameList&) = delete;
    virtual ~GameList() = default;

    [[nodiscard]] const RowList& Rows() const { return rows_; }

    /// For the list's model.
    [[nodiscard]] RowList& Rows() { return rows_; }

    /// The game that was listed last; 0 before.
    [[nodiscard]] GameIndex Listed() const { return game_; }

    /// The folder that was listed last, with a trailing backslash; empty before.
    [[nodiscard]] const QString& Folder() const { return folder_; }

    /// The place of the selected row; None without one. Listing takes it away, sorting does not move it along: who
    /// sorts says what is selected then.
    [[nodiscard]] int Selected() const { return selected_; }

    void Select(int place) { selected_ = place; }

    /// Lists anew (or only counts, which touches nothing and opens no file) and returns the count. For CurrentGame the
    /// game that was listed last is put into the caller's variable; not when counting. Raises 9 for a game that is
    /// none, 6 for a count beyond 32,767, and what the reading of a file raises: rows that were added before stay.
    virtual qint16 List(qint32& game, bool countOnly) = 0;

    /// Deletes what the selected row stands for; the row stays. `done` is whether it is gone. Raises 91 when no row is
    /// selected.
    virtual void Delete(bool& done) = 0;

    /// Fills ExportRecords from the rows with a check mark, in the order shown. Without one the map list leaves one
    /// empty record, and the others raise 9.
    virtual void BuildExportList() = 0;

protected:
    explicit GameList(std::vector<RowColumn> columns, RowList::Edits edits = RowList::Edits::No)
        : rows_(std::move(columns), RowList::Checks::Yes, edits) {}

    /// The beginning of each listing that is no counting: no rows, the game settled and stored. Raises 9.
    void Begin(qint32& game);

    void SetFolder(const QString& folder) { folder_ = folder; }

    /// The selected row. Raises 91 when there is none.
    [[nodiscard]] const ListRow& SelectedRow() const;

    /// The rows with a check mark become ExportRecords. Raises 9 when there is none, and leaves one empty record then.
    void FillExportRecords(const std::function<ExportRecord(const ListRow&)>& recordOf) const;

    /// One more in a 16-bit count. Raises 6.
    static void Increment(qint16& count);

    /// The game's entry of the table. Raises 9.
    static const GameEntry& EntryOf(qint32 game);

private:
    RowList rows_;
    GameIndex game_ = 0;
    QString folder_;
    int selected_ = None;
};
