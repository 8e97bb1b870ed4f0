// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The replays of a game: file name, date, version, players, map. A row's key is the file's path and its tag the slot
/// entry with a ";" behind it.
#pragma once

#include "personal/lists/GameList.h"
#include "personal/replay/ReplayPlayers.h"

class ReplayList final : public GameList {
public:
    enum Column { FileName, Date, Version, Players, Map };

    ReplayList();

    /// Opens each replay under the number FileNumbers::Replay. One with a wrong mark gets no row and leaves the number
    /// open, and the next true replay's open raises 55 then. The count is that of the names.
    qint16 ListReplays(qint32& game, bool countOnly = false);
    void DeleteReplay(bool& done);

    /// The end of an edit of a row's text: the row has the new text from then on, whatever follows. Renames the file in
    /// the folder of the current game, with the game's extension before and behind, and sets the row's key. Raises 58
    /// when the target exists, 5 for a name that is no plain one, else what the system says.
    void Rename(int place, const QString& text);

    /// The players of the selected row; `tree` stays as it is without a row or a tag.
    void LoadPlayerList(std::vector<PlayerNode>& tree) const;

    qint16 List(qint32& game, bool countOnly) override { return ListReplays(game, countOnly); }

    void Delete(bool& done) override { DeleteReplay(done); }

    void BuildExportList() override;

private:
    struct Reading;

    void AddReplay(const QString& name, Reading& reading);
};
