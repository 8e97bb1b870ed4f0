// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The reader of ZIP archives, without a disk.
#include "fuzz/Fuzzing.h"

#include "core/FolderGateway.h"
#include "install/zip/ZipDirectory.h"
#include "install/zip/ZipLibrary.h"
#include "install/zip/ZipShown.h"
#include "platform/RuntimeError.h"

#include <algorithm>
#include <optional>

#include <zlib.h>

using Fuzzing::Expect;

namespace {

constexpr qsizetype Few = 64;
constexpr qint64 Affordable = 1 << 20;
/// Its library takes the memory that the entry's bytes ask for.
constexpr quint16 Xz = 95;

void ExpectSoundEntry(const ZipDirectory& directory, qsizetype place) {
    const ZipEntry& entry = directory.Entries()[static_cast<std::size_t>(place)];
    const qsizetype first = directory.Find(entry.Name);
    Expect(first >= 0 && first <= place && directory.Entries()[static_cast<std::size_t>(first)].Name == entry.Name,
           "each name is found, the first one of its kind");
    Expect(entry.ListedName().size() <= 256, "a name is listed with 256 characters at most");
    Expect(entry.Size >= 0 && entry.Packed >= 0 && entry.Offset >= 0, "no number is negative");
    const QString slashes = QString(entry.Name).replace(u'\\', u'/');
    Expect(!FolderGateway::RefusalOf(entry.Name).isEmpty() || (!slashes.startsWith(u'/') && !slashes.contains(u':')),
           "a name that the gateway takes stays in the folder");
}

void Unpack(ZipLibrary& library, const ZipEntry& entry, qsizetype place) {
    QByteArray bytes(std::min<qint64>(entry.Size, Affordable) + 1, Qt::Uninitialized);
    const auto stream = library.Open(place, "secret");
    const qint64 had = stream->Read(bytes.data(), bytes.size());
    if (had > 0 && had < bytes.size() && !ZipShown::LacksChecksum(entry))
        Expect(::crc32(0, reinterpret_cast<const Bytef*>(bytes.constData()), static_cast<uInt>(had)) == entry.Crc,
               "what is read to its end has the checksum that it is told to have");
}

void Run(const QByteArray& bytes) {
    const MemoryDevice device(bytes);
    std::optional<ZipDirectory> directory;
    if (!Ignoring([&] { directory.emplace(device); }))
        return;
    ZipLibrary library(device, *directory);
    const auto count = static_cast<qsizetype>(directory->Entries().size());
    for (qsizetype place = 0; place < std::min(count, Few); ++place) {
        ExpectSoundEntry(*directory, place);
        const ZipEntry& entry = directory->Entries()[static_cast<std::size_t>(place)];
        if (ZipShown::MethodOf(entry) == Xz)
            continue;
        if (!Ignoring([&] { Unpack(library, entry, place); }))
            library.Forget();
    }
}

const FuzzTarget target("zip", Run);

} // namespace
