// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Small files as a whole, by the bytes of their native path.
#pragma once

#include <QByteArray>

#include <optional>

namespace WholeFile {

/// The file's bytes. Nothing when it is missing, no plain file, or can't be read.
std::optional<QByteArray> Read(const QByteArray& path);

/// Puts the bytes aside in the same folder, waits until they are on the disk, and renames them over the file, whose
/// permissions and links are kept. False, with everything as it was, when that fails or the file is write-protected.
bool Replace(const QByteArray& path, const QByteArray& bytes);

} // namespace WholeFile
