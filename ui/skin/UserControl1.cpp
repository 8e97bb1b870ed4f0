// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/skin/UserControl1.h"

#include "ui/skin/SkinPainter.h"

#include <QKeyEvent>
#include <QPainter>
#include <QPalette>

#include <utility>

namespace {

bool IsEnter(const QKeyEvent& event) {
    return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
}

} // namespace

UserControl1::UserControl1(QWidget* parent) : SkinButton(parent) {}

void UserControl1::paintEvent(QPaintEvent* /*event*/) {
    constexpr int inset = 2;
    QPainter painter(this);
    Skin::PaintSlices(painter, rect(), Skin::UserControlLook(State()));
    painter.setPen(palette().color(QPalette::ButtonText));
    painter.drawText(rect().adjusted(inset, inset, -inset, -inset), Qt::AlignCenter | Qt::TextShowMnemonic, text());
}

// Enter clicks when it is released, and only where it was pressed: a message box that Enter has closed leaves the
// release to the button that opened it.
void UserControl1::keyPressEvent(QKeyEvent* event) {
    if (const Skin::Step step = Skin::StepOf(event->key()); step != Skin::Step::None)
        focusNextPrevChild(step == Skin::Step::Forward);
    else if (!IsEnter(*event))
        SkinButton::keyPressEvent(event);
    else if (!event->isAutoRepeat())
        enterIsDown_ = true;
}

void UserControl1::keyReleaseEvent(QKeyEvent* event) {
    if (!IsEnter(*event)) {
        SkinButton::keyReleaseEvent(event);
        return;
    }
    if (event->isAutoRepeat() || !std::exchange(enterIsDown_, false))
        return;
    click();
}

void UserControl1::focusOutEvent(QFocusEvent* event) {
    enterIsDown_ = false;
    SkinButton::focusOutEvent(event);
}
