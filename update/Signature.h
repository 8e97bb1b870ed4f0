// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Signatures in minisign's format (https://jedisct1.github.io/minisign/), prehashed form: Ed25519 over the file's
/// BLAKE2b of 512 bits, and over that signature with a comment that can be trusted.
#pragma once

#include "platform/Device.h"

#include <QByteArray>
#include <QString>

namespace Signature {

struct PublicKey {
    QByteArray Id;    ///< 8 bytes, which a signature repeats
    QByteArray Bytes; ///< 32
};

/// What a release's signature says of the file besides that it is whole.
struct Claim {
    QString Version; ///< Major.Minor.Revision
    QString File;    ///< the file's name
};

/// Reads a key's one line of Base64. Raises 5 for anything else.
PublicKey ReadPublicKey(const QString& text);

/// Holds a file against what stands in its `.minisig`. Returns the trusted comment. Raises 5 with the reason, which
/// names the file, when the signature is not one of this key over these bytes; else what the reading raises.
QString Verify(const Device& file, const QByteArray& signature, const PublicKey& key);

/// Reads fields parted by tabs, as `version:3.5.5` and `file:setup.exe`; others are passed over. Raises 5 when one of
/// the two is missing, empty or there twice.
Claim ReadClaim(const QString& trustedComment);

} // namespace Signature
