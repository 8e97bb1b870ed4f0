// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/skin/TDLine.h"

#include "ui/look/Style.h"
#include "ui/skin/DevicePixels.h"

#include <QPainter>

TDLine::TDLine(QWidget* parent) : QFrame(parent) {
    setFrameStyle(HLine | Plain);
    setFixedHeight(Rows);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void TDLine::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    const Skin::DevicePixels pixels(painter, rect());
    const int across = pixels.Area().width(), line = pixels.Line();
    painter.fillRect(0, 0, across, line, Style::Colour::DisabledBorder);
    painter.fillRect(0, line, across, line, Qt::white);
}
