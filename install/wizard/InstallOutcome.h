// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// What an installation did and what it did not, a line a file.
#pragma once

#include <QHash>
#include <QString>
#include <QStringList>

#include <unordered_map>
#include <vector>

struct InstalledFile {
    enum class State {
        Done,
        Kept,   ///< it stood there already and is as it was
        Failed, ///< it is not there, or is not what it should be
        Noted,  ///< no file, but a line of the journal of installs
    };

    State How = State::Done;
    QString Name;     ///< where it is, as the system writes it; of a failure what it was to be made of
    QString Reason{}; ///< of a failure
};

class InstallOutcome {
public:
    /// A file was written to a path (inside path). What an earlier entry made of the same path is gone then: that
    /// becomes a failure.
    void Done(const QString& source, const QString& path);
    void Kept(const QString& path);
    /// A file was written that has no source, or written to once more.
    void Changed(const QString& path);
    /// `name` is an entry's, or an inside path.
    void Failed(const QString& name, const QString& reason);
    /// Something else that a user should know counts as a failure.
    void Noted(const QString& line);

    [[nodiscard]] const std::vector<InstalledFile>& Files() const { return files_; }

    [[nodiscard]] bool AnyFailed() const { return failures_ > 0; }

    /// A line a file in the user's language, failures first; `onlyFailures` leaves out the others.
    [[nodiscard]] QStringList Lines(bool onlyFailures = false) const;

private:
    struct Source {
        std::size_t Place;
        QString Name;
    };

    std::vector<InstalledFile> files_;
    using FolderFiles = std::unordered_map<QString, Source>; // mostly few

    FolderFiles& WrittenIn(const QString& path);

    std::vector<FolderFiles> written_;    ///< one for each folder: its files by their names without case
    QHash<QString, std::size_t> folders_; ///< the place of each in it, by its path without case
    QString lastFolder_;                  ///< that was asked for
    std::size_t last_ = 0;
    int failures_ = 0;
};
