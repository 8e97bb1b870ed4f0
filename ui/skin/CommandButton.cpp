// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/skin/CommandButton.h"

#include "ui/look/Style.h"
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
    QPainter painter(this);
    Skin::ButtonState state = State();
    state.Pressed = state.Pressed || clicking_;
    Skin::PaintFace(painter, rect(), Skin::CommandButtonLook(state));
    if (text().isEmpty())
        return;
    const QFontMetrics metrics = fontMetrics();
    const auto widthOf = [&](const QString& words) { return metrics.size(Qt::TextShowMnemonic, words).width(); };
    painter.setPen(isEnabled() ? foreColour_ : Style::Colour::DisabledText);
    painter.drawText(rect(), Qt::AlignCenter | Qt::TextShowMnemonic,
                     Skin::WrapWords(text(), width(), widthOf).join(u'\n'));
}

// Whoever is told of an event may end the button, and its window with it.
void CommandButton::mousePressEvent(QMouseEvent* event) {
    const QPointer<CommandButton> self(this);
    leftWhilePressed_ = false;
    SkinButton::mousePressEvent(event);
    if (self)
        Q_EMIT MouseDown(event->button(), event->modifiers(), event->pos().x(), event->pos().y());
}

// A drag that has left the button has let go of it: coming back presses nothing.
void CommandButton::mouseMoveEvent(QMouseEvent* event) {
    const QPointer<CommandButton> self(this);
    if (!leftWhilePressed_) {
        leftWhilePressed_ = isDown() && !rect().contains(event->pos());
        SkinButton::mouseMoveEvent(event);
    }
    if (self)
        Q_EMIT MouseMove(event->buttons(), event->modifiers(), event->pos().x(), event->pos().y());
}

// The toolkit's button is up when it tells of its click, this one only behind it.
void CommandButton::mouseReleaseEvent(QMouseEvent* event) {
    const QPointer<CommandButton> self(this);
    clicking_ = isDown();
    SkinButton::mouseReleaseEvent(event);
    if (!self)
        return;
    clicking_ = false;
    update();
    Q_EMIT MouseUp(event->button(), event->modifiers(), event->pos().x(), event->pos().y());
}

void CommandButton::mouseDoubleClickEvent(QMouseEvent* event) {
    const QPointer<CommandButton> self(this);
    SkinButton::mouseDoubleClickEvent(event);
    if (self)
        Q_EMIT DblClick();
}
