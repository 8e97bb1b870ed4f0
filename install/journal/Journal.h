// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The journal of installs as a value: what each install brought, and what it replaced.
#pragma once

#include "core/Game.h"
#include "install/HashedFile.h"

#include <QByteArray>
#include <QDateTime>
#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

/// A file that an install wrote.
struct JournalFile {
    QString Path;          ///< inside path
    QByteArray Hash{};     ///< of what was written, in bytes; empty: not known, as the install broke off
    qint64 Length = 0;     ///< bytes; known with the hash
    bool Replaced = false; ///< a file stood there before
    QString Kept{};        ///< that file, put aside: a path below the journal's folder; empty for none
    QByteArray KeptHash{};
};

struct JournalEntry {
    enum class State {
        Running,  ///< some process is at it; what it has written is not known yet
        Ended,    ///< all was told, whether it failed or not
        BrokenOff ///< the process died in it
    };

    int Id = 0;              ///< from 1 on, never used again
    QDateTime Time;          ///< of its beginning, UTC
    QString Source;          ///< the name of the file that was installed
    QByteArray SourceHash{}; ///< empty when it could not be read
    GameIndex Game = 0;
    State How = State::Ended;
    std::vector<JournalFile> Files{};
    QStringList Folders{}; ///< inside paths of those that it made
};

struct Journal {
    int NextId = 1;
    std::vector<JournalEntry> Entries{}; ///< in the order of their numbers

    /// Null when there is none of that number.
    [[nodiscard]] const JournalEntry* Find(int id) const;
    [[nodiscard]] JournalEntry* Find(int id);
};

/// A path as the journal compares paths: without regard to case.
QString JournalKey(const QString& path);

/// Whether a path is `above` or lies below that folder.
bool IsAtOrBelow(const QString& path, const QString& above);
