// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/skin/DevicePixels.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

// Edges are rounded as the toolkit rounds a control's own, which it cuts its painting to: all four sides are seen.
Skin::DevicePixels::DevicePixels(QPainter& painter, const QRect& area)
    : painter_(painter),
      density_(painter.deviceTransform().m11()),
      line_(std::max(1, static_cast<int>(std::floor(density_)))),
      origin_(painter.deviceTransform().map(QPointF(area.topLeft()))),
      area_(Of({{}, area.size()})) {
    painter.save();
    painter.setWorldTransform(QTransform::fromTranslate(qRound(origin_.x()), qRound(origin_.y())) *
                              painter.deviceTransform().inverted() * painter.worldTransform());
    painter.setRenderHint(QPainter::Antialiasing, false);
}

Skin::DevicePixels::~DevicePixels() {
    painter_.restore();
}

QRect Skin::DevicePixels::Of(const QRect& part) const {
    const auto pixel = [this](qreal origin, int unit) { return qRound(origin + unit * density_) - qRound(origin); };
    const QPoint first(pixel(origin_.x(), part.x()), pixel(origin_.y(), part.y()));
    const QPoint behind(pixel(origin_.x(), part.x() + part.width()), pixel(origin_.y(), part.y() + part.height()));
    return {first, behind - QPoint(1, 1)};
}
