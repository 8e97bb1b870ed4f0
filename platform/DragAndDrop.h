// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// What systems do differently while files are dragged out of a window.
#pragma once

namespace DragAndDrop {

/// Whether the left mouse button is down at this moment. `seen` is what the window's own events tell; where a drag
/// keeps those events from the window, the system itself is asked.
bool LeftButtonDown(bool seen);

/// True where a drag's call returns only when the target has taken the files. Elsewhere the target copies them later.
bool EndsWithTheCopy();

} // namespace DragAndDrop
