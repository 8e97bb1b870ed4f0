// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The family's option button: one of those in its window that bear the same group's number.
#pragma once

#include "ui/skin/TickControl.h"

#include <QRadioButton>

class TavelOptionButton : public TickControl<TavelOptionButton, QRadioButton> {
    Q_OBJECT
    Q_PROPERTY(int Value READ Value WRITE SetValue NOTIFY ValueChanged)
    Q_PROPERTY(QColor BackColor READ BackColor WRITE SetBackColor)
    Q_PROPERTY(QColor ForeColor READ ForeColor WRITE SetForeColor)
    Q_PROPERTY(int BackStyle READ BackStyle WRITE SetBackStyle)
    Q_PROPERTY(qulonglong hWnd READ WindowHandle)
    Q_PROPERTY(short Group READ Group WRITE SetGroup NOTIFY GroupChanged)
public:
    explicit TavelOptionButton(QWidget* parent = nullptr);

    /// 1 gives all others of the group the value 0 before.
    void SetValue(int value);

    [[nodiscard]] short Group() const { return group_; }

    void SetGroup(short group);

Q_SIGNALS:
    void ValueChanging();
    void GroupChanged(short Group);
    void ValueChanged(int Value);
    void KeyDown(int KeyCode, Qt::KeyboardModifiers Shift);
    void KeyUp(int KeyCode, Qt::KeyboardModifiers Shift);
    void KeyPress(const QString& Text);
    void MouseDown(Qt::MouseButton Button, Qt::KeyboardModifiers Shift, int X, int Y);
    void MouseMove(Qt::MouseButtons Button, Qt::KeyboardModifiers Shift, int X, int Y);
    void MouseUp(Qt::MouseButton Button, Qt::KeyboardModifiers Shift, int X, int Y);

protected:
    void nextCheckState() override;
    void checkStateSet() override;

private:
    void ClearOthers();

    short group_ = 0;
};
