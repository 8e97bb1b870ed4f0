// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The entry to the update client, what its module and its window share, and where its settings stand.
#pragma once

#include <QString>

#include <functional>

namespace mUpdater {

/// The kinds of update.
inline constexpr int Patch = 0;
inline constexpr int NewRelease = 1;

extern bool AutoUpdateCheck; ///< the check was started by the program, not by the user
extern QString ServerBase;   ///< what UpdateFileName is appended to
extern QString CurrentVersion;
extern QString LatestVersion;
extern int UpdateKind;
extern QString UpdateFileName;
extern qint32 UpdateFileSize; ///< bytes

/// Loads the window and runs the whole check; does nothing when it is loaded. The application wires it.
extern std::function<void()> LoadWindow;

/// Comes back when the check is over or has found something. Any failure is passed over. Where `updater.cfg` says that
/// a package manager brings the updates, a check that the user asked for tells that, and nobody is asked.
void CheckForUpdates(bool automatic);

/// The base URL in `updater.cfg`; empty without one.
QString UpdateServer();

/// The key that releases are signed with, in `updater.cfg`; empty where they need no signature.
QString PublicKey();

/// "TempUpdater" in the work folder, an inside path without a trailing backslash.
QString DownloadFolder();

/// What the server tells of its releases, in the download folder.
QString InfoFile();

/// A value of that file.
QString ReadInfo(const QString& section, const QString& key);

} // namespace mUpdater
