// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/window/ScreenKeeper.h"

#include <QEvent>
#include <QLayout>
#include <QScreen>
#include <QWidget>

#include <algorithm>

namespace {

bool IsWindow(const QWidget& widget) {
    const Qt::WindowType type = widget.windowType();
    return widget.isWindow() && (type == Qt::Window || type == Qt::Dialog);
}

QSize LeastSize(const QWidget& window) {
    const QSize ofLayout = window.layout() != nullptr ? window.layout()->minimumSize() : QSize(0, 0);
    return ofLayout.expandedTo(window.minimumSize());
}

void Keep(QWidget& window) {
    if (window.isMaximized() || window.isFullScreen())
        return;
    const bool framed = !window.windowFlags().testFlag(Qt::FramelessWindowHint);
    const QPoint corner = framed ? QPoint(ScreenKeeper::Frame.left(), ScreenKeeper::Frame.top()) : QPoint();
    const QRect place(window.pos() + corner, window.size());
    const QRect kept = ScreenKeeper::Placed(place, LeastSize(window), window.screen()->availableGeometry());
    if (kept.size() != place.size())
        window.resize(kept.size());
    // Where nobody has placed it, the system does. A window that has no frame yet is moved without it.
    if (window.testAttribute(Qt::WA_Moved) && kept.topLeft() != place.topLeft())
        window.move(kept.topLeft() - (window.geometry().topLeft() - window.pos()));
}

} // namespace

QRect ScreenKeeper::Placed(const QRect& wanted, const QSize& least, const QRect& screen) {
    const QRect room = screen.marginsRemoved(Frame);
    QRect placed(wanted.topLeft(), wanted.size().boundedTo(room.size()).expandedTo(least));
    placed.moveRight(std::min(placed.right(), room.right()));
    placed.moveBottom(std::min(placed.bottom(), room.bottom()));
    placed.moveLeft(std::max(placed.left(), room.left()));
    placed.moveTop(std::max(placed.top(), room.top()));
    return placed;
}

bool ScreenKeeper::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Show && !event->spontaneous() && watched->isWidgetType()) {
        auto* const widget = static_cast<QWidget*>(watched);
        if (IsWindow(*widget))
            Keep(*widget);
    }
    return QObject::eventFilter(watched, event);
}
