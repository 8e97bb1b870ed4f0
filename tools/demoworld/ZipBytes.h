// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// ZIP archives written out record by record, lies included: for tests, and for archives as people make them.
#pragma once

#include <QByteArray>

#include <optional>
#include <vector>

namespace ZipBytes {

/// A number in little-endian bytes.
QByteArray Word(quint32 number);
QByteArray Long(quint64 number);
QByteArray Wide(quint64 number);

quint32 Crc(const QByteArray& bytes);
/// As method 8 packs.
QByteArray Deflated(const QByteArray& bytes);
/// A field with its head.
QByteArray Field(quint32 number, const QByteArray& content);
/// The field that tells a name in UTF-8.
QByteArray UnicodeName(const QByteArray& raw, const QByteArray& utf8);

/// One entry; what is left out is as it should be.
struct Part {
    QByteArray Name{};
    QByteArray Content{};
    int Method = 0; ///< 8 is packed by it, every other one stands as it is
    int Flags = 0;
    int Host = 0;
    quint32 Attributes = 0;
    QByteArray Extra{};                ///< of the directory's record
    QByteArray LocalExtra{};           ///< of the local header
    bool HasDescriptor = false;        ///< the local header tells no sizes, a record behind the data does
    bool IsWide = false;               ///< sizes and offset stand in the ZIP64 field
    std::optional<quint32> Crc{};      ///< told in both records, whatever the content has
    std::optional<quint64> Size{};     ///< likewise
    std::optional<quint64> Packed{};   ///< told in the directory
    std::optional<quint64> Offset{};   ///< likewise
    std::optional<QByteArray> Bytes{}; ///< what stands in the archive
    std::optional<QByteArray> LocalName{};
};

struct Ends {
    int Repeat = 1; ///< the directory has all its records that many times
    QByteArray Comment{};
    QByteArray Before{};            ///< stands before the archive, which does not know of it
    bool IsWide = false;            ///< with the records of ZIP64
    std::optional<quint64> Count{}; ///< told, whatever there is
    std::optional<quint64> Size{};  ///< of the directory, likewise
    std::optional<quint64> Start{}; ///< likewise
};

QByteArray Archive(const std::vector<Part>& parts, const Ends& ends = {});

} // namespace ZipBytes
