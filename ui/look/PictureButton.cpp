// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/look/PictureButton.h"

#include "ui/look/Style.h"

#include <QMouseEvent>
#include <QPainter>

namespace {
constexpr int sideRoom = 6;
} // namespace

PictureButton::PictureButton(QWidget* parent) : QPushButton(parent) {
    setMouseTracking(true);
    setCursor(Qt::PointingHandCursor);
    setFlat(true);
}

void PictureButton::SetTextColour(const QColor& colour) {
    if (colour == colour_)
        return;
    colour_ = colour;
    update();
}

QSize PictureButton::sizeHint() const {
    const QSize text = fontMetrics().size(Qt::TextShowMnemonic, this->text());
    return {text.width() + 2 * sideRoom, text.height() + 4};
}

// A disabled button is part of the picture: the pointer acts on what lies behind it.
bool PictureButton::event(QEvent* event) {
    const bool ofPointer = event->type() == QEvent::MouseMove || event->type() == QEvent::MouseButtonPress ||
                           event->type() == QEvent::MouseButtonRelease;
    if (isEnabled() || !ofPointer)
        return enter_.Takes(*event, *this) || QPushButton::event(event);
    event->ignore();
    return false;
}

void PictureButton::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (hasFocus()) {
        painter.setPen(QPen(Style::Colour::FocusOnPicture, 1.5));
        painter.setBrush(Style::Colour::FocusOnPictureFill);
        painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), 4, 4);
    }
    painter.setPen(isEnabled() ? colour_ : Style::Colour::DisabledOnPicture);
    painter.drawText(rect().adjusted(sideRoom, 0, -sideRoom, 0),
                     Qt::AlignLeft | Qt::AlignVCenter | Qt::TextShowMnemonic, text());
}

void PictureButton::mouseMoveEvent(QMouseEvent* event) {
    QPushButton::mouseMoveEvent(event);
    event->accept();
    Q_EMIT MouseMoved();
}
