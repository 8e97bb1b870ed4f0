// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/ucShadow.h"

#include <QPainter>

ucShadow::ucShadow(QWidget* parent) : QWidget(parent) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

void ucShadow::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setClipRegion(QRegion(rect()).subtracted(rect().adjusted(Reach, Reach, -Reach, -Reach)));
    painter.setPen(Qt::NoPen);
    // Faint layers of shrinking size add up to a soft edge; the light comes from above.
    painter.setBrush(QColor(0, 0, 0, 9));
    for (int layer = 0; layer < Reach; ++layer) {
        const QRectF area = QRectF(rect()).adjusted(layer, layer + 2, -layer, -layer);
        painter.drawRoundedRect(area, Reach - layer * 0.7, Reach - layer * 0.7);
    }
}
