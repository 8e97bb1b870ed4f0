// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// A Qt Widgets program with nothing in its window: what any start costs.
#include "bench/FirstPaint.h"

#include <QApplication>
#include <QWidget>

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    FirstPaint firstPaint;
    application.installEventFilter(&firstPaint);
    QWidget window;
    window.resize(800, 600);
    window.show();
    return QApplication::exec();
}
