// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "update/SignedFile.h"

#include "core/mTraduction.h"
#include "platform/File.h"
#include "platform/Files.h"
#include "platform/RuntimeError.h"
#include "update/Signature.h"
#include "update/VersionNumbers.h"
#include "update/mUpdater.h"

using namespace Qt::StringLiterals;

namespace {

/// A signature has four lines, two of them of any length.
constexpr qsizetype LongestSignature = 16384;

} // namespace

bool SignedFiles::AreWanted(const UpdateSession& session) {
    return !session.PublicKey.isEmpty();
}

bool SignedFiles::Accept(UpdateSession& session, const SignedFile& file) {
    if (!AreWanted(session))
        return true;
    const QByteArray signature = session.GetSmall(file.Url + u".minisig"_s, LongestSignature);
    bool accepted = false;
    Ignoring([&] {
        const Signature::PublicKey key = Signature::ReadPublicKey(session.PublicKey);
        const File bytes = File::Open(file.Path, File::Access::Read);
        const Signature::Claim claim = Signature::ReadClaim(Signature::Verify(bytes, signature, key));
        accepted = claim.File == file.Name && claim.Version == mUpdater::LatestVersion &&
                   VersionNumbers::Of(claim.Version).has_value();
    });
    return accepted;
}

void SignedFiles::Refuse(UpdateSession& session, const SignedFile& file) {
    Ignoring([&] { Files::DeleteForced(file.Path); });
    session.Refuse(mTraduction::GetText(u"UpdateNotSigned"_s));
}

bool SignedFiles::IsNewer(const QString& version, const QString& current) {
    const auto numbers = VersionNumbers::Of(version);
    return numbers.has_value() && numbers > VersionNumbers::Of(current);
}
