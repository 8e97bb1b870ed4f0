// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/skin/SkinButton.h"

#include "ui/skin/SkinPainter.h"

SkinButton::SkinButton(QWidget* parent) : QPushButton(parent) {
    Skin::Equip(*this);
}

Skin::ButtonState SkinButton::State() const {
    return {.Enabled = isEnabled(), .Hover = pointer_.IsOver(*this), .Focus = hasFocus(), .Pressed = isDown()};
}

QSize SkinButton::sizeHint() const {
    return Skin::ButtonSize(fontMetrics().size(Qt::TextShowMnemonic, text()));
}

QSize SkinButton::minimumSizeHint() const {
    return sizeHint();
}

bool SkinButton::event(QEvent* event) {
    pointer_.Follow(*event, *this);
    return QPushButton::event(event);
}

// Whichever button it is. This is meant.
void SkinButton::mousePressEvent(QMouseEvent* event) {
    QMouseEvent left = Skin::AsLeft(*event);
    QPushButton::mousePressEvent(&left);
}

void SkinButton::mouseMoveEvent(QMouseEvent* event) {
    QMouseEvent left = Skin::AsLeft(*event);
    QPushButton::mouseMoveEvent(&left);
}

void SkinButton::mouseReleaseEvent(QMouseEvent* event) {
    QMouseEvent left = Skin::AsLeft(*event);
    QPushButton::mouseReleaseEvent(&left);
}
