// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// What the suite itself does to players' files behind their installation: who does it tells it here, so that a journal
/// of installs can follow. Paths are inside paths; nothing here raises, and without a follower nothing happens.
#pragma once

#include <QString>

class FileFollower {
public:
    FileFollower() = default;
    FileFollower(const FileFollower&) = delete;
    FileFollower& operator=(const FileFollower&) = delete;
    virtual ~FileFollower() = default;

    /// A file or a folder has another path now.
    virtual void Moved(const QString& from, const QString& to) noexcept = 0;
    /// A file stands at `to` too, in the place of what stood there; or a folder there holds such copies. For all of a
    /// series that takes files away behind it, a call of Deleted follows.
    virtual void Copied(const QString& from, const QString& to) noexcept = 0;
    /// A file, or a folder with what is in it, was deleted as far as it went.
    virtual void Deleted(const QString& path) noexcept = 0;
    /// Before and behind a write that changes what a file holds.
    virtual void Rewriting(const QString& path) noexcept = 0;
    virtual void Rewritten(const QString& path) noexcept = 0;
};

namespace FileMoves {

/// Who follows from now on; null for nobody. It outlives its use.
void Use(FileFollower* follower);

void Moved(const QString& from, const QString& to);
void Copied(const QString& from, const QString& to);
void Deleted(const QString& path);

/// Lives around a write that changes what a file holds.
class Rewrite {
public:
    explicit Rewrite(QString path);
    ~Rewrite();
    Rewrite(const Rewrite&) = delete;
    Rewrite& operator=(const Rewrite&) = delete;

private:
    QString path_;
};

} // namespace FileMoves
