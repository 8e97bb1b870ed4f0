// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Pictures of controls, and the pointer over them.
#pragma once

#include <QImage>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QWidget>
#include <QtTest/QTest>

#include <cstdlib>

/// The control as a screen of that density shows it, on its window's ground.
inline QImage PictureOf(QWidget& control, qreal density = 1) {
    QImage picture((QSizeF(control.size()) * density).toSize(), QImage::Format_RGB32);
    picture.setDevicePixelRatio(density);
    picture.fill(control.window()->palette().color(QPalette::Window));
    control.render(&picture, {}, {}, QWidget::DrawChildren);
    picture.setDevicePixelRatio(1);
    return picture;
}

inline QColor PixelOf(QWidget& control, QPoint place) {
    return PictureOf(control).pixelColor(place);
}

/// Whether a text of that colour is in the picture: its strokes are smoothed, and few of their pixels have all of it.
inline bool HasColour(const QImage& picture, const QColor& colour) {
    constexpr int tolerance = 48;
    const auto isNear = [&](const QColor& seen) {
        return std::abs(seen.red() - colour.red()) < tolerance && std::abs(seen.green() - colour.green()) < tolerance &&
               std::abs(seen.blue() - colour.blue()) < tolerance;
    };
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x)
            if (isNear(picture.pixelColor(x, y)))
                return true;
    return false;
}

/// Moves the pointer over the middle of a control, out of the one where it was.
inline void PointAt(QWidget& control) {
    QTest::mouseMove(&control, control.rect().center());
    QCoreApplication::processEvents();
}

/// Moves the pointer with the left button held, as the control that was pressed is told of it.
inline void Drag(QWidget& control, QPoint place) {
    const QPointF global = control.mapToGlobal(place);
    QMouseEvent move(QEvent::MouseMove, QPointF(place), control.mapTo(control.window(), QPointF(place)), global,
                     Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&control, &move);
}

/// Enter, held until it has repeated itself.
inline void HoldEnter(QWidget& control) {
    const auto send = [&](QEvent::Type type, bool repeated) {
        QKeyEvent key(type, Qt::Key_Return, Qt::NoModifier, QStringLiteral("\r"), repeated);
        QCoreApplication::sendEvent(&control, &key);
    };
    send(QEvent::KeyPress, false);
    for (int i = 0; i < 3; ++i) {
        send(QEvent::KeyRelease, true);
        send(QEvent::KeyPress, true);
    }
    send(QEvent::KeyRelease, false);
}
