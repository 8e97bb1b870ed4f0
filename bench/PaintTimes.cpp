// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "bench/PaintTimes.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QEvent>
#include <QWidget>

#include <algorithm>
#include <cstdio>
#include <cstdlib>

PaintTimes::PaintTimes(QWidget& shown) {
    shown.installEventFilter(this);
    QApplication::processEvents();
}

void PaintTimes::Time(const std::function<void()>& action) {
    painted_ = false;
    QElapsedTimer timer;
    timer.start();
    action();
    while (!painted_)
        QApplication::processEvents();
    times_.push_back(static_cast<double>(timer.nsecsElapsed()) / 1e6);
}

void PaintTimes::PrintAndEnd() {
    std::ranges::sort(times_);
    std::printf("%.1f %.1f\n", times_.at(times_.size() / 2), times_.back());
    std::fflush(stdout);
    std::_Exit(0);
}

bool PaintTimes::eventFilter(QObject* watched, QEvent* event) {
    painted_ = painted_ || event->type() == QEvent::Paint;
    return QObject::eventFilter(watched, event);
}
