// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "install/zip/ZipLibrary.h"

#include "install/zip/ZipFailure.h"
#include "install/zip/ZipRecords.h"
#include "install/zip/ZipShown.h"

#include <algorithm>
#include <array>
#include <optional>
#include <span>

#include <zip.h>

using namespace Qt::StringLiterals;

namespace {

/// How many entries the library is shown at a time: its records are larger than the archive's.
constexpr qsizetype Shown = 8192;

qint32 ResultOf(int error) {
    switch (error) {
    case ZIP_ER_NOPASSWD:
    case ZIP_ER_WRONGPASSWD:
        return ZipResult::WrongPassword;
    case ZIP_ER_COMPNOTSUPP:
    case ZIP_ER_ENCRNOTSUPP:
        return ZipResult::NotSupported;
    case ZIP_ER_EOF:
    case ZIP_ER_READ:
    case ZIP_ER_SEEK:
        return ZipResult::CutShort;
    default:
        return ZipResult::BadData;
    }
}

[[noreturn]] void Refuse(const QString& name, qint32 result, const QString& reason) {
    throw ZipFailure(result, u"%1: %2"_s.arg(name, reason));
}

[[noreturn]] void Refuse(const QString& name, zip_error_t* error) {
    Refuse(name, ResultOf(zip_error_code_zip(error)), QString::fromUtf8(zip_error_strerror(error)));
}

quint16 EncryptionOf(const ZipEntry& entry) {
    if (entry.Method != ZipEntry::Aes)
        return ZIP_EM_TRAD_PKWARE;
    constexpr std::array<quint16, 3> strengths{ZIP_EM_AES_128, ZIP_EM_AES_192, ZIP_EM_AES_256};
    return strengths[static_cast<std::size_t>(entry.AesField[4] - 1)];
}

} // namespace

ZipStream::ZipStream(std::shared_ptr<zip> archive, zip_file* file, QString name)
    : archive_(std::move(archive)),
      file_(file),
      name_(std::move(name)) {}

ZipStream::~ZipStream() {
    zip_fclose(file_);
}

qint64 ZipStream::Read(char* bytes, qint64 count) {
    qint64 done = 0;
    while (done < count) {
        const zip_int64_t had = zip_fread(file_, bytes + done, static_cast<zip_uint64_t>(count - done));
        if (had < 0)
            Refuse(name_, zip_file_get_error(file_));
        if (had == 0)
            break;
        done += had;
    }
    return done;
}

std::unique_ptr<ZipStream> ZipLibrary::Open(qsizetype place, const QByteArray& password) {
    const ZipEntry& entry = directory_.Entries()[static_cast<std::size_t>(place)];
    RequireReadable(place);
    Show(place);
    if (!ZipShown::LacksChecksum(entry))
        return OpenFile(place, password, false);
    if (ZipShown::MethodOf(entry) == ZipEntry::Stored)
        return OpenFile(place, password, true);
    // Unpacking ends before the code behind the bytes is looked at: this goes there first.
    std::array<char, 16384> bytes{};
    const auto whole = OpenFile(place, password, true);
    while (whole->Read(bytes.data(), bytes.size()) > 0) {
    }
    return OpenFile(place, password, false);
}

void ZipLibrary::Show(qsizetype place) {
    const qsizetype first = place - place % Shown;
    if (opened_ != nullptr && first_ == first)
        return;
    const std::span<const ZipEntry> all(directory_.Entries());
    const auto from = static_cast<std::size_t>(first);
    opened_ = ZipShown::Open(archive_, bytes_, all.subspan(from, std::min<std::size_t>(Shown, all.size() - from)));
    first_ = first;
}

void ZipLibrary::RequireReadable(qsizetype place) {
    const ZipEntry& entry = directory_.Entries()[static_cast<std::size_t>(place)];
    constexpr quint16 unreadable = ZipEntry::Patched | ZipEntry::Masked;
    constexpr quint16 strong = ZipEntry::Encrypted | ZipEntry::StronglyEncrypted;
    if (entry.Standing == ZipEntry::State::Outside)
        Refuse(entry.Name, ZipResult::CutShort, u"lies outside of the archive"_s);
    if (entry.Standing == ZipEntry::State::Overlapped)
        Refuse(entry.Name, ZipResult::Overlap, u"overlaps another entry"_s);
    if ((entry.Flags & unreadable) != 0 || (entry.Flags & strong) == strong)
        Refuse(entry.Name, ZipResult::NotSupported, u"is packed or encrypted in a way that is not supported"_s);
    if (entry.Method == ZipEntry::Aes && !ZipShown::HasSoundAesField(entry))
        Refuse(entry.Name, ZipResult::NotSupported, u"is encrypted in a way that is not supported"_s);
    if (entry.IsEncrypted() && zip_encryption_method_supported(EncryptionOf(entry), 0) == 0)
        Refuse(entry.Name, ZipResult::NotSupported, u"is encrypted in a way that is not supported"_s);
    const quint16 method = ZipShown::MethodOf(entry);
    if (zip_compression_method_supported(method, 0) == 0)
        Refuse(entry.Name, ZipResult::NotSupported, u"is packed by method %1, which is not supported"_s.arg(method));
    RequireInPlace(entry);
}

/// What the library does not look at: that an entry begins there, and ends before the directory.
void ZipLibrary::RequireInPlace(const ZipEntry& entry) {
    std::optional<qint64> before;
    try {
        before = ZipRecords::BytesBeforeData(bytes_.View(entry.Offset, ZipRecords::LocalLength));
    } catch (const RuntimeError& error) {
        throw ZipFailure(ZipResult::CutShort, error.Description());
    }
    if (!before)
        Refuse(entry.Name, ZipResult::BadData, u"does not stand where the directory says"_s);
    if (entry.Packed > directory_.Start() - entry.Offset - *before)
        Refuse(entry.Name, ZipResult::CutShort, u"lies outside of the archive"_s);
}

std::unique_ptr<ZipStream> ZipLibrary::OpenFile(qsizetype place, const QByteArray& password, bool decryptOnly) const {
    const QString& name = directory_.Entries()[static_cast<std::size_t>(place)].Name;
    zip_file_t* file = zip_fopen_index_encrypted(opened_.get(), static_cast<zip_uint64_t>(place - first_),
                                                 decryptOnly ? ZIP_FL_COMPRESSED : 0, password.constData());
    if (file == nullptr)
        Refuse(name, zip_get_error(opened_.get()));
    return std::make_unique<ZipStream>(opened_, file, name);
}
