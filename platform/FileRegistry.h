// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// A registry in a text file, as an export writes it: "REGEDIT4" in the ANSI code page, or version 5.00 in UTF-16 or
/// UTF-8 with a byte order mark. Either may be UTF-8 without a mark, as editors of other systems write it. What isn't
/// understood stays in the file.
///
/// Every read sees the file as it is now. Writes of several processes follow each other, so that none loses another's
/// value. Every write puts the whole new text aside and renames it over the old one;
/// one that fails changes nothing and says so by its result, without a failure raised.
#pragma once

#include "platform/FolderLock.h"
#include "platform/RegistryRuntime.h"
#include "platform/RegistryText.h"

#include <QString>

#include <memory>
#include <optional>
#include <utility>

class FileRegistry {
public:
    /// `nativePath` as the system writes it. The file need not exist.
    explicit FileRegistry(QString nativePath);
    ~FileRegistry();
    FileRegistry(const FileRegistry&) = delete;
    FileRegistry& operator=(const FileRegistry&) = delete;

    [[nodiscard]] const QString& Path() const { return path_; }

    /// False when the file stood there and could not be read, at any time since this was asked last: what read as
    /// missing then need not be.
    [[nodiscard]] bool WasReadable() { return !std::exchange(refused_, false); }

    /// The value under the key; machine-wide software first where an export of a 64-bit system keeps the 32-bit
    /// programs' keys.
    [[nodiscard]] RegistryValue Read(RootKey root, const QString& path, const QString& name) const;

    /// Makes file, folder and key where they are missing; a value that is read from the 32-bit programs' keys changes
    /// there.
    bool Write(RootKey root, const QString& path, const QString& name, const RegistryValue& value);
    bool AddKey(RootKey root, const QString& path);

    /// A key with keys below it stays, and the result is false.
    bool RemoveKey(RootKey root, const QString& path);
    bool RemoveValue(RootKey root, const QString& path, const QString& name);

private:
    struct Document;

    bool Load() const;

    /// Makes the file's folder and holds it for as long as a change takes; nothing when it can't be made.
    [[nodiscard]] std::optional<FolderLock> Lock() const;

    bool Store(const QString& text);

    [[nodiscard]] QString InsidePath() const;

    QString path_;
    std::unique_ptr<Document> now_; ///< what the file held when it was last looked at
    mutable bool refused_ = false;
};
