// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The central directory of a ZIP archive as a value: what its entries are called and where they lie. Layout: PKWARE's
/// APPNOTE.TXT. Nothing in it is believed that the archive's own length does not allow.
#pragma once

#include "platform/Device.h"

#include <QHash>
#include <QString>

#include <array>
#include <vector>

struct ZipEntry {
    enum class State : quint8 {
        Good,
        Outside,    ///< it does not lie before the directory
        Overlapped, ///< it shares bytes with another entry
    };
    static constexpr quint16 Encrypted = 0x1;
    static constexpr quint16 Patched = 0x20;
    static constexpr quint16 StronglyEncrypted = 0x40;
    static constexpr quint16 Masked = 0x2000;
    static constexpr quint16 Stored = 0;
    static constexpr quint16 Aes = 99;

    QString Name;      ///< the whole name
    qint64 Record = 0; ///< offset of its record in the directory
    qint64 Offset = 0; ///< of its local header
    qint64 Packed = 0; ///< bytes in the archive
    qint64 Size = 0;   ///< bytes that it is said to yield
    quint32 Crc = 0;
    quint16 Flags = 0;
    quint16 Method = 0;
    quint16 Time = 0; ///< of day, in DOS form
    State Standing = State::Good;
    bool HasAesField = false;
    std::array<char, 7> AesField{}; ///< how it is encrypted, with the method behind that

    [[nodiscard]] bool IsFolder() const { return Name.endsWith(u'/'); }

    [[nodiscard]] bool IsEncrypted() const { return (Flags & Encrypted) != 0 || Method == Aes; }

    /// The name as lists show it: up to the first character 0, 256 characters at most. This is meant.
    [[nodiscard]] QString ListedName() const;
};

class ZipDirectory {
public:
    /// No entries.
    ZipDirectory() = default;

    /// Raises a ZipFailure for what is no archive or has no sound directory.
    explicit ZipDirectory(const Device& archive);

    [[nodiscard]] const std::vector<ZipEntry>& Entries() const { return entries_; }

    /// The first entry of exactly that whole name; -1 for none.
    [[nodiscard]] qsizetype Find(const QString& name) const { return numbers_.value(name) - 1; }

    /// As the archive has it.
    [[nodiscard]] const QByteArray& Comment() const { return comment_; }

    /// Where the directory begins: all entries lie before it.
    [[nodiscard]] qint64 Start() const { return start_; }

private:
    struct End;

    void ReadRecords(const Device& archive, const End& end);
    void Append(const Device& archive, ZipEntry entry, QByteArrayView rawName);
    void MarkStandings();

    std::vector<ZipEntry> entries_;
    QHash<QString, qsizetype> numbers_; ///< of the first entry of each name, from 1 on
    QByteArray comment_;
    qint64 start_ = 0;
};
