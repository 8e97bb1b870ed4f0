// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Where the program keeps what is the user's and is no setting.
#pragma once

#include <QString>

/// The user's own data folder, an inside path without a trailing backslash: the one that BRINDOCK_REGISTRY's file lies
/// in; without that variable the one of the registry file, or on Windows "Brindock 2005" in the local application data.
/// It need not exist.
QString OwnFolder();

/// The user's folders for what may go at any time, and for what tells what happened: as OwnFolder where
/// BRINDOCK_REGISTRY is set and on Windows, else below the XDG base directories.
QString OwnCacheFolder();
QString OwnStateFolder();
