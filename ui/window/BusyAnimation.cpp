// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/window/BusyAnimation.h"

#include <QPainter>

void BusyAnimation::Load(const QString& path) {
    strip_ = FrameStrip::Read(path);
    frame_ = 0;
    timer_.stop();
    if (strip_)
        timer_.start(strip_->Milliseconds(), this);
    update();
}

void BusyAnimation::timerEvent(QTimerEvent* /*event*/) {
    frame_ = (frame_ + 1) % strip_->Frames();
    update();
}

void BusyAnimation::paintEvent(QPaintEvent* /*event*/) {
    if (!strip_)
        return;
    QPainter painter(this);
    strip_->Paint(painter, rect(), frame_);
}
