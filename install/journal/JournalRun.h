// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// One install as it goes on: what it writes is in the journal before it is written, so that an install that fails or
/// dies halfway can be uninstalled too.
#pragma once

#include "core/Game.h"
#include "install/BackgroundHash.h"
#include "install/FileWatch.h"
#include "install/journal/Journal.h"
#include "platform/File.h"
#include "platform/FolderLock.h"

#include <QSet>

#include <map>
#include <optional>
#include <set>
#include <unordered_map>

/// Nothing here raises: an install goes on without its journal, and Told says why. An install that writes nothing
/// leaves no entry.
class JournalRun : public FileWatch {
public:
    /// `sourcePath` is the inside path of the file that is installed: a ZIP, or a file as it lies there.
    JournalRun(const QString& sourcePath, GameIndex game);
    /// Ends it.
    ~JournalRun() override;
    JournalRun(const JournalRun&) = delete;
    JournalRun& operator=(const JournalRun&) = delete;

    /// A folder is known to be new: nobody need look. It is the install's when a file comes into it.
    void MadeFolder(const QString& path) override;
    /// To be called before each step that writes a file (inside path), again where a second step writes it anew. A file
    /// that stands there is put aside, once. Folders on the way to it that are missing, or empty as they have just been
    /// made, are the install's.
    void WillWrite(const QString& path) override;
    /// The same for a file that is put where nothing stands. False where something does.
    bool WillPut(const QString& path, const HashedFile& hashed) override;
    /// To be called behind each such step that was done.
    void Written(const QString& path) override;
    /// The same with what was written, hashed on the way: the file is not read again.
    void WrittenAs(const QString& path, const HashedFile& hashed) override;
    /// The end, as far as it came; calls behind it do nothing.
    void End();

    /// What a user should know of the journal itself, a line each; paths as the system writes them.
    [[nodiscard]] const QStringList& Told() const { return told_; }

private:
    void Begin();
    void Abandon();
    void Enter(Journal& journal);

    /// The names in a folder that was looked at, as JournalKey, and which of the entry's files each is.
    struct Folder {
        static constexpr qsizetype StoodBefore = -1;
        std::unordered_map<QString, qsizetype> Names; ///< mostly few
        bool IsNew = false;                           ///< it was made, and is not yet the entry's
    };

    Folder& FolderAt(const QString& path);
    [[nodiscard]] JournalFile* FileAt(const QString& path);
    void LookAt(const QString& path, Folder& folder);
    void MakesFolder(const QString& folder);
    void TakeFolder(const QString& folder);
    void Add(JournalFile file, const QString& key, Folder& folder);
    void BreakPromise();
    void PutAside(JournalFile& file);
    void AddLine(const QByteArray& line);
    void Settle();
    void Tell(const QString& path, const QString& text);

    std::optional<BackgroundHash> sourceHash_; ///< until the first step asks for it
    JournalEntry entry_;
    bool begun_ = false;
    bool over_ = false;             ///< it has ended, or there is no journal for it
    std::optional<FolderLock> own_; ///< tells others that this install lives
    File lines_;
    qint64 length_ = 0;                 ///< of the lines, bytes
    int keptCount_ = 0;                 ///< files put aside
    std::map<QString, Folder> folders_; ///< those that were looked at, by their paths as JournalKey
    Folder* last_ = nullptr;            ///< of them
    QString lastPath_;
    std::optional<std::size_t> promised_; ///< the file that is to be put
    std::set<std::size_t> broken_;        ///< files that were to be, and were not
    QSet<QString> made_;                  ///< the entry's folders, as JournalKey
    QStringList notNeeded_;               ///< put aside, but not replaced in the end
    QStringList told_;
};
