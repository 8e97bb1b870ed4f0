// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Copying entries of the open archive into a folder on disk.
#pragma once

#include <QString>

/// What `frmBrowseForFolder` hands on.
struct ExtractionTarget {
    QString ExtractFolder;        ///< inside path that ends in a backslash
    bool ExtractCancelled = true; ///< the chooser was not left by OK
    bool RecreateFolders = true;  ///< rebuild the archive's folders below the destination
};
