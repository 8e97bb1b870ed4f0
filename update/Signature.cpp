// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "update/Signature.h"

#include "platform/RuntimeError.h"

#include <QStringList>

#include <sodium.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <iterator>
#include <optional>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype AlgorithmBytes = 2;
constexpr qsizetype IdBytes = 8;
constexpr qsizetype KeyBytes = crypto_sign_PUBLICKEYBYTES;
constexpr qsizetype SignatureBytes = crypto_sign_BYTES;
constexpr QByteArrayView KeyAlgorithm = "Ed";
/// The form that signs the file's hash; the older one, which signs the file itself, bears the key's letters.
constexpr QByteArrayView Prehashed = "ED";

constexpr QByteArrayView CommentBegins = "untrusted comment: ";
constexpr QByteArrayView TrustedBegins = "trusted comment: ";
constexpr qsizetype LongestFile = 16384;

[[noreturn]] void Refuse(const QString& name, const QString& reason) {
    throw RuntimeError(ErrorNumber::InvalidCall, name.isEmpty() ? reason : name + u": "_s + reason);
}

const unsigned char* Unsigned(const QByteArray& bytes) {
    return reinterpret_cast<const unsigned char*>(bytes.constData());
}

std::optional<QByteArray> Decoded(const QByteArray& base64, qsizetype length) {
    const auto result = QByteArray::fromBase64Encoding(base64, QByteArray::AbortOnBase64DecodingErrors);
    // What decodes to the same bytes in another spelling is not what the signer wrote.
    if (!result || result.decoded.size() != length || result.decoded.toBase64() != base64)
        return std::nullopt;
    return result.decoded;
}

/// What a `.minisig` holds.
struct Lines {
    QByteArray Algorithm;
    QByteArray Id;
    QByteArray OfFile;
    QByteArray Comment;
    QByteArray OfComment;
};

std::optional<Lines> Parted(const QByteArray& text) {
    if (text.size() > LongestFile)
        return std::nullopt;
    QList<QByteArray> lines = text.split('\n');
    if (lines.size() == 5 && lines.last().isEmpty())
        lines.removeLast();
    if (lines.size() != 4)
        return std::nullopt;
    for (QByteArray& line : lines) {
        if (line.endsWith('\r'))
            line.chop(1);
    }
    if (!lines[0].startsWith(CommentBegins) || !lines[2].startsWith(TrustedBegins))
        return std::nullopt;
    const auto ofFile = Decoded(lines[1], AlgorithmBytes + IdBytes + SignatureBytes);
    const auto ofComment = Decoded(lines[3], SignatureBytes);
    if (!ofFile || !ofComment)
        return std::nullopt;
    return Lines{ofFile->first(AlgorithmBytes), ofFile->sliced(AlgorithmBytes, IdBytes), ofFile->last(SignatureBytes),
                 lines[2].sliced(TrustedBegins.size()), *ofComment};
}

QByteArray HashOf(const Device& file) {
    crypto_generichash_state state;
    crypto_generichash_init(&state, nullptr, 0, crypto_generichash_BYTES_MAX);
    std::vector<char> block(std::size_t{1} << 16U);
    qint64 offset = 0;
    qint64 count = 0;
    while ((count = file.ReadInto(offset, block.data(), static_cast<qint64>(block.size()))) > 0) {
        crypto_generichash_update(&state, reinterpret_cast<const unsigned char*>(block.data()),
                                  static_cast<unsigned long long>(count));
        offset += count;
    }
    std::array<unsigned char, crypto_generichash_BYTES_MAX> hash{};
    crypto_generichash_final(&state, hash.data(), hash.size());
    return {reinterpret_cast<const char*>(hash.data()), static_cast<qsizetype>(hash.size())};
}

bool Signed(const QByteArray& signature, const QByteArray& message, const QByteArray& key) {
    return crypto_sign_verify_detached(Unsigned(signature), Unsigned(message),
                                       static_cast<unsigned long long>(message.size()), Unsigned(key)) == 0;
}

void Prepare() {
    if (sodium_init() < 0)
        throw RuntimeError(ErrorNumber::DeviceError,
                           u"Signatures can't be looked at: the system gives no random numbers"_s);
}

} // namespace

Signature::PublicKey Signature::ReadPublicKey(const QString& text) {
    const auto bytes = Decoded(text.trimmed().toLatin1(), AlgorithmBytes + IdBytes + KeyBytes);
    if (!bytes || !bytes->startsWith(KeyAlgorithm))
        Refuse({}, u"The public key is none: '%1'"_s.arg(text.left(80)));
    return {bytes->sliced(AlgorithmBytes, IdBytes), bytes->last(KeyBytes)};
}

QString Signature::Verify(const Device& file, const QByteArray& signature, const PublicKey& key) {
    Prepare();
    const std::optional<Lines> lines = Parted(signature);
    if (!lines)
        Refuse(file.Name(), u"its signature can't be read"_s);
    if (lines->Algorithm != Prehashed)
        Refuse(file.Name(), u"its signature is of a form that is not taken"_s);
    if (lines->Id != key.Id)
        Refuse(file.Name(), u"its signature is by another key"_s);
    if (!Signed(lines->OfFile, HashOf(file), key.Bytes))
        Refuse(file.Name(), u"its signature does not fit it"_s);
    if (!Signed(lines->OfComment, lines->OfFile + lines->Comment, key.Bytes))
        Refuse(file.Name(), u"the comment in its signature was changed"_s);
    return QString::fromUtf8(lines->Comment);
}

Signature::Claim Signature::ReadClaim(const QString& trustedComment) {
    const QStringList fields = trustedComment.split(u'\t');
    const auto only = [&](const QString& name) {
        QStringList values;
        std::ranges::copy_if(fields, std::back_inserter(values),
                             [&](const QString& field) { return field.startsWith(name); });
        if (values.size() != 1 || values.first().size() == name.size())
            Refuse({}, u"The signature's comment must tell '%1' once: '%2'"_s.arg(name, trustedComment.left(200)));
        return values.first().sliced(name.size());
    };
    return {only(u"version:"_s), only(u"file:"_s)};
}
