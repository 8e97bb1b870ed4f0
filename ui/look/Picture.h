// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The program's own pictures, crisp at every scale.
#pragma once

#include <QIcon>
#include <QImage>
#include <QPixmap>
#include <QString>

namespace Picture {

/// One of the program's own PNG pictures by its resource path. The toolkit's other picture readers are not even looked
/// for, which takes most of the time otherwise.
QImage Read(const QString& file);

/// The picture ":/art/<name>.png" in the rendering that fits the device pixel ratio best: the smallest one that has
/// all the pixels needed, else the largest. Its own ratio is set, so that it is drawn at its size in points.
QPixmap Load(const QString& name, qreal ratio);

/// A small picture as an icon, with all its renderings.
QIcon Icon(const QString& name);

/// The compass of the program, 16 to 256 pixels.
QIcon ProgramIcon();

} // namespace Picture
