// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// A long file is copied while the program lives on.
#pragma once

#include "platform/HeldFolder.h"

#include <functional>

/// Copies an open file over the file at the place, with the time of its last write; does not wait for the disk.
/// `copied` is told behind each piece how many bytes it had; what that throws leaves the target as it was. Raises 57
/// for a file that breaks off, and what WriteAside raises.
void WatchedCopy(const File& source, const FilePlace& to, const std::function<void(qint64)>& copied);
