// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The file as it was before, which a save that was killed left beside the one that it was writing. Nothing of either
/// is ever deleted here: what is in the way takes a name of its own.
#pragma once

#include <QString>

namespace LeftBeside {

/// A name in the folder of `path` that nothing stands under: "name (2).csf" and so on.
[[nodiscard]] QString FreeNameFor(const QString& path);

/// Puts `left` in the place of `path`. Returns where that is which stood there; empty where nothing did. Raises what
/// the disk raises; both files are as they were then.
QString PutBack(const QString& path, const QString& left);

/// Gives `left` a name of its own, so that it is in no save's way; returns it. Raises what the disk raises.
QString KeepBoth(const QString& path, const QString& left);

} // namespace LeftBeside
