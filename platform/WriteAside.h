// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The one way to save over a file: whoever looks finds the old file or the new one, whole, whenever the process dies.
#pragma once

#include "platform/File.h"
#include "platform/HeldFolder.h"

#include <QByteArrayView>
#include <QString>

/// Writes a file of a private name beside the target and puts it in the target's place. Every message names the target.
class WriteAside {
public:
    enum class Names {
        LookedUp, ///< without regard to case
        AsGiven,  ///< the case is known to be right
    };

    /// Makes the file aside, which nobody else may read, in the folder of the target (an inside path); a target that is
    /// a link is followed. Raises 70 for a target that is write-protected, 75 for one that is no plain file, 76 for one
    /// in no folder, before anything is written.
    explicit WriteAside(const QString& target, Names names = Names::LookedUp);

    enum class Old {
        Kept,    ///< the new file gets what the old one has, and a write-protected one is refused
        Dropped, ///< as if it were not there
    };

    /// The same for a name in a folder that is held: in no other one anything is written, and a link that stands there
    /// is replaced itself. Raises 70 and 75 as above, and 76 for a folder that has been removed.
    explicit WriteAside(const FilePlace& target, Old old = Old::Kept);

    /// Removes what was not committed.
    ~WriteAside();
    WriteAside(const WriteAside&) = delete;
    WriteAside& operator=(const WriteAside&) = delete;

    /// What is to be written to; stays open until Commit.
    [[nodiscard]] File& Out() { return out_; }

    /// Gives the file the target's permissions, and its owner as far as that is allowed (a new target gets the usual
    /// ones), closes it and puts it in the target's place in one step. When something fails, the target is as it was.
    /// Without `flush` all this is not waited for to be on the disk. To be called once.
    void Commit(bool flush = true);

    /// Where the bytes are until then, an inside path, of a target that was given by one: for those who must name it.
    [[nodiscard]] QString AsidePath() const;

private:
    [[noreturn]] void Raise(long error) const;
    void MakeAside();

    std::shared_ptr<const HeldFolder> folder_; ///< null where the paths below are whole ones
    bool isOldDropped_ = false;
    QString name_;   ///< the target as messages name it
    QString target_; ///< the system's path, links followed; without its folder where that is held
    QString aside_;  ///< likewise
    File out_;
};

/// Saves bytes as a whole file.
void WriteWhole(const QString& path, QByteArrayView bytes);
