// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Copying entries of the open archive into a folder on disk.
#pragma once

#include "big/format/mBIG.h"

#include <QString>

#include <vector>

/// What `frmBrowseForFolder` hands on.
struct ExtractionTarget {
    QString ExtractFolder;        ///< inside path that ends in a backslash
    bool ExtractCancelled = true; ///< the chooser was not left by OK
    bool RecreateFolders = true;  ///< rebuild the archive's folders below the destination
};

namespace Extraction {

/// The most indices that a list of entries takes.
inline constexpr std::size_t MostIndices = 65537;

/// Appends an index as long as there is room.
void Take(std::vector<qint32>& extractList, qint32 index);

/// Appends the indices of the table's entries whose name contains the key anywhere, deleted ones included. An empty
/// name contains nothing, not even the empty key.
void TakeFolder(std::vector<qint32>& extractList, const QString& key, Qt::CaseSensitivity compare);

/// Appends the indices of all the table's entries.
void TakeAll(std::vector<qint32>& extractList);

/// Whether bytes of old entries would come out of a file that is not what the table was read from any more: another
/// program has changed, replaced or removed it.
bool WouldBeWrong(const std::vector<qint32>& extractList);

/// Writes the entries in the list's order to files below `ExtractFolder`, which is made when missing, out of the
/// archive `BigFileName`. The progress window is shown and unloaded; each entry yields twice to the event loop. A file
/// that stands there already brings a question, Cancel and the window's button end the run. Every name goes through the
/// gateway: one that it refuses counts as a target that can't be written. Such entries are passed over. With
/// `showCompletion` the message at the end is told, then whatever was passed over or cut short is listed with its
/// reason, and what an entry of no bytes kept from being extracted is offered.
void DoExtract(const std::vector<qint32>& extractList, const ExtractionTarget& target, bool showCompletion);

} // namespace Extraction
