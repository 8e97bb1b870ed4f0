// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "install/zip/ZipInflate.h"

#include "install/zip/ZipRecords.h"

#include <algorithm>
#include <limits>

namespace {

constexpr quint16 Deflated = 8;

bool IsPlain(const ZipEntry& entry) {
    constexpr quint16 special =
        ZipEntry::Encrypted | ZipEntry::Patched | ZipEntry::StronglyEncrypted | ZipEntry::Masked;
    constexpr qint64 most = std::numeric_limits<uInt>::max();
    const bool isStored = entry.Method == ZipEntry::Stored && entry.Packed == entry.Size;
    return entry.Standing == ZipEntry::State::Good && (entry.Flags & special) == 0 &&
           (isStored || entry.Method == Deflated) && entry.Packed < most && entry.Size < most;
}

} // namespace

ZipInflate::ZipInflate(const Device& archive, const ZipDirectory& directory)
    : bytes_(archive),
      end_(directory.Start()),
      isReady_(::inflateInit2(&stream_, -MAX_WBITS) == Z_OK) {}

ZipInflate::~ZipInflate() {
    if (isReady_)
        ::inflateEnd(&stream_);
}

bool ZipInflate::Unpack(const ZipEntry& entry, char* bytes) {
    if (!IsPlain(entry))
        return false;
    const std::optional<QByteArrayView> packed = PackedBytes(entry);
    if (!packed || packed->size() != entry.Packed)
        return false;
    if (entry.Method == ZipEntry::Stored)
        std::ranges::copy(*packed, bytes);
    else if (!Inflate(*packed, bytes, entry.Size))
        return false;
    return ::crc32(0, reinterpret_cast<const Bytef*>(bytes), static_cast<uInt>(entry.Size)) == entry.Crc;
}

/// Nothing for an entry that does not stand where the directory says, or that reaches into it.
std::optional<QByteArrayView> ZipInflate::PackedBytes(const ZipEntry& entry) {
    const auto before = ZipRecords::BytesBeforeData(bytes_.View(entry.Offset, ZipRecords::LocalLength));
    if (!before || entry.Packed > end_ - entry.Offset - *before)
        return std::nullopt;
    return bytes_.View(entry.Offset + *before, entry.Packed);
}

bool ZipInflate::Inflate(QByteArrayView packed, char* bytes, qint64 size) {
    if (!isReady_ || ::inflateReset(&stream_) != Z_OK)
        return false;
    Bytef nothing = 0; // the library takes no null, also where there is no room to be filled
    stream_.next_in = const_cast<Bytef*>(reinterpret_cast<const Bytef*>(packed.data()));
    stream_.avail_in = static_cast<uInt>(packed.size());
    stream_.next_out = size == 0 ? &nothing : reinterpret_cast<Bytef*>(bytes);
    stream_.avail_out = static_cast<uInt>(size);
    return ::inflate(&stream_, Z_FINISH) == Z_STREAM_END && stream_.avail_in == 0 && stream_.avail_out == 0;
}
