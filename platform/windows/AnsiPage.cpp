// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/AnsiPage.h"

#include "platform/windows/System.h"

AnsiPage SystemAnsiPage() {
    CPINFO information{};
    if (GetCPInfo(CP_ACP, &information) == 0 || information.MaxCharSize != 1)
        return Windows1252Page();
    AnsiPage page{};
    for (std::size_t byte = 0; byte < page.size(); ++byte) {
        const char narrow = static_cast<char>(byte);
        wchar_t wide = 0;
        const bool known = MultiByteToWideChar(CP_ACP, MB_ERR_INVALID_CHARS, &narrow, 1, &wide, 1) == 1;
        page.at(byte) = known ? static_cast<char16_t>(wide) : static_cast<char16_t>(byte);
    }
    return page;
}
