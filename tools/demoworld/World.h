// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The demo world: a registry, four games with their archives, and a user's own files.
#pragma once

#include "tools/demoworld/Contents.h"

#include <QByteArray>
#include <QString>

namespace Demo {

struct WorldOptions {
    QString Folder;                                   ///< native path
    QString Language = QStringLiteral("English.lng"); ///< the `TradFileName` setting
    bool Small = false;
    JpegEncoder EncodeJpeg; ///< may be empty: then there are no JPEG files
};

/// The registry of a world below `root`, an inside path without a trailing backslash: REGEDIT4 in the ANSI code page.
QByteArray RegistryText(const QString& root, const QString& language);

/// Makes the world, or leaves a complete one of the same options alone. A folder that holds anything else than such a
/// world is refused. Returns an empty text, or what went wrong.
QString MakeWorld(const WorldOptions& options);

} // namespace Demo
