// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/look/ucShadow.h"

#include <QPainter>

ucShadow::ucShadow(QWidget* parent) : QWidget(parent) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

QRegion ucShadow::Area(const QRect& window) {
    const QRect thrower = window.adjusted(0, 0, -Reach, -Reach);
    return QRegion(thrower).united(thrower.translated(Reach, Reach));
}

void ucShadow::paintEvent(QPaintEvent* /*event*/) {
    const QRect thrower = rect().adjusted(0, 0, -Reach, -Reach);
    QPainter painter(this);
    painter.setClipRegion(Area(rect()).subtracted(thrower));
    // Faint layers, each a step further out, add up to a soft edge.
    for (int step = 1; step <= Reach; ++step)
        painter.fillRect(thrower.translated(step, step), QColor(0, 0, 0, 28));
}
