// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The pictures among the rows of the list, and what is told of the one that is shown.
#pragma once

#include "big/document/FileList.h"
#include "big/document/Preview.h"

namespace PictureRows {

/// Where an entry stands among the pictures of the list.
struct Place {
    int Number = 0; ///< from 1; 0 when it is none of them
    int Count = 0;
    int Before = -1; ///< the row of the picture before it; -1 without one
    int Behind = -1; ///< likewise; the first picture for what is none of them
};

Place PlaceOf(const FileList& list, int entry);

/// Size, format and mipmaps of the picture, or that it can't be read; empty as long as it has not come.
QString Facts(const PreviewState& state);

} // namespace PictureRows
