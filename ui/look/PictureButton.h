// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// A text on a picture that acts as a button: no face, only its caption in the colour of the moment.
#pragma once

#include "ui/skin/EnterKey.h"

#include <QColor>
#include <QPushButton>

class PictureButton : public QPushButton {
    Q_OBJECT
public:
    explicit PictureButton(QWidget* parent = nullptr);

    /// The caption's colour; a disabled button is drawn in a faint grey instead.
    [[nodiscard]] QColor TextColour() const { return colour_; }

    void SetTextColour(const QColor& colour);

    [[nodiscard]] QSize sizeHint() const override;

Q_SIGNALS:
    /// The pointer moves over the button, which is enabled.
    void MouseMoved();

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;

private:
    QColor colour_ = Qt::white;
    Skin::EnterKey enter_;
};
