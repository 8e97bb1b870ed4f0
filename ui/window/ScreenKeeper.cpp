// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/window/ScreenKeeper.h"

#include <QEvent>
#include <QLayout>
#include <QMainWindow>
#include <QPointer>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QTimer>
#include <QVBoxLayout>

#include <algorithm>

namespace {

bool IsWindow(const QWidget& widget) {
    const Qt::WindowType type = widget.windowType();
    return widget.isWindow() && (type == Qt::Window || type == Qt::Dialog);
}

QSize LeastSize(const QWidget& window) {
    if (dynamic_cast<const ShrinkingWindow*>(&window) != nullptr)
        return window.size();
    const QSize ofLayout = window.layout() != nullptr ? window.layout()->minimumSize() : QSize(0, 0);
    return ofLayout.expandedTo(window.minimumSize());
}

/// The controls keep their order for the Tab key: none of them leaves the window on its way. What scrolls is never
/// lower than the form wants it to be, and has its width as far as there is room beside the bar.
void LetScroll(QWidget& window) {
    const QPointer<QWidget> focused = window.focusWidget();
    auto* const area = new QScrollArea(&window);
    area->setFrameShape(QFrame::NoFrame);
    area->setWidgetResizable(true);
    area->setFocusPolicy(Qt::NoFocus);
    if (auto* const main = qobject_cast<QMainWindow*>(&window)) {
        QWidget* const content = main->centralWidget();
        content->setMinimumHeight(window.minimumHeight() - (window.height() - content->height()));
        area->setWidget(content);
        main->setCentralWidget(area);
    } else {
        auto* const content = new QWidget(area);
        content->setMinimumHeight(window.minimumHeight());
        area->setWidget(content);
        content->setLayout(window.layout());
        auto* const whole = new QVBoxLayout(&window);
        whole->setContentsMargins({});
        whole->addWidget(area);
    }
    area->setVisible(true);
    window.setMinimumSize(0, 0);
    window.resize(window.width() + area->verticalScrollBar()->sizeHint().width(), window.height());
    if (focused == nullptr)
        return;
    focused->setFocus();
    // Where it comes to lie is not known before the window is laid out.
    QTimer::singleShot(0, area, [area, focused] {
        if (focused != nullptr)
            area->ensureWidgetVisible(focused);
    });
}

/// The toolkit's own windows are made of their layout.
bool CanScroll(const QWidget& window) {
    return window.layout() != nullptr && !window.inherits("QMessageBox") && !window.inherits("QInputDialog") &&
           !window.inherits("QFileDialog");
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

void ScreenKeeper::Fit(QWidget& window, const QRect& screen) {
    if (window.isMaximized() || window.isFullScreen())
        return;
    const bool framed = !window.windowFlags().testFlag(Qt::FramelessWindowHint);
    const QPoint corner = framed ? QPoint(Frame.left(), Frame.top()) : QPoint();
    const QRect room = framed ? screen.marginsRemoved(Frame) : screen;
    if (const QSize least = LeastSize(window); least.boundedTo(room.size()) != least) {
        if (auto* const shrinking = dynamic_cast<ShrinkingWindow*>(&window))
            shrinking->ShrinkTo(room.size());
        else if (CanScroll(window))
            LetScroll(window);
    }
    const QRect place(window.pos() + corner, window.size());
    const QRect kept = Placed(place, LeastSize(window), room.marginsAdded(Frame));
    if (kept.size() != place.size())
        window.resize(kept.size());
    // Where nobody has placed it, the system does. A window that has no frame yet is moved without it.
    if (window.testAttribute(Qt::WA_Moved) && kept.topLeft() != place.topLeft())
        window.move(kept.topLeft() - (window.geometry().topLeft() - window.pos()));
}

bool ScreenKeeper::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Show && !event->spontaneous() && watched->isWidgetType()) {
        auto* const widget = static_cast<QWidget*>(watched);
        if (IsWindow(*widget))
            Fit(*widget, widget->screen()->availableGeometry());
    }
    return QObject::eventFilter(watched, event);
}
