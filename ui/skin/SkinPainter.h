// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Draws the family's buttons, marks and bars: the one painter behind its own controls and behind the buttons that the
/// toolkit makes. All of it on whole pixels of the screen; corners are pixels where a line is one, else curves.
#pragma once

#include "ui/skin/Face.h"

class QFontMetrics;
class QPainter;
class QPalette;
class QRect;
class QString;

namespace Skin {

void PaintFace(QPainter& painter, const QRect& area, Look look);

/// The same out of its three slices.
void PaintSlices(QPainter& painter, const QRect& area, Look look);

/// A check box's mark is drawn in a box, an option button's in a circle.
enum class Mark { Tick, Dot };

/// The mark of a box that is neither ticked nor not.
enum class Ticked { No, Yes, Partly };

/// Draws the glyph at that place, which is its upper left corner.
void PaintGlyph(QPainter& painter, const QPoint& place, Mark mark, const ButtonState& state, Ticked ticked);

/// The dotted line around what has the keyboard.
void PaintFocus(QPainter& painter, const QRect& area);

/// A progress bar with `progress` percent.
void PaintProgress(QPainter& painter, const QRect& area, int progress);

/// What a push button with a caption of that size needs.
QSize ButtonSize(const QSize& caption);

/// What a control with a glyph and a caption of that size needs.
QSize TickSize(const QSize& caption);

} // namespace Skin
