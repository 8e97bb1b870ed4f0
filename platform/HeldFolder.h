// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// A folder that is held open: what is done by names in it is done there, whatever stands at its path meanwhile.
#pragma once

#include "platform/File.h"

#include <QByteArrayView>
#include <QString>
#include <QStringList>

#include <memory>

class HeldFolder {
public:
    /// Opens a folder by its inside path in the disk's own case, with or without a backslash behind it; links are
    /// followed. Raises 76 when there is none, and what the system tells else.
    explicit HeldFolder(const QString& path);

    /// Opens a folder below one that is held, by names in the disk's own case with backslashes between; none of them
    /// may be a link. Raises 76 when there is none, 75 where a link or a file stands.
    HeldFolder(const HeldFolder& top, const QString& below);

    ~HeldFolder();
    HeldFolder(const HeldFolder&) = delete;
    HeldFolder& operator=(const HeldFolder&) = delete;

    /// The inside path that it was opened by, with its trailing backslash.
    [[nodiscard]] const QString& Path() const { return path_; }

    /// False once the folder has been removed, and another one may stand in its place.
    [[nodiscard]] bool Lives() const;

    /// What is in it, folders too, in the directory's order. Raises 76 when it can't be listed.
    [[nodiscard]] QStringList Names() const;

    enum class Standing {
        Nothing,
        File,
        Folder,
        Link, ///< to whatever
    };

    /// What stands under a name; no link is followed.
    [[nodiscard]] Standing StandingOf(const QString& name) const;

    /// The state of a file in it; without an identity where there is no plain file, or a link.
    [[nodiscard]] FileState StateOf(const QString& name) const;

    /// Opens a plain file to be read. Raises like File::Open, and for a link.
    [[nodiscard]] File OpenToRead(const QString& name) const;

    /// Makes a folder in it. Raises 75 when anything stands there already.
    void MakeFolder(const QString& name) const;

    /// Writes a new file aside, with the permissions that new files get, and puts it under its name in one step that
    /// fails where anything stands there by then, a link too; does not wait for the disk. False when that was not to be
    /// done: nothing is changed or left then, and WriteAside does it or tells why not.
    bool Put(const QString& name, QByteArrayView bytes) const;

    /// The system's handle.
    [[nodiscard]] qintptr Handle() const;

private:
    struct System;

    QString path_;
    std::unique_ptr<System> system_;
};

/// A name in a folder that is held open: the way to a file that nobody can turn aside. The folder is never null but in
/// a place that was not given.
struct FilePlace {
    std::shared_ptr<const HeldFolder> Folder;
    QString Name;

    /// The inside path, for messages and for those who only look.
    [[nodiscard]] QString Path() const { return Folder->Path() + Name; }
};
