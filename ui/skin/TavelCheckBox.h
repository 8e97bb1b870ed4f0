// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The family's check box.
#pragma once

#include "ui/skin/TickControl.h"

#include <QCheckBox>

class TavelCheckBox : public TickControl<TavelCheckBox, QCheckBox> {
    Q_OBJECT
    Q_PROPERTY(int Value READ Value WRITE SetValue NOTIFY ValueChanged)
    Q_PROPERTY(QColor BackColor READ BackColor WRITE SetBackColor)
    Q_PROPERTY(QColor ForeColor READ ForeColor WRITE SetForeColor)
    Q_PROPERTY(int BackStyle READ BackStyle WRITE SetBackStyle)
    Q_PROPERTY(qulonglong hWnd READ WindowHandle)
public:
    explicit TavelCheckBox(QWidget* parent = nullptr);

    /// Asks with ValueChanging first. A host that sets the checked state is not asked.
    void SetValue(int value);

Q_SIGNALS:
    /// Somebody who sets Cancel leaves the value as it is.
    void ValueChanging(bool& Cancel);
    void ValueChanged(int Value);
    void KeyDown(int KeyCode, Qt::KeyboardModifiers Shift);
    void KeyUp(int KeyCode, Qt::KeyboardModifiers Shift);
    void KeyPress(const QString& Text);
    void MouseDown(Qt::MouseButton Button, Qt::KeyboardModifiers Shift, int X, int Y);
    void MouseMove(Qt::MouseButtons Button, Qt::KeyboardModifiers Shift, int X, int Y);
    void MouseUp(Qt::MouseButton Button, Qt::KeyboardModifiers Shift, int X, int Y);

protected:
    void nextCheckState() override;
};
