// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The text of a text entry, to be read beside the list.
#pragma once

#include "big/format/mBIG.h"

#include <QString>

namespace TextPreview {

/// Longer texts are shown up to here, in bytes.
inline constexpr qint64 Most = qint64{2} * 1024 * 1024;

/// Whether the extension of a name is that of a text that is shown: INI, TXT, STR, WND, XML or LUA.
bool IsShown(const QString& name);

/// The text of an entry of the open archive, of a mark's encoding or the ANSI code page's; empty for one that is none,
/// or can't be read.
QString Of(const BigEntry& entry);

} // namespace TextPreview
