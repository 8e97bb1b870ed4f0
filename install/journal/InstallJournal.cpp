// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "install/journal/InstallJournal.h"

#include "install/journal/JournalText.h"
#include "platform/File.h"
#include "platform/Files.h"
#include "platform/FolderLock.h"
#include "platform/Leftovers.h"
#include "platform/OwnFolder.h"
#include "platform/Paths.h"
#include "platform/RuntimeError.h"
#include "platform/WriteAside.h"

#include <QSet>

using namespace Qt::StringLiterals;

namespace {

/// The lock that all who change the journal take. Nobody holds it for longer than a save takes.
class JournalLock {
public:
    JournalLock() {
        constexpr std::chrono::seconds patience{5};
        Files::MakeFolders(InstallJournal::Folder());
        lock_.emplace(FolderLock::WaitedFor(InstallJournal::Folder(), patience));
        if (!lock_->Held())
            throw RuntimeError(ErrorNumber::PermissionDenied,
                               Paths::ToNative(InstallJournal::File()) + Reason(lock_->State()));
    }

private:
    static QString Reason(FolderLock::Result state) {
        return state == FolderLock::Result::Taken ? u": another program is changing it"_s
                                                  : u": its folder can't be locked"_s;
    }

    std::optional<FolderLock> lock_;
};

/// What the file holds; nothing when that is no journal.
std::optional<Journal> Stored() {
    if (!Files::FileExists(InstallJournal::File()))
        return Journal();
    return JournalText::Decode(ReadWhole(InstallJournal::File()));
}

Journal Recognised(std::optional<Journal> journal) {
    if (!journal)
        throw RuntimeError(ErrorNumber::PathFileAccess,
                           Paths::ToNative(InstallJournal::File()) + u": the journal of installs is damaged"_s);
    return std::move(*journal);
}

/// Who installs holds the lock on the install's own folder until the end.
void Recover(JournalEntry& entry) {
    if (entry.How != JournalEntry::State::Running ||
        FolderLock(InstallJournal::FolderOf(entry.Id)).State() == FolderLock::Result::Taken)
        return;
    entry.How = JournalEntry::State::BrokenOff;
    Ignoring([&] { JournalText::ReadLines(ReadWhole(InstallJournal::LinesOf(entry.Id)), entry); });
}

Journal Recovered(Journal journal) {
    for (JournalEntry& entry : journal.Entries)
        Recover(entry);
    return journal;
}

QSet<QString> KeptIn(const Journal& journal) {
    QSet<QString> kept;
    for (const JournalEntry& entry : journal.Entries) {
        for (const JournalFile& file : entry.Files) {
            if (!file.Kept.isEmpty())
                kept.insert(file.Kept);
        }
    }
    return kept;
}

int IdOf(const QString& kept) {
    return kept.first(kept.indexOf(u'\\')).toInt();
}

/// What lies beside the journal for installs that need it no longer. What can't be deleted stays.
void Clear(const Journal& before, const Journal& after) {
    const QSet<QString> needed = KeptIn(after);
    QSet<int> done;
    for (const QString& kept : KeptIn(before) - needed) {
        Ignoring([&] { Files::DeleteForced(InstallJournal::KeptPath(kept)); });
        done.insert(IdOf(kept));
    }
    for (const JournalEntry& entry : before.Entries) {
        if (entry.How != JournalEntry::State::Ended || after.Find(entry.Id) == nullptr)
            done.insert(entry.Id);
    }
    QSet<int> inUse;
    for (const QString& kept : needed)
        inUse.insert(IdOf(kept));
    for (const int id : done) {
        const JournalEntry* const now = after.Find(id);
        if (now != nullptr && now->How == JournalEntry::State::Running)
            continue;
        if (!inUse.contains(id))
            Files::DeleteFolder(InstallJournal::FolderOf(id));
        else
            Ignoring([&] { Files::DeleteForced(InstallJournal::LinesOf(id)); });
    }
}

} // namespace

QString InstallJournal::File() {
    return OwnFolder() + u"\\installed.json"_s;
}

QString InstallJournal::Folder() {
    return OwnFolder() + u"\\installed"_s;
}

QString InstallJournal::FolderOf(int id) {
    return Folder() + u'\\' + QString::number(id);
}

QString InstallJournal::LinesOf(int id) {
    return FolderOf(id) + u"\\files.jsonl"_s;
}

QString InstallJournal::KeptPath(const QString& kept) {
    return Folder() + u'\\' + kept;
}

Journal InstallJournal::Read() {
    // An install that ends meanwhile takes its lines away once they stand in the journal.
    for (;;) {
        const FileState before = StateOf(File());
        Journal journal = Recovered(Recognised(Stored()));
        if (StateOf(File()) == before)
            return journal;
    }
}

void InstallJournal::Change(const std::function<bool(Journal&)>& change) {
    const JournalLock lock;
    for (const QString& install : Files::ListFolder(Folder() + u'\\', true))
        Leftovers::Sweep(Paths::ToNative(Folder() + u'\\' + install) + u'/');
    const Journal before = Recovered(Recognised(Stored()));
    Journal after = before;
    if (!change(after))
        return;
    WriteWhole(File(), JournalText::Encode(after));
    Clear(before, after);
}

QString InstallJournal::SetDamagedAside() {
    const JournalLock lock;
    if (Stored())
        return {};
    int number = 1;
    const auto name = [&] { return OwnFolder() + u"\\installed.damaged-%1.json"_s.arg(number); };
    while (Files::FileExists(name()))
        ++number;
    Files::Rename(File(), name());
    return Paths::ToNative(name());
}
