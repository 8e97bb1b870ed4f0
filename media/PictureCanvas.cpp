// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "media/PictureCanvas.h"

#include "ui/look/ForReaders.h"
#include "ui/skin/SkinPainter.h"

#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>

namespace {

constexpr int side = 8; ///< of a check

QBrush Checks() {
    QPixmap checks(2 * side, 2 * side);
    checks.fill(Qt::white);
    QPainter painter(&checks);
    painter.fillRect(0, 0, side, side, QColor(204, 204, 204));
    painter.fillRect(side, side, side, side, QColor(204, 204, 204));
    return checks;
}

QBrush BrushOf(PictureCanvas::Ground ground) {
    switch (ground) {
    case PictureCanvas::Ground::White:
        return Qt::white;
    case PictureCanvas::Ground::Black:
    case PictureCanvas::Ground::AlphaOnly:
        return Qt::black;
    case PictureCanvas::Ground::Checks:
        break;
    }
    return Checks();
}

/// How far it scrolls for the point `fixed` to stay where it is.
int Scrolled(double share, double length, double fixed) {
    return static_cast<int>(std::lround(share * length - fixed));
}

} // namespace

PictureCanvas::PictureCanvas(QWidget* parent) : QAbstractScrollArea(parent) {
    setFocusPolicy(Qt::StrongFocus);
    ForReaders::SetRole(*this, QAccessible::Graphic);
}

void PictureCanvas::SetPicture(const QImage& picture) {
    picture_ = picture;
    zoom_.SetPicture(picture.size());
    SetGround(ground_);
    FollowRoom();
}

void PictureCanvas::SetGround(Ground ground) {
    ground_ = ground;
    shown_ = picture_;
    if (ground == Ground::AlphaOnly && !picture_.isNull()) {
        shown_ = picture_.convertToFormat(QImage::Format_Alpha8);
        shown_.reinterpretAsFormat(QImage::Format_Grayscale8);
    }
    viewport()->update();
}

QRectF PictureCanvas::Area() const {
    const QSizeF size = QSizeF(zoom_.Shown()) / devicePixelRatioF();
    const auto start = [](double room, double length, int scrolled) {
        return length <= room ? std::floor((room - length) / 2) : -scrolled;
    };
    return {QPointF(start(viewport()->width(), size.width(), horizontalScrollBar()->value()),
                    start(viewport()->height(), size.height(), verticalScrollBar()->value())),
            size};
}

void PictureCanvas::FollowRoom() {
    zoom_.SetRoom((QSizeF(maximumViewportSize()) * devicePixelRatioF()).toSize());
    const QSizeF size = QSizeF(zoom_.Shown()) / devicePixelRatioF();
    const auto reach = [](QScrollBar& bar, double length, int room) {
        bar.setPageStep(room);
        bar.setSingleStep(std::max(1, room / 10));
        bar.setRange(0, std::max(0, static_cast<int>(std::ceil(length)) - room));
    };
    // The one bar takes of the other's room.
    const QSize room = viewport()->size();
    reach(*horizontalScrollBar(), size.width(), room.width());
    reach(*verticalScrollBar(), size.height(), room.height());
    viewport()->update();
    Q_EMIT ZoomChanged();
}

void PictureCanvas::Change(void (PictureZoom::*change)()) {
    ChangeAt(QRectF(viewport()->rect()).center(), change);
}

void PictureCanvas::ChangeAt(QPointF fixed, void (PictureZoom::*change)()) {
    const QRectF before = Area();
    if (before.isEmpty())
        return;
    const QPointF share((fixed.x() - before.x()) / before.width(), (fixed.y() - before.y()) / before.height());
    (zoom_.*change)();
    FollowRoom();
    const QRectF area = Area();
    horizontalScrollBar()->setValue(Scrolled(share.x(), area.width(), fixed.x()));
    verticalScrollBar()->setValue(Scrolled(share.y(), area.height(), fixed.y()));
    viewport()->update();
}

void PictureCanvas::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(viewport());
    const QRectF area = Area();
    if (!shown_.isNull()) {
        if (shown_.hasAlphaChannel()) {
            painter.setBrushOrigin(area.topLeft());
            painter.fillRect(area, BrushOf(ground_));
        }
        // Single pixels are to be seen as such.
        painter.setRenderHint(QPainter::SmoothPixmapTransform, zoom_.Factor() < 1);
        painter.drawImage(area, shown_);
    }
    if (hasFocus())
        Skin::PaintFocus(painter, viewport()->rect());
}

void PictureCanvas::resizeEvent(QResizeEvent* /*event*/) {
    FollowRoom();
}

void PictureCanvas::wheelEvent(QWheelEvent* event) {
    if (event->angleDelta().y() != 0)
        ChangeAt(event->position(), event->angleDelta().y() > 0 ? &PictureZoom::In : &PictureZoom::Out);
    event->accept();
}

void PictureCanvas::mousePressEvent(QMouseEvent* event) {
    dragged_ = event->pos();
    if (event->button() == Qt::LeftButton)
        viewport()->setCursor(Qt::ClosedHandCursor);
}

void PictureCanvas::mouseMoveEvent(QMouseEvent* event) {
    if (!event->buttons().testFlag(Qt::LeftButton))
        return;
    const QPoint way = event->pos() - dragged_;
    dragged_ = event->pos();
    horizontalScrollBar()->setValue(horizontalScrollBar()->value() - way.x());
    verticalScrollBar()->setValue(verticalScrollBar()->value() - way.y());
}

void PictureCanvas::mouseReleaseEvent(QMouseEvent* /*event*/) {
    viewport()->unsetCursor();
}

void PictureCanvas::focusInEvent(QFocusEvent* event) {
    QAbstractScrollArea::focusInEvent(event);
    viewport()->update();
}

void PictureCanvas::focusOutEvent(QFocusEvent* event) {
    QAbstractScrollArea::focusOutEvent(event);
    viewport()->update();
}
