// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "personal/MapsFolder.h"

#include "platform/Files.h"
#include "platform/ListedFolder.h"
#include "platform/Paths.h"
#include "platform/RuntimeError.h"

using namespace Qt::StringLiterals;

MapsFolder::MapsFolder(GameIndex game) {
    const QString install = Game.at(static_cast<std::size_t>(game)).InstallFolder();
    game_ = Paths::Real(install); // none without a game: the current folder is not meant
    const QString maps = Paths::Real(install + u"Maps"_s);
    if (!Holds(maps) || !Files::FolderExists(maps))
        return;
    // What is in a folder that can't be listed would be taken for missing.
    Ignoring([&] {
        names_ = ListedFolder(maps).Names(true);
        maps_ = maps;
    });
}

QString MapsFolder::Find(const QString& name) const {
    if (names_.contains(name))
        return maps_ + u'\\' + name;
    for (const QString& found : names_) {
        if (found.compare(name, Qt::CaseInsensitive) == 0)
            return maps_ + u'\\' + found;
    }
    return maps_ + u'\\' + name;
}

bool MapsFolder::Holds(const QString& path) const {
    const QString inside = game_.endsWith(u'\\') ? game_ : game_ + u'\\';
    return !game_.isEmpty() && Paths::Real(path).startsWith(inside);
}
