// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "install/journal/Uninstall.h"

#include "install/journal/InstallJournal.h"
#include "platform/Files.h"
#include "platform/Paths.h"
#include "platform/PrivateName.h"
#include "platform/RuntimeError.h"

#include <QHash>
#include <QSet>

#include <algorithm>

using namespace Qt::StringLiterals;
using Fate = PlannedRemoval::Fate;

namespace {

/// What later installs know of the files that they wrote anew.
using LaterFiles = QHash<QString, const JournalFile*>;

LaterFiles FilesBehind(const Journal& journal, int id) {
    LaterFiles later;
    for (const JournalEntry& entry : journal.Entries) {
        if (entry.Id <= id)
            continue;
        for (const JournalFile& file : entry.Files) {
            if (const QString key = JournalKey(file.Path); !later.contains(key))
                later.insert(key, &file); // the next one counts: it keeps what this one wrote
        }
    }
    return later;
}

bool Holds(const JournalFile& file, const QByteArray& hash, qint64 length) {
    HashedFile now;
    return Ignoring([&] {
               if (length < 0 || Files::FileLength(file.Path) == length)
                   now = HashOf(file.Path);
           }) &&
           !hash.isEmpty() && now.Hash == hash;
}

Fate FateOf(const JournalFile& file, const LaterFiles& later) {
    const bool isKept = !file.Kept.isEmpty();
    if (const JournalFile* const next = later.value(JournalKey(file.Path)); next != nullptr) {
        const bool keepsThis = next->Kept.isEmpty() || next->KeptHash == file.Hash;
        return keepsThis ? Fate::Superseded : Fate::Changed;
    }
    // What a link leads to is not the install's.
    if (Files::IsLink(file.Path))
        return Fate::Changed;
    if (!Files::FileExists(file.Path))
        return isKept ? Fate::ComesBack : Fate::Gone;
    if (Holds(file, file.Hash, file.Length))
        return isKept ? Fate::ComesBack : Fate::Goes;
    if (isKept && Holds(file, file.KeptHash, -1))
        return Fate::Gone;
    return file.Hash.isEmpty() ? Fate::Unknown : Fate::Changed;
}

bool IsLonger(const QString& first, const QString& second) {
    return first.size() > second.size();
}

/// A file that was not finished as its process died: it never was anybody's.
bool IsLeftover(const QString& path) {
    return IsPrivateName(Paths::LastPart(path)) && !Files::IsLinkAsGiven(path) &&
           Files::StandingAsGiven(path) == Files::Standing::File;
}

/// Which of an install's folders hold nothing but what goes.
void FindFoldersThatEmpty(QStringList folders, UninstallPlan& plan) {
    QSet<QString> going;
    for (const QString& path : plan.Paths(Fate::Goes))
        going.insert(JournalKey(path));
    std::ranges::stable_sort(folders, IsLonger); // those below first
    for (const QString& folder : folders) {
        if (!Files::FolderExists(folder) || Files::IsLink(folder))
            continue;
        const QStringList names = Files::ListFolder(folder + u'\\', true);
        QStringList leftovers;
        const auto goes = [&](const QString& name) {
            const QString path = folder + u'\\' + name;
            const bool isLeftover = IsLeftover(path);
            if (isLeftover)
                leftovers += path;
            return isLeftover || going.contains(JournalKey(path));
        };
        if (!std::ranges::all_of(names, goes))
            continue;
        going.insert(JournalKey(folder));
        plan.Folders.append(folder);
        for (const QString& path : leftovers)
            plan.Leftovers.push_back({.Path = path, .Seen = StateOf(path)});
    }
}

const JournalEntry& EntryOf(const Journal& journal, int id) {
    const JournalEntry* const entry = journal.Find(id);
    if (entry == nullptr)
        throw RuntimeError(ErrorNumber::InvalidCall, u"%1: there is no such install"_s.arg(id));
    if (entry->How == JournalEntry::State::Running)
        throw RuntimeError(ErrorNumber::PermissionDenied, u"%1: the install is still going on"_s.arg(id));
    return *entry;
}

} // namespace

QStringList UninstallPlan::Paths(Fate fate) const {
    QStringList paths;
    for (const PlannedRemoval& file : Files) {
        if (file.What == fate)
            paths.append(file.File.Path);
    }
    return paths;
}

UninstallPlan Uninstall::Plan(const Journal& journal, int id) {
    const JournalEntry& entry = EntryOf(journal, id);
    UninstallPlan plan{
        .Id = id, .Time = entry.Time, .Source = entry.Source, .Game = entry.Game, .Files = {}, .Folders = {}};
    const LaterFiles later = FilesBehind(journal, id);
    plan.Files.reserve(entry.Files.size());
    for (const JournalFile& file : entry.Files) {
        const FileState seen = StateOf(file.Path);
        plan.Files.push_back({.File = file, .What = FateOf(file, later), .Seen = seen});
    }
    FindFoldersThatEmpty(entry.Folders, plan);
    return plan;
}

void Uninstall::Forget(int id) {
    InstallJournal::Change([id](Journal& journal) {
        EntryOf(journal, id);
        std::erase_if(journal.Entries, [id](const JournalEntry& entry) { return entry.Id == id; });
        return true;
    });
}
