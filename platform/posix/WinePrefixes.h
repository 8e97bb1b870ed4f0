// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The Wine prefixes on the machine.
#pragma once

#include <QStringList>

namespace WinePrefixes {

/// Native folders, each once, in the order in which they are looked at: those that BRINDOCK_WINE_PREFIXES names (none
/// when it is empty), or where it isn't set WINEPREFIX, ~/.wine, and those of Steam, Lutris, Heroic and Bottles.
QStringList Find();

/// The prefix that Wine itself would take: the first that BRINDOCK_WINE_PREFIXES names (none when it is empty), or
/// where it isn't set WINEPREFIX, else ~/.wine. Empty when there is no such folder.
QString Default();

} // namespace WinePrefixes
