// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The menu of the files of a kind that were open, the last one first.
#pragma once

#include <QString>

#include <functional>

class QMenu;

namespace RecentFiles {

/// Fills the menu anew whenever it opens. `open` gets the inside path of the file that is chosen. The kind is that of
/// LastTime.
void Lead(QMenu& menu, const QString& kind, const std::function<void(const QString& path)>& open);

} // namespace RecentFiles
