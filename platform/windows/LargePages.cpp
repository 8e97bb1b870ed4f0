// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/LargePages.h"

// Large pages are a privilege there that users don't have.
void PreferLargePages(QByteArray& bytes) {
    static_cast<void>(bytes);
}
