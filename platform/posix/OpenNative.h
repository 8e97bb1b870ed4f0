// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// How every file is opened.
#pragma once

#include "platform/File.h"

/// Opens the native path `path`, one that is not absolute in the folder that is open under the descriptor (AT_FDCWD for
/// the current one). `name` is for messages. Raises like File::Open.
File OpenNative(int folder, const QByteArray& path, const QString& name, File::Access access);
