// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/skin/CommandButton.h"

#include "ui/skin/Caption.h"
#include "ui/skin/SkinPainter.h"

#include <QPainter>
#include <QPointer>

CommandButton::CommandButton(QWidget* parent) : SkinButton(parent) {}

CommandButton::CommandButton(const QString& caption, QWidget* parent) : SkinButton(parent) {
    setText(caption);
}

void CommandButton::SetForeColor(const QColor& colour) {
    foreColour_ = colour;
    update();
}

void CommandButton::paintEvent(QPaintEvent* /*event*/) {
    constexpr Skin::Bgr disabledText = 0x94A2A5;
    QPainter painter(this);
    Skin::PaintFace(painter, rect(), Skin::CommandButtonLook(State()));
    if (text().isEmpty())
        return;
    const QFontMetrics metrics = fontMetrics();
    const auto widthOf = [&](const QString& words) { return metrics.size(Qt::TextShowMnemonic, words).width(); };
    painter.setPen(isEnabled() ? foreColour_ : Skin::ToColour(disabledText));
    painter.drawText(rect(), Qt::AlignCenter | Qt::TextShowMnemonic,
                     Skin::WrapWords(text(), width(), widthOf).join(u'\n'));
}

// Whichever button it is. This is meant.
void CommandButton::mousePressEvent(QMouseEvent* event) {
    leftWhilePressed_ = false;
    QMouseEvent left = Skin::AsLeft(*event);
    SkinButton::mousePressEvent(&left);
    Q_EMIT MouseDown(event->button(), event->modifiers(), event->pos().x(), event->pos().y());
}

// A drag that has left the button has let go of it: coming back presses nothing.
void CommandButton::mouseMoveEvent(QMouseEvent* event) {
    if (!leftWhilePressed_) {
        leftWhilePressed_ = isDown() && !rect().contains(event->pos());
        QMouseEvent left = Skin::AsLeft(*event);
        SkinButton::mouseMoveEvent(&left);
    }
    Q_EMIT MouseMove(event->buttons(), event->modifiers(), event->pos().x(), event->pos().y());
}

void CommandButton::mouseReleaseEvent(QMouseEvent* event) {
    const QPointer<CommandButton> self(this); // a click may be the end of its window
    QMouseEvent left = Skin::AsLeft(*event);
    SkinButton::mouseReleaseEvent(&left);
    if (self)
        Q_EMIT MouseUp(event->button(), event->modifiers(), event->pos().x(), event->pos().y());
}

void CommandButton::mouseDoubleClickEvent(QMouseEvent* event) {
    SkinButton::mouseDoubleClickEvent(event);
    Q_EMIT DblClick();
}
