// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// A key that signs in a test, and may sign wrongly.
#pragma once

#include <QByteArray>
#include <QString>

#include <sodium.h>

class SigningKey {
public:
    /// The same seed gives the same key.
    explicit SigningKey(char seed = 's') {
        QByteArray seeds(crypto_sign_SEEDBYTES, seed);
        crypto_sign_seed_keypair(Writable(public_), Writable(secret_), Readable(seeds));
    }

    [[nodiscard]] QString PublicText() const { return QString::fromLatin1(("Ed" + id_ + public_).toBase64()); }

    /// What minisign writes beside a file.
    [[nodiscard]] QByteArray Sign(const QByteArray& file, const QByteArray& comment,
                                  const QByteArray& algorithm = "ED") const {
        const QByteArray ofFile = Signed(algorithm == "ED" ? Hash(file) : file);
        return File(algorithm + id_ + ofFile, comment, Signed(ofFile + comment));
    }

    [[nodiscard]] static QByteArray File(const QByteArray& ofFile, const QByteArray& comment,
                                         const QByteArray& ofComment) {
        return "untrusted comment: signature from a test\n" + ofFile.toBase64() + "\ntrusted comment: " + comment +
               '\n' + ofComment.toBase64() + '\n';
    }

    [[nodiscard]] QByteArray Signed(const QByteArray& message) const {
        QByteArray signature(crypto_sign_BYTES, '\0');
        crypto_sign_detached(Writable(signature), nullptr, Readable(message), Length(message), Readable(secret_));
        return signature;
    }

    [[nodiscard]] static QByteArray Hash(const QByteArray& file) {
        QByteArray hash(crypto_generichash_BYTES_MAX, '\0');
        crypto_generichash(Writable(hash), static_cast<std::size_t>(hash.size()), Readable(file), Length(file), nullptr,
                           0);
        return hash;
    }

    QByteArray id_ = QByteArray::fromHex("0102030405060708");

private:
    static unsigned char* Writable(QByteArray& bytes) { return reinterpret_cast<unsigned char*>(bytes.data()); }

    static const unsigned char* Readable(const QByteArray& bytes) {
        return reinterpret_cast<const unsigned char*>(bytes.constData());
    }

    static unsigned long long Length(const QByteArray& bytes) { return static_cast<unsigned long long>(bytes.size()); }

    QByteArray public_ = QByteArray(crypto_sign_PUBLICKEYBYTES, '\0');
    QByteArray secret_ = QByteArray(crypto_sign_SECRETKEYBYTES, '\0');
};
