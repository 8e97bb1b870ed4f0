// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/AnsiPage.h"

AnsiPage SystemAnsiPage() {
    return Windows1252Page();
}
