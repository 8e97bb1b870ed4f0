// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/DragAndDrop.h"

#include "platform/windows/System.h"

bool DragAndDrop::LeftButtonDown(bool /*seen*/) {
    constexpr SHORT isDown = static_cast<SHORT>(0x8000);
    return (GetAsyncKeyState(VK_LBUTTON) & isDown) != 0;
}

bool DragAndDrop::EndsWithTheCopy() {
    return true;
}
