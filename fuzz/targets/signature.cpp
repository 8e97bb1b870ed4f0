// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// What a server gives as a signature: only that of the makers over this file is one.
#include "fuzz/Fuzzing.h"

#include "platform/RuntimeError.h"
#include "tests/update/SigningKey.h"
#include "update/Signature.h"

using namespace Qt::StringLiterals;
using Fuzzing::Expect;

namespace {

/// What the seeds that are whole say. The key is kept from the fuzzer, so that no other can come to be.
const auto SignedComment = u"version:9.1.2\tfile:setup.exe"_s;

void Run(const QByteArray& bytes) {
    static const SigningKey makers;
    static const Signature::PublicKey key = Signature::ReadPublicKey(makers.PublicText());
    static const MemoryDevice file("the file\n");
    QString comment;
    if (Ignoring([&] { comment = Signature::Verify(file, bytes, key); }))
        Expect(comment == SignedComment, "what the makers did not sign is refused");

    const QString text = QString::fromUtf8(bytes);
    Ignoring([&] {
        const Signature::PublicKey other = Signature::ReadPublicKey(text);
        Expect(other.Id.size() == 8 && other.Bytes.size() == 32, "a key that is read is whole");
    });
    Ignoring([&] {
        const Signature::Claim claim = Signature::ReadClaim(text);
        Expect(!claim.Version.isEmpty() && !claim.File.isEmpty(), "a claim that is read is whole");
    });
}

const FuzzTarget target("signature", Run);

} // namespace
