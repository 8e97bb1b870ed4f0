// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// What an editor keeps of unsaved changes, in the user's own data folder, so that they outlive the process.
///
/// Each document of each process has a folder of its own, which is locked as long as the process lives. In it lies one
/// file that tells everything, written whole or not at all, and beside it what that file leads to. Without it there is
/// no rescue: what lies in such a folder was never finished.
#pragma once

#include "platform/FolderLock.h"

#include <QByteArray>
#include <QDateTime>
#include <QString>

#include <memory>
#include <vector>

/// What a rescue tells of its document.
struct RescueFacts {
    QString Kind;            ///< which editor's: lower-case letters
    QString Path;            ///< inside path of the document's file
    bool NeverSaved = false; ///< it has no file yet
    QDateTime Time;          ///< when it was kept, in UTC; to the millisecond

    bool operator==(const RescueFacts&) const = default;
};

/// The rescue of one document of this process.
class RescueCopy {
public:
    explicit RescueCopy(QString kind) : kind_(std::move(kind)) {}

    /// Lets go of what was kept: it stays for the next start.
    ~RescueCopy();
    RescueCopy(const RescueCopy&) = delete;
    RescueCopy& operator=(const RescueCopy&) = delete;

    /// Keeps `content` in place of what was kept before: on the disk, and whole or as before, whenever the process
    /// dies. Raises what the disk raises.
    void Keep(const QString& path, bool neverSaved, QByteArrayView content);

    [[nodiscard]] bool IsKept() const { return kept_; }

    /// The folder, made and locked: an inside path with a trailing backslash. Raises when there is none to be had.
    QString Folder();

    /// Nothing is to be rescued any more.
    void Discard();

    /// The same for as long as nothing is kept anew, but what lies beside in the folder stays as long as this lives.
    void Withdraw();

    /// Leaves what is kept as if the process had died; what comes next is another document's.
    void LetGo();

    /// Takes over what a process left, and keeps it from now on. False when another one has it by now.
    bool Adopt(const QString& folder);

private:
    QString kind_;
    QString folder_; ///< with its trailing backslash; empty while there is none
    std::unique_ptr<FolderLock> lock_;
    bool kept_ = false;
};

namespace Rescues {

/// One that a process left which lives no more.
struct Left {
    RescueFacts Facts;
    QString Folder; ///< inside path with a trailing backslash
};

/// Where all of them lie, an inside path without a trailing backslash. It need not exist.
[[nodiscard]] QString Folder();

/// What is left for an editor, the newest first. Of living processes nothing.
[[nodiscard]] std::vector<Left> LeftFor(const QString& kind);

/// What was kept; nothing raises but a file that can't be read, or is none of ours any more.
[[nodiscard]] QByteArray ContentOf(const Left& left);

/// Whether one that was left is there still, and no living process has it.
[[nodiscard]] bool IsLeft(const QString& folder);

/// Removes one that was left; false when a living process has it.
bool ThrowAway(const QString& folder);

/// Removes what dead processes began and never finished.
void Sweep();

} // namespace Rescues
