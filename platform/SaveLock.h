// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// What keeps two programs from changing one file at the same time: who reads a file to write it anew holds this from
/// before the reading until behind the writing.
#pragma once

#include <QString>

#include <memory>

class File;

/// Locks a file, links followed, while it lives or until another one takes the file's place: who waits finds the one
/// that was saved. A process may hold it several times. Where no lock is to be had (no such file, a file system without
/// locks) there is none, and all goes on.
class SaveLock {
public:
    /// Waits for another program's save; raises 70, naming the file, when that takes longer than ten seconds.
    explicit SaveLock(const QString& path);

private:
    std::shared_ptr<File> lock_;
};
