// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// A long file is copied while the program lives on.
#pragma once

#include <QString>

#include <functional>

class File;

/// Copies a file (inside path, and opened) over the file at the target, whose case is known to be right, with the time
/// of its last write; does not wait for the disk. `copied` is told behind each piece how many bytes it had; what that
/// throws leaves the target as it was. Raises 57 for a file that breaks off, and what WriteAside raises.
void WatchedCopy(const QString& from, const File& source, const QString& to, const std::function<void(qint64)>& copied);
