// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/skin/SkinPainter.h"

#include "ui/look/Style.h"
#include "ui/skin/Bar.h"
#include "ui/skin/DevicePixels.h"
#include "ui/skin/Glyph.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>

namespace {

using Skin::DevicePixels;
using Skin::Fill;
using Style::FromBgr;

void PaintFill(QPainter& painter, const Fill& fill) {
    const QRect& area = fill.Area;
    if (fill.Top == fill.Bottom) {
        painter.fillRect(area, FromBgr(fill.Top));
        return;
    }
    for (int line = 0; line < area.height(); ++line)
        painter.fillRect(area.x(), area.y() + line, area.width(), 1,
                         FromBgr(Skin::Between(fill.Top, fill.Bottom, line, area.height())));
}

void PaintFills(QPainter& painter, const std::vector<Fill>& fills) {
    for (const Fill& fill : fills)
        PaintFill(painter, fill);
}

/// A ring along the area's edge with round corners. What is painted next is cut to its inner edge.
void PaintRing(QPainter& painter, const DevicePixels& pixels, const QColor& colour) {
    const QRectF outside = pixels.Area();
    const int line = pixels.Line(), reach = Skin::CornerReach * line;
    QPainterPath ring, hole;
    ring.addRoundedRect(outside, reach, reach);
    hole.addRoundedRect(outside.adjusted(line, line, -line, -line), reach - line, reach - line);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillPath(ring, colour);
    painter.setClipPath(hole, Qt::IntersectClip);
    painter.setRenderHint(QPainter::Antialiasing, false);
}

// Where a line is more than a pixel, blocks of pixels would make coarse corners.
void PaintPlan(QPainter& painter, const DevicePixels& pixels, Skin::Look look) {
    const Skin::Face face = FaceOf(look, pixels.Area().size(), pixels.Line());
    if (pixels.Line() > 1) {
        PaintRing(painter, pixels, FromBgr(face.Border));
        PaintFills(painter, face.Inside);
        return;
    }
    PaintFills(painter, face.Lines);
    PaintFills(painter, face.Inside);
    for (const auto& [place, colour] : face.Corners)
        painter.fillRect(QRect(place, QSize(1, 1)), FromBgr(colour));
}

void PaintTick(QPainter& painter, const QColor& colour) {
    painter.setPen(QPen(colour, 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    const QPolygonF tick({{3.5, 6.5}, {5.5, 9}, {9.5, 4}});
    painter.drawPolyline(tick);
}

void PaintCircle(QPainter& painter, const DevicePixels& pixels, int frame) {
    const Skin::GlyphColours& parts = Skin::ColoursOfGlyph(frame);
    const qreal line = pixels.Line(), half = line / 2;
    const QRectF middle = QRectF(pixels.Area()).adjusted(half, half, -half, -half); // of the border
    QLinearGradient ground(middle.topLeft(), middle.bottomLeft());
    ground.setColorAt(0, FromBgr(parts.Top));
    ground.setColorAt(1, FromBgr(parts.Bottom));
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(FromBgr(parts.Border), line));
    painter.setBrush(ground);
    painter.drawEllipse(middle);
    if (parts.Ring) {
        const qreal inside = half + line;
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(FromBgr(*parts.Ring), 2 * line));
        painter.drawEllipse(middle.adjusted(inside, inside, -inside, -inside));
    }
}

/// In units from the glyph's upper left corner.
void PaintMark(QPainter& painter, Skin::Mark mark, Skin::Ticked ticked, const QColor& colour) {
    constexpr int edge = 4;
    constexpr qreal middle = Skin::GlyphSize / 2.0, radius = 2.5;
    painter.setRenderHint(QPainter::Antialiasing);
    if (mark == Skin::Mark::Dot) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(colour);
        painter.drawEllipse(QPointF(middle, middle), radius, radius);
    } else if (ticked == Skin::Ticked::Yes) {
        PaintTick(painter, colour);
    } else {
        painter.fillRect(QRect(0, 0, Skin::GlyphSize, Skin::GlyphSize).adjusted(edge, edge, -edge, -edge), colour);
    }
}

} // namespace

void Skin::PaintFace(QPainter& painter, const QRect& area, Look look) {
    const DevicePixels pixels(painter, area);
    PaintPlan(painter, pixels, look);
}

void Skin::PaintSlices(QPainter& painter, const QRect& area, Look look) {
    const DevicePixels pixels(painter, area);
    for (const auto& [number, x, width] : SlicesOf(look, area.width())) {
        painter.save();
        painter.setClipRect(pixels.Of({x, 0, width, area.height()}), Qt::IntersectClip);
        PaintPlan(painter, pixels, LookOfSlice(number));
        painter.restore();
    }
}

void Skin::PaintGlyph(QPainter& painter, const QPoint& place, Mark mark, const ButtonState& state, Ticked ticked) {
    const DevicePixels pixels(painter, QRect(place, QSize(GlyphSize, GlyphSize)));
    const int frame = GlyphFrame(state, ticked != Ticked::No);
    if (mark == Mark::Dot)
        PaintCircle(painter, pixels, frame);
    else
        PaintFills(painter, BoxOfGlyph(frame, pixels.Area().width(), pixels.Line()));
    if (ticked == Ticked::No)
        return;
    painter.scale(pixels.Area().width() / qreal(GlyphSize), pixels.Area().height() / qreal(GlyphSize));
    PaintMark(painter, mark, ticked, FromBgr(ColoursOfGlyph(frame).Mark));
}

void Skin::PaintFocus(QPainter& painter, const QRect& area) {
    const DevicePixels pixels(painter, area);
    const QRect& edge = pixels.Area();
    const int dot = pixels.Line(), right = edge.width() - dot, bottom = edge.height() - dot;
    for (int x = 0; x <= right; x += 2 * dot)
        for (const int y : {0, bottom})
            painter.fillRect(x, y, dot, dot, Style::Colour::Border);
    for (int y = 0; y <= bottom; y += 2 * dot)
        for (const int x : {0, right})
            painter.fillRect(x, y, dot, dot, Style::Colour::Border);
}

void Skin::PaintProgress(QPainter& painter, const QRect& area, int progress) {
    const DevicePixels pixels(painter, area);
    const auto [first, inner, second] = PartsOfBar(area.size());
    const QRect ground = pixels.Of({first.width(), 0, inner.width(), area.height()});
    const int line = pixels.Line();
    painter.fillRect(ground, Style::Colour::Border);
    painter.fillRect(ground.adjusted(0, line, 0, -line), Qt::white);
    for (const QRect& end : {first, second}) {
        painter.save();
        painter.setClipRect(pixels.Of(end), Qt::IntersectClip);
        PaintRing(painter, pixels, Style::Colour::Border);
        painter.fillRect(pixels.Area(), Qt::white);
        painter.restore();
    }
    painter.setClipRect(pixels.Of(inner), Qt::IntersectClip);
    constexpr Bgr light = 0x8CD8FF, full = 0x008EF2;
    const int clip = ClipWidth(progress, inner.width());
    for (int left = 0; left < clip; left += BlockWidth) {
        const QRect block = pixels.Of({inner.x() + left, inner.y(), BlockWidth, inner.height()});
        PaintFill(painter, {block.adjusted(0, 0, -line, 0), light, full}); // and a gap behind it
    }
}

QSize Skin::ButtonSize(const QSize& caption) {
    constexpr int leastText = 64, sides = 12, grid = 4, leastHeight = 28;
    const int width = qMax(leastText, caption.width()) + 2 * sides;
    const int height = qMax(leastHeight, caption.height() + 2 * grid);
    return {(width + grid - 1) / grid * grid, (height + grid - 1) / grid * grid};
}

QSize Skin::TickSize(const QSize& caption) {
    constexpr int room = 2;
    const int beside = caption.width() > 0 ? GlyphGap + caption.width() + room : 0;
    return {GlyphSize + beside, qMax(GlyphSize, caption.height() + 2 * room)};
}
