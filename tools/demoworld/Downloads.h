// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// ZIP archives of maps, mods, replays and shell maps as people pack and share them: to install, and to pass over.
#pragma once

#include <QByteArray>
#include <QString>

#include <vector>

namespace Demo {

struct Download {
    QString Name; ///< of the file
    QByteArray Bytes;
};

/// One of each habit. A small one has small pictures and a few replays only.
std::vector<Download> Downloads(bool small);

} // namespace Demo
