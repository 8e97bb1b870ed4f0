// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// What stands in one folder, as the system lists it.
#pragma once

#include <QString>

#include <vector>

struct FolderEntry {
    QString Name;
    qint64 Size = 0;       ///< bytes; 0 for a folder
    bool IsFolder = false; ///< a link to a folder counts as one
    bool IsPlain = true;   ///< a file with bytes of its own: no pipe, socket, device or link to nowhere
};

/// The entries in the directory's order, without "." and "..". Raises 76 with its name when the folder can't be listed,
/// or not to its end.
std::vector<FolderEntry> FolderEntries(const QString& folder);

/// Tells one folder from every other, also by another path or through a link; empty when it does not exist.
QByteArray FolderIdentity(const QString& folder);
