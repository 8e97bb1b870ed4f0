// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/skin/UserControl1.h"

#include "ui/skin/SkinPainter.h"

#include <QKeyEvent>
#include <QPainter>
#include <QPalette>

UserControl1::UserControl1(QWidget* parent) : SkinButton(parent) {}

bool UserControl1::event(QEvent* event) {
    return enter_.Takes(*event, *this) || SkinButton::event(event);
}

void UserControl1::paintEvent(QPaintEvent* /*event*/) {
    constexpr int inset = 2;
    QPainter painter(this);
    Skin::PaintSlices(painter, rect(), Skin::UserControlLook(State()));
    painter.setPen(palette().color(QPalette::ButtonText));
    painter.drawText(rect().adjusted(inset, inset, -inset, -inset), Qt::AlignCenter | Qt::TextShowMnemonic, text());
}

void UserControl1::keyPressEvent(QKeyEvent* event) {
    if (const Skin::Step step = Skin::StepOf(event->key()); step != Skin::Step::None)
        focusNextPrevChild(step == Skin::Step::Forward);
    else
        SkinButton::keyPressEvent(event);
}
