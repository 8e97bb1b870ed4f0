// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Where the pointer is, as a control notices it: through what it is told when the pointer enters, leaves and moves, so
/// that no timer has to look.
#pragma once

#include <QMouseEvent>

class QAbstractButton;

namespace Skin {

class Pointer {
public:
    /// To be called with each event of the control before it is handled.
    void Follow(const QEvent& event, QWidget& control);

    /// Also right while a button is held and the pointer is outside, when no control is left or entered.
    [[nodiscard]] bool IsOver(const QWidget& control) const;

private:
    bool outside_ = false;
};

/// The event as the left button's, for controls that other buttons press, too.
QMouseEvent AsLeft(const QMouseEvent& event);

/// Tab or Shift+Tab for an arrow key: whether the focus goes forward. Nothing for other keys.
enum class Step { None, Forward, Back };
Step StepOf(int key);

/// What every control of the family needs: notice of the pointer, and its name as its caption until it is given one.
void Equip(QAbstractButton& control);

} // namespace Skin
