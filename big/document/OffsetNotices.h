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

struct Written {
    OffsetShift::Shift Shift;
    int CutCount = 0; ///< entries of which a part was not saved, as the directory that was read led beside them
};

/// Behind a save, which was read back: how many entries lie how far beside, or were cut off, with the links to save
/// exactly, now or always; without them when `saveExactly` is empty. With nothing to tell the strip is closed.
void TellWritten(EditorPanes& panes, const Written& written, const std::function<void()>& saveExactly);

/// Behind a save that wrote nothing, as there is one entry only.
void TellNotSaved(EditorPanes& panes, const std::function<void()>& saveExactly);

/// Behind an opening: a shift with the link that reads it back (false when another archive is open by then), an only
/// entry with the link that shows it.
void TellOpened(EditorPanes& panes, const OffsetShift::Shift& shift, const std::function<bool()>& readBack);

/// Behind what may have left one entry only: that it is not shown, with the link that shows it. With more of them, or
/// where it is shown, the strip stays as it is.
void TellOnlyEntry(EditorPanes& panes);

} // namespace OffsetNotices
