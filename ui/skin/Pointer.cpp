// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/skin/Pointer.h"

#include <QAbstractButton>

void Skin::Pointer::Follow(const QEvent& event, QWidget& control) {
    bool outside = outside_;
    if (event.type() == QEvent::Enter || event.type() == QEvent::Leave)
        outside = false;
    else if (event.type() == QEvent::MouseMove)
        outside = !control.rect().contains(static_cast<const QMouseEvent&>(event).position().toPoint());
    if (outside == outside_)
        return;
    outside_ = outside;
    control.update();
}

bool Skin::Pointer::IsOver(const QWidget& control) const {
    return control.underMouse() && !outside_;
}

QMouseEvent Skin::AsLeft(const QMouseEvent& event) {
    const Qt::MouseButtons held = event.buttons() == Qt::NoButton ? Qt::NoButton : Qt::LeftButton;
    const Qt::MouseButton button = event.button() == Qt::NoButton ? Qt::NoButton : Qt::LeftButton;
    return {event.type(), event.position(),  event.scenePosition(), event.globalPosition(), button,
            held,         event.modifiers(), event.pointingDevice()};
}

Skin::Step Skin::StepOf(int key) {
    switch (key) {
    case Qt::Key_Left:
    case Qt::Key_Up:
        return Step::Back;
    case Qt::Key_Right:
    case Qt::Key_Down:
        return Step::Forward;
    default:
        return Step::None;
    }
}

void Skin::Equip(QAbstractButton& control) {
    control.setAttribute(Qt::WA_Hover);
    control.setMouseTracking(true);
    QObject::connect(&control, &QObject::objectNameChanged, &control, [&control](const QString& name) {
        if (control.text().isEmpty())
            control.setText(name);
    });
}
