// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Painting in the screen's own pixels: at 125, 150 and 175 % a line of one unit would begin and end within a pixel.
#pragma once

#include <QPointF>
#include <QRect>

class QPainter;

namespace Skin {

/// While it lives, the painter's units are the screen's pixels, counted from the upper left corner of an area that is
/// put on whole pixels. What was set of the painter in its life is taken back at its end.
class DevicePixels {
public:
    DevicePixels(QPainter& painter, const QRect& area);

    DevicePixels(const DevicePixels&) = delete;
    DevicePixels& operator=(const DevicePixels&) = delete;

    ~DevicePixels();

    /// The area in pixels.
    [[nodiscard]] const QRect& Area() const { return area_; }

    /// The pixels of a line that is one unit wide: whole ones, one at least.
    [[nodiscard]] int Line() const { return line_; }

    /// Pixels to a unit.
    [[nodiscard]] qreal Density() const { return density_; }

    /// A part of the area, given in units from its upper left corner. Parts that touch each other do so in pixels, too.
    [[nodiscard]] QRect Of(const QRect& part) const;

private:
    QPainter& painter_;
    qreal density_;
    int line_;
    QPointF origin_; ///< the area's upper left corner on the screen
    QRect area_;
};

} // namespace Skin
