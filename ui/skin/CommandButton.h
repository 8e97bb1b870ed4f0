// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// A push button whose face is painted line by line, with a caption that is wrapped by words.
#pragma once

#include "ui/skin/SkinButton.h"

#include <QColor>

class CommandButton : public SkinButton {
    Q_OBJECT
    Q_PROPERTY(QColor ForeColor READ ForeColor WRITE SetForeColor)
public:
    explicit CommandButton(QWidget* parent = nullptr);
    explicit CommandButton(const QString& caption, QWidget* parent = nullptr);

    /// The caption's colour while the button is enabled.
    [[nodiscard]] QColor ForeColor() const { return foreColour_; }

    void SetForeColor(const QColor& colour);

Q_SIGNALS:
    void DblClick();
    void MouseDown(Qt::MouseButton Button, Qt::KeyboardModifiers Shift, int X, int Y);
    void MouseMove(Qt::MouseButtons Button, Qt::KeyboardModifiers Shift, int X, int Y);
    /// Behind the click.
    void MouseUp(Qt::MouseButton Button, Qt::KeyboardModifiers Shift, int X, int Y);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;

private:
    QColor foreColour_ = Qt::black;
    bool leftWhilePressed_ = false;
    bool clicking_ = false; ///< while it is told of the click that a mouse button has ended
};
