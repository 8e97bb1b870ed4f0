// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/skin/EnterKey.h"

#include <QAbstractButton>
#include <QKeyEvent>

#include <utility>

bool Skin::IsEnter(int key) {
    return key == Qt::Key_Return || key == Qt::Key_Enter;
}

bool Skin::EnterKey::Takes(const QEvent& event, QAbstractButton& button) {
    if (event.type() == QEvent::FocusOut)
        isDown_ = false;
    if (event.type() != QEvent::KeyPress && event.type() != QEvent::KeyRelease)
        return false;
    const auto& key = static_cast<const QKeyEvent&>(event);
    if (!IsEnter(key.key()))
        return false;
    if (key.isAutoRepeat())
        return true;
    if (event.type() == QEvent::KeyPress)
        isDown_ = true;
    else if (std::exchange(isDown_, false))
        button.click();
    return true;
}
