// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// What the desktop offers to browse: special folders, drives, and a folder's entries with what they lead to.
#pragma once

#include <QString>

#include <functional>
#include <vector>

namespace ShellFolders {

enum class DriveKind { Removable, Fixed, Remote, CdRom };

struct Drive {
    QString Path; ///< inside path that ends in a backslash
    QString Text; ///< for a person
    DriveKind Kind = DriveKind::Fixed;
};

struct Place {
    QString Path; ///< inside path without a trailing backslash
    QString Text; ///< for a person
};

struct Entry {
    QString Name;
    QString Target;        ///< inside path of what a shortcut or a symbolic link leads to; empty for everything else
    bool IsFolder = false; ///< itself, or by the link that it is; a shortcut is a file
    bool IsHidden = false;
    bool TargetIsFolder = false;
};

/// The user's documents; empty when there are none.
QString Documents();

/// The folder of the user's network places; empty when there is none.
QString NetworkPlaces();

/// Further places in which people of this system keep their files: the home folder on Linux, none on Windows.
std::vector<Place> OtherPlaces();

/// The drives in the system's order; those of an unknown kind are left out.
std::vector<Drive> Drives();

/// Hands on each entry of a folder until `take` says no, without "." and "..". Nothing for a folder that can't be
/// listed, such as a drive without a medium.
void ForEachEntry(const QString& folder, const std::function<bool(const Entry&)>& take);

} // namespace ShellFolders
