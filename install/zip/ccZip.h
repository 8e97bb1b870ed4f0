// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Reads ZIP archives: the list of names, the comment, one entry at a time. libzip decrypts and unpacks.
#pragma once

#include <QString>
#include <QStringList>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

class FileWatch;
struct FilePlace;
class ZipReading;

class ccZip {
public:
    /// A password to try before anybody is asked for one. An answer that fitted is kept here for the entries that
    /// follow; Init leaves it as it is.
    std::optional<QString> Password;

    /// Where one is set: told how many bytes of the entry that is being extracted are written, block by block.
    std::function<void(qint64)> Watch;

    /// Where one is set: told of each file that is written. It outlives this, or its use.
    FileWatch* Writes = nullptr;

    QStringList Col; ///< names in the archive's order, folders included; each up to a zero, 256 characters at most
    QString Name;    ///< the archive's path
    QString Comm;    ///< its comment, in the ANSI code page
    qint32 Level = 5;

    ccZip();
    ~ccZip();
    ccZip(const ccZip&) = delete;
    ccZip& operator=(const ccZip&) = delete;

    /// Reads an archive's names and its comment, and keeps it open. One that is missing or can't be read has none, and
    /// nothing is raised: GetZipInfo tells why.
    void Init(const QString& path);

    /// Whether there is an archive that could be read; an empty one counts.
    [[nodiscard]] bool IsOpen() const { return reading_ != nullptr; }

    [[nodiscard]] qint32 Count() const { return static_cast<qint32>(Col.size()); }

    /// The name of an entry by its number from 1 on; empty for a number that is none.
    [[nodiscard]] QString GetFile(qint32 index) const;

    /// The number of the first entry of exactly that whole name; 0 for none.
    [[nodiscard]] qint32 Find(const QString& entryName) const;

    /// What the archive says of an entry's bytes, how many it takes in the archive, and its checksum, 0 where it has
    /// none; 0 for a number that is none.
    [[nodiscard]] qint64 Size(qint32 index) const;
    [[nodiscard]] qint64 Packed(qint32 index) const;
    [[nodiscard]] quint32 Crc(qint32 index) const;

    /// Entries by their numbers, in the order in which they will be extracted, for those who extract many: they are
    /// unpacked ahead, as far as they are short. What becomes of each is as without this. `hashes`: Writes will be
    /// told.
    void Ahead(const std::vector<qint32>& indexes, bool hashes);

    /// Extracts the first entry of exactly that name into a folder (an inside path, made when missing), over what
    /// stands there, never outside of it: with `honourDirs` with the folders of its name, else without. What stood
    /// there stays when anything fails. Asks for a password where one is needed, once for an entry, until that is
    /// refused. Yields in long entries. Does not wait for the disk. Raises nothing; returns one of ZipResult.
    qint32 Decompress(const QString& extractDir, const QString& entryName, bool honourDirs);

    /// The same for an entry that is to become the file at a place that a gateway gave.
    qint32 DecompressTo(const FilePlace& target, const QString& entryName);

    /// The last that was told: the comment, where an entry went, or why something failed.
    [[nodiscard]] QString GetZipInfo() const { return told_; }

private:
    /// What an entry is to become.
    struct Job;

    qint32 Try(const QString& entryName, const std::function<void(qsizetype)>& step);
    void Extract(const Job& job);
    void ExtractEncrypted(const Job& job);
    void ExtractWith(const Job& job, const QString& password) const;
    std::optional<QString> AskPassword();

    std::shared_ptr<ZipReading> reading_; ///< the archive, kept open
    QString told_;
    bool passwordRefused_ = false; ///< the box was cancelled
};
