// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// A world with the four games, and installs in it that keep their journal.
#pragma once

#include "install/journal/InstallJournal.h"
#include "install/journal/JournalRun.h"
#include "install/journal/JournalText.h"
#include "install/journal/Uninstall.h"
#include "tests/personal/lists_support.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <ostream>

inline void PrintTo(PlannedRemoval::Fate fate, std::ostream* out) {
    *out << "fate " << static_cast<int>(fate);
}

class JournalTest : public ListTest {
protected:
    using Fate = PlannedRemoval::Fate;
    using State = JournalEntry::State;

    /// The file that is installed.
    [[nodiscard]] QString Source(const QString& name = QStringLiteral("Pack.zip")) const {
        return Write(world_.Root() + QStringLiteral("\\downloads\\") + name, "abc");
    }

    [[nodiscard]] static QString InGame(const QString& name) { return Game[0].InstallPath + name; }

    [[nodiscard]] static QString InMaps(const QString& name) { return Game[0].MapPath + name; }

    /// One step of an install that is done.
    void Step(JournalRun& run, const QString& path, const QByteArray& bytes) const {
        run.WillWrite(path);
        Write(path, bytes);
        run.Written(path);
    }

    /// A whole install; returns its number.
    int InstallFiles(const QList<std::pair<QString, QByteArray>>& files, GameIndex game = 0) const {
        JournalRun run(Source(), game);
        for (const auto& [path, bytes] : files)
            Step(run, path, bytes);
        run.End();
        EXPECT_EQ(run.Told(), QStringList());
        const Journal journal = InstallJournal::Read();
        return journal.Entries.empty() ? 0 : journal.Entries.back().Id;
    }

    /// What a process leaves behind that dies in the middle of an install.
    void BreakOff(const QString& source, const std::function<void(JournalRun&)>& steps) const {
        QByteArray journal;
        QByteArray lines;
        int id = 0;
        {
            JournalRun run(source, 0);
            steps(run);
            id = InstallJournal::Read().Entries.back().Id;
            journal = World::ReadFile(InstallJournal::File());
            lines = World::ReadFile(InstallJournal::LinesOf(id));
            Files::MakeFolder(Kept(id) + QStringLiteral(" away"));
            for (const QString& name : Files::ListFolder(Kept(id) + QStringLiteral("\\?")))
                Files::Copy(Kept(id) + u'\\' + name, Kept(id) + QStringLiteral(" away\\") + name);
        }
        Files::DeleteFolder(Kept(id));
        Files::Rename(Kept(id) + QStringLiteral(" away"), Kept(id));
        Write(InstallJournal::File(), journal);
        Write(InstallJournal::LinesOf(id), lines);
    }

    static QString Kept(int id) { return InstallJournal::FolderOf(id); }

    [[nodiscard]] static JournalEntry Entry(int id) {
        const Journal journal = InstallJournal::Read();
        const JournalEntry* const entry = journal.Find(id);
        EXPECT_NE(entry, nullptr) << id;
        return entry == nullptr ? JournalEntry() : *entry;
    }

    [[nodiscard]] static bool IsKnown(int id) { return InstallJournal::Read().Find(id) != nullptr; }

    [[nodiscard]] static QStringList PathsOf(int id) {
        QStringList paths;
        for (const JournalFile& file : Entry(id).Files)
            paths += file.Path;
        return paths;
    }

    [[nodiscard]] static UninstallPlan PlanOf(int id) { return Uninstall::Plan(InstallJournal::Read(), id); }

    /// Uninstalls; returns what could not be done.
    static QStringList UninstallIt(int id) { return Uninstall::Run(PlanOf(id)); }

    [[nodiscard]] static QByteArray Bytes(const QString& path) { return World::ReadFile(path); }

    /// The names of files and folders beside the journal.
    [[nodiscard]] static QStringList Aside() { return Files::ListFolder(InstallJournal::Folder() + u'\\', true); }

    [[nodiscard]] static QJsonObject Json() {
        return QJsonDocument::fromJson(World::ReadFile(InstallJournal::File())).object();
    }
};
