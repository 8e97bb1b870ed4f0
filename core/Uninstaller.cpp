// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/Uninstaller.h"

namespace {

Uninstaller* inUse = nullptr;

} // namespace

Uninstaller* Uninstaller::Current() {
    return inUse;
}

void Uninstaller::Use(Uninstaller* uninstaller) {
    inUse = uninstaller;
}
