// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/skin/ProgressBar.h"

#include "ui/skin/Bar.h"
#include "ui/skin/SkinPainter.h"

#include <QPainter>

namespace {
constexpr int barHeight = 20;
} // namespace

ProgressBar::ProgressBar(QWidget* parent) : QProgressBar(parent) {
    setTextVisible(false);
    setValue(0);
}

QSize ProgressBar::sizeHint() const {
    constexpr int blocks = 20;
    return {2 * Skin::BarEnd + blocks * Skin::BlockWidth, barHeight};
}

QSize ProgressBar::minimumSizeHint() const {
    return {2 * Skin::BarEnd + Skin::BlockWidth, barHeight};
}

void ProgressBar::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    Skin::PaintProgress(painter, rect(), value());
}
