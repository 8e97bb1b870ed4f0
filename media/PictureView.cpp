// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "media/PictureView.h"

#include <QPainter>

namespace {

void DrawChecks(QPainter& painter, QRect area) {
    constexpr int side = 8;
    painter.fillRect(area, Qt::white);
    for (int y = 0; y < area.height(); y += side) {
        for (int x = y / side % 2 * side; x < area.width(); x += 2 * side)
            painter.fillRect(QRect(x, y, side, side), QColor(204, 204, 204));
    }
}

} // namespace

PictureView::PictureView(QWidget* parent) : QWidget(parent) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

void PictureView::SetPicture(const QImage& picture) {
    picture_ = picture;
    update();
}

void PictureView::paintEvent(QPaintEvent* /*event*/) {
    if (picture_.isNull() || size().isEmpty())
        return;
    QPainter painter(this);
    if (picture_.hasAlphaChannel())
        DrawChecks(painter, rect());
    const qreal scale = devicePixelRatioF();
    QImage stretched = picture_.scaled(size() * scale, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    stretched.setDevicePixelRatio(scale);
    painter.drawImage(0, 0, stretched);
}
