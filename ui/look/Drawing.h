// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Small drawing helpers that several windows share.
#pragma once

#include <QFontMetrics>
#include <QString>

class QColor;
class QPainter;
class QRect;

/// Paints `area` with a vertical gradient, `top` at its upper edge and `bottom` at its lower one.
void DrawGradient(QPainter& painter, const QRect& area, const QColor& top, const QColor& bottom);

/// Shortens a path to `width` pixels: folders in its middle give way to "...", then its last part is cut. A path that
/// fits comes back as it is.
QString CompactPath(const QString& path, int width, const QFontMetrics& metrics);
