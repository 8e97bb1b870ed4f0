// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Keeps the journal of installs true while the suite renames, moves, deletes and rewrites files, and uninstalls what
/// came with one of them.
#pragma once

#include "core/FileMoves.h"
#include "core/Uninstaller.h"
#include "install/journal/Journal.h"
#include "platform/File.h"

#include <QHash>
#include <QTimer>

#include <utility>
#include <vector>

class JournalChanges;

/// What can't be followed, as the journal can't be read or written, is not: such a file counts as changed then and
/// stays at an uninstallation.
class JournalFollower : public FileFollower, public Uninstaller {
public:
    /// In use from now on, for both.
    JournalFollower();
    /// Writes what waits, and is in use no longer.
    ~JournalFollower() override;

    void Moved(const QString& from, const QString& to) noexcept override;
    /// Waits for the call of Deleted.
    void Copied(const QString& from, const QString& to) noexcept override;
    void Deleted(const QString& path) noexcept override;
    void Rewriting(const QString& path) noexcept override;
    /// Boxes write at each key: where there is an event loop, the journal is written when they rest.
    void Rewritten(const QString& path) noexcept override;

    [[nodiscard]] bool Knows(const QString& path) override;
    bool Uninstall(const QString& path) override;

    /// Writes what waits.
    void Flush() noexcept;

private:
    struct Rewrite {
        QString Path;
        QByteArray Before; ///< what the journal knows
        HashedFile Now;
        bool IsOurs = false; ///< it held what was known, or what we have written since
    };

    [[nodiscard]] const Journal& Known();
    static bool AskAndUninstall(const QString& path);
    void Apply(JournalChanges& changes);
    template <typename Change>
    void Follow(Change&& change) noexcept;

    Journal known_;   ///< as it was read last
    FileState state_; ///< of the journal's file, then
    bool isKnown_ = false;
    QHash<QString, Rewrite> rewrites_; ///< by JournalKey
    std::vector<std::pair<QString, QString>> copies_;
    QTimer resting_;
};
