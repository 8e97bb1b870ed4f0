// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/skin/TDLine.h"

#include "ui/look/Style.h"

#include <QPainter>

TDLine::TDLine(QWidget* parent) : QFrame(parent) {
    setFrameStyle(HLine | Plain);
    setFixedHeight(Rows);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void TDLine::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.fillRect(0, 0, width(), 1, Style::Colour::DisabledBorder);
    painter.fillRect(0, 1, width(), 1, Qt::white);
}
