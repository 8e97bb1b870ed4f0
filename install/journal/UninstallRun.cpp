// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "install/journal/Uninstall.h"

#include "core/GameFiles.h"
#include "install/journal/InstallJournal.h"
#include "install/journal/KeptFiles.h"
#include "personal/mShellMaps.h"
#include "platform/Files.h"
#include "platform/Paths.h"
#include "platform/PrivateName.h"
#include "platform/RuntimeError.h"

#include <QSet>

#include <algorithm>

using namespace Qt::StringLiterals;
using Fate = PlannedRemoval::Fate;

namespace {

class Uninstalling {
public:
    explicit Uninstalling(const UninstallPlan& plan) : plan_(plan) {}

    QStringList Run() {
        for (const PlannedRemoval& file : plan_.Files)
            Do(file);
        // Shell maps change their numbers when a folder goes: the files that went are out of the journal by then.
        InstallJournal::Change([this](Journal& journal) { return TakeOut(journal); });
        RemoveLeftovers();
        RemoveFolders();
        InstallJournal::Change([this](Journal& journal) { return TakeOutFolders(journal); });
        return failures_;
    }

private:
    void Do(const PlannedRemoval& file) {
        const QString& path = file.File.Path;
        try {
            const bool isTouched = file.What == Fate::Goes || file.What == Fate::ComesBack;
            if (isTouched && StateOf(path) != file.Seen)
                throw RuntimeError(ErrorNumber::PermissionDenied, Paths::ToNative(path) + u": was changed meanwhile"_s);
            if (file.What == Fate::Goes)
                Files::DeleteForced(path);
            else if (file.What == Fate::ComesBack)
                PutBack(file.File);
            if (!StaysKnown(file))
                done_.insert(JournalKey(path));
        } catch (const RuntimeError& error) {
            failures_.append(error.Description());
        }
    }

    /// What a changed file has replaced is not lost with the knowledge of it.
    static bool StaysKnown(const PlannedRemoval& file) {
        return (file.What == Fate::Changed || file.What == Fate::Unknown) && !file.File.Kept.isEmpty();
    }

    /// On some systems nothing is renamed over a write-protected file, which steps aside then.
    static void TakePlace(const QString& aside, const QString& path) {
        if (Ignoring([&] { Files::Replace(aside, path); }))
            return;
        const QString old = Paths::Folder(path) + PrivateName();
        Files::Rename(path, old);
        try {
            Files::Replace(aside, path);
        } catch (const RuntimeError&) {
            Ignoring([&] { Files::Rename(old, path); });
            throw;
        }
        Ignoring([&] { Files::DeleteForced(old); });
    }

    /// What is kept aside stays there until the journal names it no longer.
    static void PutBack(const JournalFile& file) {
        const QString kept = InstallJournal::KeptPath(file.Kept);
        if (Ignoring([&] { KeptFiles::Copy(kept, file.Path); }))
            return;
        const QString folder = Paths::Folder(file.Path);
        if (!Files::FileExists(kept))
            throw RuntimeError(ErrorNumber::FileNotFound, Paths::ToNative(kept) + u": what was put aside is gone"_s);
        Files::MakeFolders(folder.chopped(1));
        // A write-protected file goes once the other one is there.
        const QString aside = folder + PrivateName();
        try {
            KeptFiles::Copy(kept, aside);
            TakePlace(aside, file.Path);
        } catch (const RuntimeError&) {
            Ignoring([&] { Files::DeleteForced(aside); });
            throw;
        }
    }

    bool TakeOut(Journal& journal) {
        JournalEntry* const entry = journal.Find(plan_.Id);
        if (entry == nullptr)
            return false;
        for (const PlannedRemoval& file : plan_.Files) {
            if (file.What == Fate::Superseded && !HandOn(journal, file.File))
                done_.remove(JournalKey(file.File.Path));
        }
        std::erase_if(entry->Files, [this](const JournalFile& file) { return done_.contains(JournalKey(file.Path)); });
        return true;
    }

    /// The next install that wrote the file had put this one's aside: in its place it keeps what this one replaced.
    /// False when there is none by now.
    bool HandOn(Journal& journal, const JournalFile& file) const {
        for (JournalEntry& entry : journal.Entries) {
            if (entry.Id <= plan_.Id)
                continue;
            const auto next = std::ranges::find(entry.Files, JournalKey(file.Path),
                                                [](const JournalFile& each) { return JournalKey(each.Path); });
            if (next == entry.Files.end())
                continue;
            next->Replaced = file.Replaced;
            next->Kept = file.Kept;
            next->KeptHash = file.KeptHash;
            return true;
        }
        return false;
    }

    [[nodiscard]] std::optional<int> ShellMapNumber(const QString& folder) const {
        const std::optional<int> number = GameFiles::NumberIn(folder);
        if (!number)
            return std::nullopt;
        const QString meant = GameFiles::ShellMapFolder(plan_.Game, GameFiles::ShellMapName(QString::number(*number)));
        return meant.compare(folder, Qt::CaseInsensitive) == 0 ? number : std::nullopt;
    }

    /// Who goes on with one has it still: then its folder stays too.
    void RemoveLeftovers() const {
        for (const UninstallPlan::Leftover& leftover : plan_.Leftovers) {
            if (StateOf(leftover.Path) == leftover.Seen)
                Ignoring([&] { Files::DeleteForced(leftover.Path); });
        }
    }

    void RemoveFolders() {
        std::vector<int> shellMaps;
        for (const QString& folder : plan_.Folders) {
            // What came in meanwhile, or could not go, keeps it.
            if (!Files::FolderExists(folder) || !Files::ListFolder(folder + u'\\', true).isEmpty())
                continue;
            if (const std::optional<int> number = ShellMapNumber(folder)) {
                shellMaps.push_back(*number);
                continue;
            }
            try {
                Files::RemoveFolder(folder);
            } catch (const RuntimeError& error) {
                failures_.append(error.Description());
            }
        }
        // From the highest number down, as those above a removed one move down.
        std::ranges::sort(shellMaps, std::greater());
        for (const int number : shellMaps)
            mShellMaps::RemoveShellMap(static_cast<qint16>(number), plan_.Game);
    }

    /// A folder that stays as others' files are in it is no longer the install's.
    bool TakeOutFolders(Journal& journal) const {
        JournalEntry* const entry = journal.Find(plan_.Id);
        if (entry == nullptr)
            return false;
        entry->Folders.removeIf([](const QString& folder) { return !Files::FolderExists(folder); });
        if (entry->Files.empty() && failures_.isEmpty())
            std::erase_if(journal.Entries, [this](const JournalEntry& each) { return each.Id == plan_.Id; });
        return true;
    }

    const UninstallPlan& plan_;
    QSet<QString> done_; ///< paths that are out of the journal then, as JournalKey
    QStringList failures_;
};

} // namespace

QStringList Uninstall::Run(const UninstallPlan& plan) {
    return Uninstalling(plan).Run();
}
