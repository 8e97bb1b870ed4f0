// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// What the window's strip tells of data that do not lie where an archive's directory says, and of entries that are not
/// shown or not saved, each with a way that loses nothing.
#pragma once

#include "big/document/EditorPanes.h"
#include "big/format/OffsetShift.h"

#include <functional>

namespace OffsetNotices {

/// Whether archives are saved with exact offsets unless their own choice is another.
[[nodiscard]] bool IsExactByDefault();

/// Behind a save, which was read back: how many entries lie how far beside, with the links to save exactly, now or
/// always. Without a shift the strip is closed.
void TellWritten(EditorPanes& panes, const OffsetShift::Shift& shift, const std::function<void()>& saveExactly);

/// Behind a save that wrote nothing, as there is one entry only.
void TellNotSaved(EditorPanes& panes, const std::function<void()>& saveExactly);

/// Behind an opening: a shift with the link that reads it back, an only entry with the link that shows it.
void TellOpened(EditorPanes& panes);

} // namespace OffsetNotices
