// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/DragAndDrop.h"

bool DragAndDrop::LeftButtonDown(bool seen) {
    return seen;
}

bool DragAndDrop::EndsWithTheCopy() {
    return false;
}
