// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The 256 characters of an 8-bit code page.
#pragma once

#include <array>

using AnsiPage = std::array<char16_t, 256>;

/// Windows-1252, its unassigned bytes standing for the control characters of the same number.
AnsiPage Windows1252Page();

/// The page that the games' tools on this system use.
AnsiPage SystemAnsiPage();
