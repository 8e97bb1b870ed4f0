// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Dropping many files gives the table that a search from the first record on gives for each of them.
#include "core/LostLetters.h"
#include "platform/Files.h"
#include "platform/Paths.h"
#include "tests/big/document_fixture.h"
#include "tests/support/Printing.h"

#include <QRandomGenerator>

using namespace Qt::StringLiterals;
using Answer = Host::Answer;

namespace {

/// Everything that the table holds, a line a record.
QStringList Told(const std::vector<BigEntry>& table) {
    QStringList lines;
    for (const BigEntry& entry : table)
        lines += u"%1 from %2, %3 at %4%5%6"_s.arg(entry.Name, entry.SourcePath)
                     .arg(entry.Size)
                     .arg(entry.Offset)
                     .arg(entry.IsNew ? u", new"_s : QString(), entry.Deleted ? u", deleted"_s : QString());
    return lines;
}

/// The plain way, told step by step.
class Reference {
public:
    Reference(std::vector<BigEntry> table, std::deque<Answer> answers) : answers_(std::move(answers)) {
        mBIG::BigEntries = std::move(table);
    }

    void DropFile(const QString& ownName, const QString& path, qint64 size, bool bringsBack) {
        const QString name = LostLetters::AsStored(ownName);
        const int found = mBIG::FindEntry(name);
        std::vector<BigEntry>& table = mBIG::BigEntries;
        if (found >= 0) {
            const Answer answer = answers_.front();
            answers_.pop_front();
            if (answer != Answer::Yes)
                return;
            BigEntry& entry = table[static_cast<std::size_t>(found)];
            entry = {name, entry.Offset, static_cast<qint32>(size), true, !bringsBack && entry.Deleted, path};
            return;
        }
        std::size_t index = table.empty() ? 0 : table.size() - 1;
        if (!table.empty() && !table[0].Name.isEmpty())
            ++index;
        table.resize(index + 1);
        table[index] = {name, 0, static_cast<qint32>(size), true, false, path};
    }

    void Drop(const QStringList& paths, QString prefix) {
        for (const QString& path : paths) {
            if (!Files::FolderExists(path)) {
                DropFile(prefix + Paths::LastPart(path), path, Files::FileLength(path), true);
                continue;
            }
            for (const Files::FoundFile& file : Files::ListFolderFiles(path, true))
                DropFile(prefix + Paths::LastPart(path) + file.Path.mid(path.size()), file.Path, file.Size, false);
            prefix.clear();
        }
    }

private:
    std::deque<Answer> answers_;
};

class EditorDropMany : public EditorDocument {
protected:
    int Below(int bound) { return random_.bounded(bound); }

    bool OneIn(int count) { return Below(count) == 0; }

    /// Few names, so that many meet: in capitals or not, with letters that have several small forms.
    QString SomeName() {
        static const QStringList names{u"a"_s,
                                       u"b"_s,
                                       u"K"_s,
                                       u"\u212A"_s,
                                       u"\u00DF"_s,
                                       u"ss"_s,
                                       u"\u00E9"_s,
                                       u"\u00C9"_s,
                                       u"\u0130"_s,
                                       u"i\u0307"_s,
                                       u"\u03C3"_s,
                                       u"\u03C2"_s,
                                       QString::fromUcs4(U"\U00010400"),
                                       QString::fromUcs4(U"\U00010428")};
        const QString& name = names[Below(static_cast<int>(names.size()))];
        return OneIn(2) ? name.toUpper() : name;
    }

    std::vector<BigEntry> SomeTable() {
        std::vector<BigEntry> table(static_cast<std::size_t>(Below(12)));
        for (BigEntry& entry : table) {
            entry.Name = OneIn(4) ? u"mod\\"_s + SomeName() : SomeName();
            entry.Size = Below(100);
            entry.IsNew = OneIn(3);
            entry.Deleted = OneIn(3);
        }
        if (!table.empty() && OneIn(3))
            table[0] = {};
        return table;
    }

    /// Some files and folders; the disk may take two names for one.
    QStringList SomePaths(int round) {
        QStringList paths;
        for (int at = Below(8); at >= 0; --at) {
            const QString folder = u"%1\\%2\\"_s.arg(round).arg(at);
            if (!OneIn(3)) {
                paths += Place.WriteFile(folder + SomeName(), QByteArray(Below(9), 'x'));
                continue;
            }
            const QString name = OneIn(2) ? u"mod"_s : u"Mod"_s;
            for (int file = Below(6); file >= 0; --file)
                Place.WriteFile(folder + name + u'\\' + SomeName(), QByteArray(Below(9), 'x'));
            paths += Place.Root() + u'\\' + folder + name;
        }
        return paths;
    }

    QRandomGenerator random_{2005};
};

} // namespace

TEST_F(EditorDropMany, AnyDropGivesWhatASearchForEachFileGives) {
    for (int round = 0; round < 150; ++round) {
        const std::vector<BigEntry> table = SomeTable();
        const QStringList paths = SomePaths(round);
        std::deque<Answer> answers;
        for (int answer = 0; answer < 100; ++answer)
            answers.push_back(OneIn(2) ? Answer::Yes : Answer::No);
        Reference reference(table, answers);
        reference.Drop(paths, {});
        const std::vector<BigEntry> expected = std::exchange(mBIG::BigEntries, table);
        Editor.CreateDirs();
        Speaker.Answers = answers;
        Editor.DropFiles(paths);
        ASSERT_EQ(Told(mBIG::BigEntries), Told(expected))
            << "round " << round << ": " << paths.join(u' ').toStdString();
    }
}

TEST_F(EditorDropMany, TheFilesOfOneDropThatHaveOneNameAreAskedAbout) {
    mBIG::BigEntries = TableOf({u"first"_s, u"second"_s});
    Editor.CreateDirs();
    Speaker.Answers = {Answer::Yes, Answer::No};
    const QString last = Place.WriteFile(u"two\\A.txt"_s, "22");
    Editor.DropFiles({Place.WriteFile(u"one\\a.TXT"_s, "1"), last, Place.WriteFile(u"three\\a.txt"_s, "333")});
    ASSERT_EQ(mBIG::BigEntries.size(), 3U);
    EXPECT_EQ(mBIG::BigEntries[2].Name, u"A.txt"_s);
    EXPECT_EQ(mBIG::BigEntries[2].SourcePath, last);
}

// While record 0 is blank, each new record takes the place of the last one.
TEST_F(EditorDropMany, ANameThatTheDropItselfOverwroteIsNotAskedAbout) {
    mBIG::BigEntries = TableOf({{}, u"a"_s});
    Editor.CreateDirs();
    Editor.DropFiles({Place.WriteFile(u"b"_s, "1"), Place.WriteFile(u"a"_s, "22")});
    EXPECT_TRUE(Speaker.Messages.empty());
    ASSERT_EQ(mBIG::BigEntries.size(), 2U);
    EXPECT_EQ(mBIG::BigEntries[1].Name, u"a"_s);
    EXPECT_EQ(mBIG::BigEntries[1].Size, 2);
}

TEST_F(EditorDropMany, AnOverwrittenNameThatStandsEarlierTooIsStillAskedAbout) {
    mBIG::BigEntries = TableOf({{}, u"a"_s, u"A"_s});
    Editor.CreateDirs();
    Speaker.Answers = {Answer::Yes};
    Editor.DropFiles({Place.WriteFile(u"b"_s, "1"), Place.WriteFile(u"a"_s, "22")});
    EXPECT_EQ(mBIG::BigEntries[1].Size, 2);
    EXPECT_EQ(mBIG::BigEntries[2].Name, u"b"_s);
}

TEST_F(EditorDropMany, HundredsOfFoldersDoNotEachCostATree) {
    mBIG::BigEntries = TableOf({u"first"_s});
    for (int entry = 0; entry < 500; ++entry)
        mBIG::BigEntries.push_back(EntryOf(u"f%1\\g%2\\x"_s.arg(entry % 20).arg(entry)));
    QStringList folders;
    for (int folder = 0; folder < 500; ++folder) {
        Place.WriteFile(u"many\\%1\\file"_s.arg(folder), "x");
        folders += Place.Root() + u"\\many\\%1"_s.arg(folder);
    }
    Editor.DropFiles(folders);
    EXPECT_EQ(View.Trees, 1);
    EXPECT_EQ(mBIG::BigEntries.size(), 1001U);
}
