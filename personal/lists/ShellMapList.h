// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The shell maps that are stored for a game: name and comments. A row's key is the shell map's folder.
#pragma once

#include "personal/lists/GameList.h"

class ShellMapList final : public GameList {
public:
    enum Column { Name, Comments };

    ShellMapList();

    qint16 ListShellmaps(qint32& game, bool countOnly = false);
    /// Deletes the selected shell map and closes the gap in the numbers.
    void DeleteShellMap();

    qint16 List(qint32& game, bool countOnly) override { return ListShellmaps(game, countOnly); }

    void Delete(bool& done) override;

    void BuildExportList() override;
};
