// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Keeps every window on its screen: none opens larger than the room there is, or with its title or its menus outside.
/// What needs more room than there is scrolls.
#pragma once

#include <QObject>
#include <QRect>

class QWidget;

/// A window without a layout, which knows itself how it becomes smaller.
class ShrinkingWindow {
public:
    virtual ~ShrinkingWindow() = default;

    /// Called before the window is shown where the screen has less room.
    virtual void ShrinkTo(const QSize& room) = 0;
};

class ScreenKeeper : public QObject {
    Q_OBJECT
public:
    using QObject::QObject;

    /// About what a window's title and borders take, which are not there before it is shown.
    static constexpr QMargins Frame{8, 40, 8, 8};

    /// Where a window's own area goes whose wish is `wanted`: shrunk to the room that the frame leaves of `screen`, and
    /// moved into it. What can't shrink below `least` keeps its upper left corner there.
    static QRect Placed(const QRect& wanted, const QSize& least, const QRect& screen);

    /// Makes a window, shown or not, fit a screen.
    static void Fit(QWidget& window, const QRect& screen);

    /// An application's filter: looks at each window as it is shown.
    bool eventFilter(QObject* watched, QEvent* event) override;
};
