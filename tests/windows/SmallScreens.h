// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Screens that are still in use, with less room than the windows would like.
#pragma once

#include "ui/window/ScreenKeeper.h"

#include <QLayout>
#include <QWidget>

/// Whether the window can shrink to 800 x 600 and to 1920 x 1080 at scale 2, each less its frame.
inline bool FitsSmallScreens(const QWidget& window) {
    const QSize least = window.minimumSize().expandedTo(window.layout()->minimumSize());
    const auto fits = [&](const QSize& screen) {
        return least.boundedTo(screen.shrunkBy(ScreenKeeper::Frame)) == least;
    };
    return fits({800, 600}) && fits({960, 540});
}
