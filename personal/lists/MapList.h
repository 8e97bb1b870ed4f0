// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The maps that a user has added to a game: folders that hold a ".map" file of their own name.
#pragma once

#include "personal/lists/GameList.h"

class MapList final : public GameList {
public:
    MapList();

    qint16 ListMaps(qint32& game, bool countOnly = false);
    /// Deletes the files of the map's folder and then the folder, which a subfolder keeps. Of a folder that is a link
    /// only the link goes.
    void DeleteMap(bool& done);

    qint16 List(qint32& game, bool countOnly) override { return ListMaps(game, countOnly); }

    void Delete(bool& done) override { DeleteMap(done); }

    void BuildExportList() override;
};

namespace MapFiles {

/// The path of a map's preview, `M.tga` or else `M_pic.tga` in the map's folder; empty without one.
QString Preview(const QString& mapFolder, const QString& map);

} // namespace MapFiles
