// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// A folder that many new files are put into, and what is known of all is not asked for each. Where the system can, it
/// is opened once: what stands at its path later is not asked either, unless the folder itself is gone.
#pragma once

#include <QByteArrayView>
#include <QString>

#include <memory>

class NewFiles {
public:
    /// An inside path in the disk's own case, with its trailing backslash. Nothing is raised: into a folder that is
    /// none nothing can be put.
    explicit NewFiles(const QString& folder);
    ~NewFiles();
    NewFiles(const NewFiles&) = delete;
    NewFiles& operator=(const NewFiles&) = delete;

    [[nodiscard]] const QString& Folder() const { return folder_; }

    /// Writes a file aside, with the permissions that new files get, and puts it under its name in one step that fails
    /// where anything stands there by then, a link too; does not wait for the disk. False when that was not to be done:
    /// nothing is changed or left then, and WriteAside does it or tells why not.
    bool Put(const QString& name, QByteArrayView bytes);

private:
    struct System;

    QString folder_;
    std::unique_ptr<System> system_;
};
