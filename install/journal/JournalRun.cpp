// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "install/journal/JournalRun.h"

#include "install/journal/InstallJournal.h"
#include "install/journal/JournalText.h"
#include "install/journal/KeptFiles.h"
#include "platform/Files.h"
#include "platform/Leftovers.h"
#include "platform/Paths.h"
#include "platform/RuntimeError.h"

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

/// A folder that the game or the suite has anyhow.
bool IsGamesOwn(const QString& folder, GameIndex game) {
    const GameEntry& entry = Game.at(static_cast<std::size_t>(game));
    const auto is = [&](const QString& own) {
        return own.size() == folder.size() + 1 && own.startsWith(folder, Qt::CaseInsensitive) && own.endsWith(u'\\');
    };
    return is(entry.InstallFolder()) || is(entry.InstallFolder() + u"Maps\\"_s) || is(entry.MapFolder()) ||
           is(entry.ReplayFolder());
}

QString ParentOf(const QString& folder) {
    const qsizetype split = folder.lastIndexOf(u'\\');
    return split <= 0 ? QString() : folder.first(split);
}

/// A number that no install had, as far as the journal or what lies beside it tells.
int FreeId(const Journal& journal) {
    int id = journal.NextId;
    while (Files::FolderExists(InstallJournal::FolderOf(id)))
        ++id;
    return id;
}

} // namespace

JournalRun::JournalRun(const QString& sourcePath, GameIndex game) : sourceHash_(sourcePath) {
    entry_.Game = game;
    entry_.Source = Paths::LastPart(sourcePath);
    entry_.How = JournalEntry::State::Running;
}

JournalRun::~JournalRun() {
    End();
}

void JournalRun::MadeFolder(const QString& path) {
    folders_.try_emplace(JournalKey(path + u'\\'), Folder{.Names = {}, .IsNew = true});
}

void JournalRun::WillWrite(const QString& path) {
    if (!begun_ && !over_)
        Begin();
    if (over_)
        return;
    Folder& folder = FolderAt(path);
    const QString key = JournalKey(Paths::LastPart(path));
    const auto found = folder.Names.find(key);
    const bool isKnown = found != folder.Names.end();
    const bool isOurs = isKnown && found->second != Folder::StoodBefore;
    const auto place = static_cast<std::size_t>(isOurs ? found->second : 0);
    if (isOurs && promised_ != place && !broken_.contains(place))
        return;
    JournalFile file{.Path = path};
    // Another program may have made it since its folder was looked at.
    if ((isKnown && !isOurs) || Files::StandingAsGiven(path) == Files::Standing::File)
        PutAside(file);
    if (!isOurs)
        return Add(std::move(file), key, folder);
    // What was promised of it could not be put there.
    BreakPromise();
    broken_.erase(place);
    entry_.Files[place] = std::move(file);
    AddLine(JournalText::FileLine(entry_.Files[place]));
}

bool JournalRun::WillPut(const QString& path, const HashedFile& hashed) {
    if (!begun_ && !over_)
        Begin();
    if (over_)
        return true;
    Folder& folder = FolderAt(path);
    const QString key = JournalKey(Paths::LastPart(path));
    if (folder.Names.contains(key))
        return false;
    BreakPromise();
    promised_ = entry_.Files.size();
    Add({.Path = path, .Hash = hashed.Hash, .Length = hashed.Length}, key, folder);
    return true;
}

/// What was promised of a file that was not put is not what it holds, if it is ever there.
void JournalRun::BreakPromise() {
    if (!promised_)
        return;
    const std::size_t place = *std::exchange(promised_, std::nullopt);
    broken_.insert(place);
    entry_.Files[place].Hash.clear();
    AddLine(JournalText::FileLine(entry_.Files[place]));
}

// The whole of the journal is written twice in an install: here, and at its end.
void JournalRun::Begin() {
    begun_ = true;
    entry_.Time = QDateTime::fromSecsSinceEpoch(QDateTime::currentSecsSinceEpoch(), Qt::UTC);
    entry_.SourceHash = sourceHash_->Result();
    sourceHash_.reset();
    try {
        const QString aside = InstallJournal::SetDamagedAside();
        if (!aside.isEmpty())
            told_.append(u"%1: the journal of installs was damaged and is kept here"_s.arg(aside));
        InstallJournal::Change([&](Journal& journal) {
            Enter(journal);
            return true;
        });
    } catch (const RuntimeError& error) {
        told_.append(error.Description());
        over_ = true;
        Abandon();
    }
}

/// What was begun beside the journal goes.
void JournalRun::Abandon() {
    lines_ = File();
    if (!own_)
        return;
    own_.reset();
    Files::DeleteFolder(InstallJournal::FolderOf(entry_.Id));
}

void JournalRun::Enter(Journal& journal) {
    entry_.Id = FreeId(journal);
    journal.NextId = entry_.Id + 1;
    Files::MakeFolder(InstallJournal::FolderOf(entry_.Id));
    own_.emplace(InstallJournal::FolderOf(entry_.Id));
    lines_ = File::Open(InstallJournal::LinesOf(entry_.Id), File::Access::New);
    journal.Entries.push_back(entry_);
}

/// The folder that a file lies in.
JournalRun::Folder& JournalRun::FolderAt(const QString& path) {
    const QStringView folder = QStringView(path).first(path.lastIndexOf(u'\\') + 1);
    if (last_ == nullptr || lastPath_ != folder) {
        lastPath_ = folder.toString();
        const auto [place, isNew] = folders_.try_emplace(JournalKey(lastPath_));
        last_ = &place->second;
        if (isNew)
            LookAt(lastPath_, *last_);
        else if (std::exchange(last_->IsNew, false))
            TakeFolder(lastPath_.chopped(1));
    }
    return *last_;
}

/// Null for one that was not announced.
JournalFile* JournalRun::FileAt(const QString& path) {
    if (!begun_ || over_)
        return nullptr;
    const auto folder = folders_.find(JournalKey(Paths::Folder(path)));
    if (folder == folders_.end())
        return nullptr;
    const auto found = folder->second.Names.find(JournalKey(Paths::LastPart(path)));
    const bool isOurs = found != folder->second.Names.end() && found->second != Folder::StoodBefore;
    return isOurs ? &entry_.Files[static_cast<std::size_t>(found->second)] : nullptr;
}

// The names in a folder are read once: to look for each of many files without regard to case would read them each time.
void JournalRun::LookAt(const QString& path, Folder& folder) {
    const QString made = path.chopped(1);
    if (!Files::FolderExists(made)) {
        MakesFolder(made);
        return;
    }
    Leftovers::Sweep(Paths::ToNative(path)); // they are nobody's, and did not stand here before
    for (const QString& name : Files::ListFolder(path, true))
        folder.Names.emplace(JournalKey(name), Folder::StoodBefore);
    if (folder.Names.empty())
        MakesFolder(made);
}

// Those above it first, where they are missing too.
void JournalRun::MakesFolder(const QString& folder) {
    if (const QString above = ParentOf(folder); !above.isEmpty() && !Files::FolderExists(above))
        MakesFolder(above);
    TakeFolder(folder);
}

/// Makes it the install's.
void JournalRun::TakeFolder(const QString& folder) {
    if (made_.contains(JournalKey(folder)) || IsGamesOwn(folder, entry_.Game))
        return;
    made_.insert(JournalKey(folder));
    entry_.Folders.append(folder);
    AddLine(JournalText::FolderLine(folder));
}

void JournalRun::Add(JournalFile file, const QString& key, Folder& folder) {
    folder.Names.insert_or_assign(key, static_cast<qsizetype>(entry_.Files.size()));
    entry_.Files.push_back(std::move(file));
    AddLine(JournalText::FileLine(entry_.Files.back()));
}

void JournalRun::PutAside(JournalFile& file) {
    if (!Files::FileExists(file.Path))
        return;
    file.Replaced = true;
    const QString kept = u"%1\\%2"_s.arg(entry_.Id).arg(keptCount_ + 1);
    try {
        KeptFiles::Copy(file.Path, InstallJournal::KeptPath(kept));
        file.KeptHash = HashOf(InstallJournal::KeptPath(kept)).Hash;
        file.Kept = kept;
        ++keptCount_;
    } catch (const RuntimeError& error) {
        Tell(file.Path, u"what stood there could not be put aside ("_s + error.Description() + u')');
    }
}

// Not flushed: it is for a process that dies, and a file each would wait for the disk.
void JournalRun::AddLine(const QByteArray& line) {
    const bool added = Ignoring([&] {
        lines_.Write(length_, line);
        length_ += line.size();
    });
    if (!added && !told_.contains(lines_.Name()))
        told_.append(lines_.Name());
}

void JournalRun::Written(const QString& path) {
    HashedFile hashed;
    if (FileAt(path) != nullptr)
        Ignoring([&] { hashed = HashOf(path); });
    WrittenAs(path, hashed);
}

void JournalRun::WrittenAs(const QString& path, const HashedFile& hashed) {
    if (promised_ && !over_ && entry_.Files[*promised_].Path == path) { // its line tells all
        promised_.reset();
        return;
    }
    JournalFile* const file = FileAt(path);
    if (file == nullptr)
        return;
    file->Hash = hashed.Hash;
    file->Length = hashed.Length;
    AddLine(JournalText::FileLine(*file));
}

void JournalRun::End() {
    const bool wanted = begun_ && !over_;
    over_ = true;
    if (!wanted)
        return;
    Settle();
    entry_.How = JournalEntry::State::Ended;
    lines_ = File();
    try {
        InstallJournal::Change([&](Journal& journal) {
            own_.reset(); // not before: others would read its lines
            std::erase_if(journal.Entries, [&](const JournalEntry& entry) { return entry.Id == entry_.Id; });
            if (entry_.Files.empty() && entry_.Folders.isEmpty())
                return true;
            const auto place = std::ranges::upper_bound(journal.Entries, entry_.Id, {}, &JournalEntry::Id);
            journal.Entries.insert(place, entry_);
            journal.NextId = std::max(journal.NextId, entry_.Id + 1);
            return true;
        });
        for (const QString& kept : std::as_const(notNeeded_))
            Ignoring([&] { Files::DeleteForced(InstallJournal::KeptPath(kept)); });
    } catch (const RuntimeError& error) {
        told_.append(error.Description());
    }
}

// What a step that failed did not write is none of the install's.
void JournalRun::Settle() {
    BreakPromise();
    std::erase_if(entry_.Files, [this](const JournalFile& file) {
        if (!file.Hash.isEmpty())
            return false;
        HashedFile now;
        const bool isThere = Ignoring([&] { now = HashOf(file.Path); });
        const bool isAsBefore = file.Kept.isEmpty() ? !file.Replaced && !isThere : isThere && now.Hash == file.KeptHash;
        if (isAsBefore && !file.Kept.isEmpty())
            notNeeded_.append(file.Kept);
        return isAsBefore;
    });
    entry_.Folders.removeIf([](const QString& folder) { return !Files::FolderExists(folder); });
}

void JournalRun::Tell(const QString& path, const QString& text) {
    told_.append(Paths::ToNativeAsGiven(path) + u": "_s + text);
}
