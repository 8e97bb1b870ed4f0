// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "bench/FirstPaint.h"

#include <QCoreApplication>
#include <QEvent>
#include <QTimer>

bool FirstPaint::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Paint && !painted_) {
        painted_ = true;
        // All widgets of a window are painted in one go; what follows it in the queue comes after the whole picture.
        QTimer::singleShot(0, [] { QCoreApplication::quit(); });
    }
    return QObject::eventFilter(watched, event);
}
