// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "install/journal/JournalRun.h"

#include "install/journal/InstallJournal.h"
#include "install/journal/JournalText.h"
#include "install/journal/KeptFiles.h"
#include "platform/Files.h"
#include "platform/Paths.h"
#include "platform/RuntimeError.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// A folder that the game or the suite has anyhow.
bool IsGamesOwn(const QString& folder, GameIndex game) {
    const GameEntry& entry = Game.at(static_cast<std::size_t>(game));
    const QStringList own{entry.InstallPath, entry.InstallPath + u"Maps\\"_s, entry.MapPath, entry.ReplayPath};
    return own.contains(folder + u'\\', Qt::CaseInsensitive);
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

JournalRun::JournalRun(QString sourcePath, GameIndex game) : sourcePath_(std::move(sourcePath)) {
    entry_.Game = game;
    entry_.Source = Paths::LastPart(sourcePath_);
    entry_.How = JournalEntry::State::Running;
}

JournalRun::~JournalRun() {
    End();
}

void JournalRun::WillWrite(const QString& path) {
    if (!begun_ && !over_)
        Begin();
    if (over_ || places_.contains(JournalKey(path)))
        return;
    const QString folder = Paths::Folder(path).chopped(1);
    if (!folders_.contains(JournalKey(folder)))
        LookAt(folder);
    Add(path);
}

// The whole of the journal is written twice in an install: here, and at its end.
void JournalRun::Begin() {
    begun_ = true;
    entry_.Time = QDateTime::fromSecsSinceEpoch(QDateTime::currentSecsSinceEpoch(), Qt::UTC);
    Ignoring([&] { entry_.SourceHash = HashOf(sourcePath_).Hash; });
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

// The names in a folder are read once: to look for each of many files without regard to case would read them each time.
void JournalRun::LookAt(const QString& folder) {
    QSet<QString>& names = folders_[JournalKey(folder)];
    if (!Files::FolderExists(folder)) {
        MakesFolder(folder);
        return;
    }
    for (const QString& name : Files::ListFolder(folder + u'\\', true))
        names.insert(JournalKey(name));
    if (names.isEmpty())
        MakesFolder(folder);
}

// Those above it first, where they are missing too.
void JournalRun::MakesFolder(const QString& folder) {
    if (const QString above = ParentOf(folder); !above.isEmpty() && !Files::FolderExists(above))
        MakesFolder(above);
    if (made_.contains(JournalKey(folder)) || IsGamesOwn(folder, entry_.Game))
        return;
    made_.insert(JournalKey(folder));
    entry_.Folders.append(folder);
    AddLine(JournalText::FolderLine(folder));
}

void JournalRun::Add(const QString& path) {
    JournalFile file{.Path = path};
    QSet<QString>& names = folders_[JournalKey(Paths::Folder(path).chopped(1))];
    const QString name = JournalKey(Paths::LastPart(path));
    // Another program may have made it since its folder was looked at.
    if (names.contains(name) || Files::StandingAsGiven(path) == Files::Standing::File)
        PutAside(file);
    names.insert(name);
    places_.insert(JournalKey(path), entry_.Files.size());
    entry_.Files.push_back(file);
    AddLine(JournalText::FileLine(file));
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
    if (!over_ && places_.contains(JournalKey(path)))
        Ignoring([&] { hashed = HashOf(path); });
    WrittenAs(path, hashed);
}

void JournalRun::WrittenAs(const QString& path, const HashedFile& hashed) {
    const auto place = places_.constFind(JournalKey(path));
    if (over_ || place == places_.constEnd())
        return;
    JournalFile& file = entry_.Files[*place];
    file.Hash = hashed.Hash;
    file.Length = hashed.Length;
    AddLine(JournalText::FileLine(file));
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
