// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The bytes of new entries beside a rescue: copied once, when their file is new or another one, since that may go.
#pragma once

#include "platform/File.h"
#include "platform/WriteAside.h"

#include <QString>

#include <map>
#include <memory>
#include <set>
#include <vector>

class RescueContents {
public:
    RescueContents();
    ~RescueContents();
    RescueContents(const RescueContents&) = delete;
    RescueContents& operator=(const RescueContents&) = delete;

    /// Copies what is missing of these files (inside paths) into `folder` (with its backslash), for about as long as
    /// nobody notices; returns whether there is more. A file that can't be copied is left where it is.
    bool CopySome(const std::vector<QString>& sources, const QString& folder);

    /// Why the last file that was not copied was not; empty when all were. Told once.
    [[nodiscard]] QString TakeFailure();

    /// The number under which a file's bytes lie in the folder: its name there. -1 while they don't.
    [[nodiscard]] int NumberOf(const QString& source, const QString& folder) const;

    /// All that was copied is on the disk, so that a rescue may name it.
    void Flush(const QString& folder);

    /// Removes what nobody names any more, as the rescue that is kept names only these.
    void RemoveOthers(const std::set<int>& named, const QString& folder);

    /// The folder has gone, or is another one now.
    void Forget();

private:
    struct Content {
        FileState State; ///< of the file as it was copied
        int Number;      ///< -1: it could not be
    };

    struct Copying;

    void Begin(const QString& source, const FileState& state, const QString& folder);
    void GoOn();
    void Fail(const QString& reason);
    [[nodiscard]] static int FreeNumber(const QString& folder, int from);

    std::map<QString, Content> contents_; ///< by source
    std::unique_ptr<Copying> copying_;
    QString failure_;
    int lastNumber_ = 0;
    qint64 copied_ = 0; ///< bytes, by this call
    bool flushed_ = true;
};
