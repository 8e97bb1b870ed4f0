// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Looking for a text in an archive's names and in its text entries, without regard to case.
#pragma once

#include "big/document/TextPattern.h"
#include "big/format/Archive.h"
#include "platform/File.h"

#include <QString>

#include <atomic>
#include <functional>
#include <mutex>
#include <stop_token>
#include <vector>

namespace ArchiveSearch {

/// Whether the extension of a name is that of a kind of text: INI, TXT, STR, CSF, WND, XML or LUA.
bool IsText(const QString& name);

/// The indices of the entries whose name holds the text, or whose last part fits it as a pattern with * and ?. Deleted
/// ones are none.
std::vector<int> InNames(const Archive& archive, const QString& text);

} // namespace ArchiveSearch

/// Looks into the text entries, into the values of a string table too.
class TextSearch {
public:
    /// Told from any thread, one at a time: the entry looked at, whether the text is in it, and how far the search is.
    using Watch = std::function<void(int index, bool found, int percent)>;

    /// Opens the archive's file and looks new entries' files up, as paths belong to the thread that has the window; the
    /// archive is not needed any more behind this.
    TextSearch(const Archive& archive, const QString& text);

    /// Returns when all are done or a stop was asked for; may be called on a thread of its own, once, and uses as many
    /// as are worth it. An entry that can't be read is passed over. Returns how many were.
    int Run(const std::stop_token& stop, const Watch& watch);

private:
    struct Text {
        int Index;
        qint64 Offset;
        qint64 Size;
        bool IsTable;
    };

    /// Texts of one file that lie behind each other.
    struct Job {
        std::vector<Text> Texts;
        QString Path;   ///< of a new entry's file; empty for the archive
        qint64 End = 0; ///< of the last text
    };

    void MakeJobs(std::vector<Text> old);
    void Work(const std::stop_token& stop, const Watch& watch);
    /// Counts in `done` what was looked at, for the case that it raises.
    void Look(const Job& job, std::size_t& done, const std::stop_token& stop, const Watch& watch);
    void Tell(const Text& text, bool found, const Watch& watch);

    File archive_;
    std::vector<TextPattern> plain_;
    std::vector<TextPattern> table_;
    qsizetype longest_ = 0; ///< of the patterns, in bytes
    std::vector<Job> jobs_;
    std::atomic<std::size_t> next_ = 0;
    std::atomic<int> unread_ = 0;
    std::mutex telling_;
    qint64 looked_ = 0;
    qint64 total_ = 0;
};
