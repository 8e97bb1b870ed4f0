// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Files of a server that wants to be believed: where `updater.cfg` holds a public key, each must have a signature
/// beside it, whose comment names the file and the version.
#pragma once

#include "update/UpdateSession.h"

struct SignedFile {
    QString Url;
    QString Path; ///< where it lies, an inside path
    QString Name; ///< the one that the comment must give; its version is mUpdater::LatestVersion
};

namespace SignedFiles {

/// Whether there is a public key.
bool AreWanted(const UpdateSession& session);

/// Fetches the signature, which has the file's address and ".minisig", and holds the file against it. True without a
/// public key, and nothing is fetched then.
bool Accept(UpdateSession& session, const SignedFile& file);

/// Deletes the file, says why and closes the window.
void Refuse(UpdateSession& session, const SignedFile& file);

/// Whether a version is a later one, as numbers. A text that is no version is later than none.
bool IsNewer(const QString& version, const QString& current);

} // namespace SignedFiles
