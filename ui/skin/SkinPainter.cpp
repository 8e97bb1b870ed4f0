// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/skin/SkinPainter.h"

#include "ui/look/Style.h"
#include "ui/skin/Bar.h"
#include "ui/skin/Glyph.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>

namespace {

using Skin::Fill;
using Skin::ToColour;

bool IsAtScale1(const QPainter& painter) {
    return painter.deviceTransform().m11() == 1;
}

class Saved {
public:
    explicit Saved(QPainter& painter) : painter_(painter) { painter_.save(); }

    Saved(const Saved&) = delete;
    Saved& operator=(const Saved&) = delete;

    ~Saved() { painter_.restore(); }

private:
    QPainter& painter_;
};

void PaintFill(QPainter& painter, const Fill& fill) {
    const QRect& area = fill.Area;
    if (fill.Top == fill.Bottom) {
        painter.fillRect(area, ToColour(fill.Top));
        return;
    }
    if (!IsAtScale1(painter)) {
        QLinearGradient gradient(0, area.top(), 0, area.top() + area.height());
        gradient.setColorAt(0, ToColour(fill.Top));
        gradient.setColorAt(1, ToColour(fill.Bottom));
        painter.fillRect(area, gradient);
        return;
    }
    for (int line = 0; line < area.height(); ++line)
        painter.fillRect(area.x(), area.y() + line, area.width(), 1,
                         ToColour(Skin::Between(fill.Top, fill.Bottom, line, area.height())));
}

void PaintFills(QPainter& painter, const std::vector<Fill>& fills) {
    for (const Fill& fill : fills)
        PaintFill(painter, fill);
}

/// Where there is more than a pixel to a unit: the border is a ring with round corners, and what lies inside is cut to
/// the ring's inner edge.
void PaintCurved(QPainter& painter, const Skin::Face& face, const QSize& size) {
    const QRectF outside(QPointF(), size);
    QPainterPath ring, hole;
    ring.addRoundedRect(outside, Skin::CornerReach, Skin::CornerReach);
    hole.addRoundedRect(outside.adjusted(1, 1, -1, -1), Skin::CornerReach - 1, Skin::CornerReach - 1);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillPath(ring, ToColour(face.Border));
    painter.setClipPath(hole, Qt::IntersectClip);
    painter.setRenderHint(QPainter::Antialiasing, false);
    PaintFills(painter, face.Inside);
}

void PaintTick(QPainter& painter, const QColor& colour) {
    painter.setPen(QPen(colour, 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    const QPolygonF tick({{3.5, 6.5}, {5.5, 9}, {9.5, 4}});
    painter.drawPolyline(tick);
}

void PaintCircle(QPainter& painter, int frame, Skin::Ticked ticked) {
    const Skin::GlyphColours& parts = Skin::ColoursOfGlyph(frame);
    const QRectF outside(0.5, 0.5, Skin::GlyphSize - 1, Skin::GlyphSize - 1);
    QLinearGradient ground(outside.topLeft(), outside.bottomLeft());
    ground.setColorAt(0, ToColour(parts.Top));
    ground.setColorAt(1, ToColour(parts.Bottom));
    painter.setPen(QPen(ToColour(parts.Border), 1));
    painter.setBrush(ground);
    painter.drawEllipse(outside);
    if (parts.Ring) {
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(ToColour(*parts.Ring), 2));
        painter.drawEllipse(outside.adjusted(1.5, 1.5, -1.5, -1.5));
    }
    if (ticked == Skin::Ticked::No)
        return;
    constexpr qreal radius = 2.5;
    painter.setPen(Qt::NoPen);
    painter.setBrush(ToColour(parts.Mark));
    painter.drawEllipse(outside.center(), radius, radius);
}

} // namespace

QColor Skin::ToColour(Bgr colour) {
    constexpr Bgr part = 0xFF;
    return QColor(static_cast<int>(colour & part), static_cast<int>(colour >> 8 & part),
                  static_cast<int>(colour >> 16 & part));
}

void Skin::PaintFace(QPainter& painter, const QRect& area, Look look) {
    const Saved saved(painter);
    painter.translate(area.topLeft());
    const Face face = FaceOf(look, area.size());
    if (!IsAtScale1(painter)) {
        PaintCurved(painter, face, area.size());
        return;
    }
    painter.setRenderHint(QPainter::Antialiasing, false);
    PaintFills(painter, face.Lines);
    PaintFills(painter, face.Inside);
    for (const auto& [place, colour] : face.Corners)
        painter.fillRect(QRect(place, QSize(1, 1)), ToColour(colour));
}

void Skin::PaintGlyph(QPainter& painter, const QPoint& place, Mark mark, const ButtonState& state, Ticked ticked) {
    const Saved saved(painter);
    painter.translate(place);
    const int frame = GlyphFrame(state, ticked != Ticked::No);
    const QColor colour = ToColour(ColoursOfGlyph(frame).Mark);
    if (mark == Mark::Dot) {
        painter.setRenderHint(QPainter::Antialiasing);
        PaintCircle(painter, frame, ticked);
        return;
    }
    painter.setRenderHint(QPainter::Antialiasing, false);
    PaintFills(painter, BoxOfGlyph(frame));
    painter.setRenderHint(QPainter::Antialiasing);
    constexpr int edge = 4;
    if (ticked == Ticked::Yes)
        PaintTick(painter, colour);
    else if (ticked == Ticked::Partly)
        painter.fillRect(QRect(0, 0, GlyphSize, GlyphSize).adjusted(edge, edge, -edge, -edge), colour);
}

void Skin::PaintFocus(QPainter& painter, const QRect& area) {
    const Saved saved(painter);
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(Style::Colour::Border, 1, Qt::DotLine));
    painter.drawRect(area.adjusted(0, 0, -1, -1));
}

void Skin::PaintProgress(QPainter& painter, const QRect& area, int progress) {
    const Saved saved(painter);
    painter.translate(area.topLeft());
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(Style::Colour::Border, 1));
    painter.setBrush(Qt::white);
    painter.drawRoundedRect(QRectF(QPointF(), area.size()).adjusted(0.5, 0.5, -0.5, -0.5), CornerReach, CornerReach);
    const int inner = InnerWidth(area.width());
    const int clip = ClipWidth(progress, inner);
    if (clip <= 0)
        return;
    constexpr int above = 3, gap = 1;
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.setClipRect(QRect(BarEnd, above, inner, area.height() - 2 * above), Qt::IntersectClip);
    constexpr Bgr light = 0x8CD8FF, full = 0x008EF2;
    for (int left = 0; left < clip; left += BlockWidth)
        PaintFill(painter, {{BarEnd + left, above, BlockWidth - gap, area.height() - 2 * above}, light, full});
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
