// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// How every file is opened.
#pragma once

#include "platform/File.h"

#include <sys/stat.h>

/// Opens the native path `path`, one that is not absolute in the folder that is open under the descriptor (AT_FDCWD for
/// the current one). `name` is for messages, `more` are flags of the system's besides. Raises like File::Open.
File OpenNative(int folder, const QByteArray& path, const QString& name, File::Access access, int more = 0);

/// A file's state out of what the system tells of it.
FileState StateFrom(const struct stat& status);
