// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The mods in a game's folder, with what their INI files say: file name, name, comments.
#pragma once

#include "personal/lists/GameList.h"

class ModList final : public GameList {
public:
    enum Column { FileName, Name, Comments };

    ModList();

    qint16 ListMods(qint32& game, bool countOnly = false);
    /// Deletes the archive; its INI file stays.
    void DeleteMod(bool& done);

    qint16 List(qint32& game, bool countOnly) override { return ListMods(game, countOnly); }

    void Delete(bool& done) override { DeleteMod(done); }

    void BuildExportList() override;
};
