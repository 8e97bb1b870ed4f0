// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The bar at the head of a group of a side menu, with a mark that tells whether the group is folded: checked is open.
#pragma once

#include "ui/skin/EnterKey.h"

#include <QAbstractButton>

class xpMenu : public QAbstractButton {
    Q_OBJECT
    Q_PROPERTY(QString Caption READ text WRITE SetCaption NOTIFY CaptionChanged)
public:
    explicit xpMenu(QWidget* parent = nullptr);

    void SetCaption(const QString& caption);

    [[nodiscard]] QSize sizeHint() const override;

Q_SIGNALS:
    void CaptionChanged(const QString& Caption);
    void KeyDown(int KeyCode, Qt::KeyboardModifiers Shift);
    void KeyUp(int KeyCode, Qt::KeyboardModifiers Shift);
    void KeyPress(const QString& Text);
    void MouseDown(Qt::MouseButton Button, Qt::KeyboardModifiers Shift, int X, int Y);
    void MouseMove(Qt::MouseButtons Button, Qt::KeyboardModifiers Shift, int X, int Y);
    void MouseUp(Qt::MouseButton Button, Qt::KeyboardModifiers Shift, int X, int Y);

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    void PaintBar(QPainter& painter) const;
    void PaintMark(QPainter& painter) const;

    Skin::EnterKey enter_;
};
