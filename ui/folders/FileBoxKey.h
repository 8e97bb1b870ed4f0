// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// A node of the folder tree carries its meaning in its key: marks between asterisks, then the path.
#pragma once

#include <QString>

namespace FileBoxKey {

inline constexpr QStringView Root = u"*root*";
inline constexpr QStringView Documents = u"*MyDocuments*";
inline constexpr QStringView Network = u"*NetHood*";
inline constexpr QStringView HardDrive = u"*HardDrive*";
inline constexpr QStringView CDRom = u"*CDRom*";
inline constexpr QStringView Floppy = u"*Floppy*";
inline constexpr QStringView LanDrive = u"*LanDrive*";
inline constexpr QStringView OpenFolder = u"*OpenFolder*";
inline constexpr QStringView CloseFolder = u"*CloseFolder*";
inline constexpr QStringView File = u"*File*";
inline constexpr QStringView Placeholder = u"***BIDON***";

/// The key of a path. An asterisk in the path itself, which only some systems allow, travels as U+F02A, since the last
/// asterisk of a key is where its path begins.
QString Of(QStringView mark, const QString& path);

/// What stands after the last asterisk.
QString PathOf(const QString& key);

/// Up to the last asterisk.
QString MarkOf(const QString& key);

/// A placeholder's key: its mark before the parent's whole key.
QString PlaceholderOf(const QString& parentKey);

bool IsPlaceholder(const QString& key);

} // namespace FileBoxKey
