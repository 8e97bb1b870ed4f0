// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/cli/BigCommandTest.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

using namespace Qt::StringLiterals;

namespace {

class BigEdit : public BigCommandTest {
protected:
    /// Names of the archive's entries.
    QStringList Names(const QString& archive) {
        QStringList names;
        for (const QByteArray& line : Output({u"big"_s, u"list"_s, Native(archive)}).split('\n').sliced(1)) {
            if (!line.isEmpty())
                names += QString::fromUtf8(line.split('\t').last());
        }
        return names;
    }

    QString Folders() {
        return world_.WriteFile(u"f.big"_s, HeaderOf("BIGF", 4, 84) + Record(84, 1, "Data\\a") +
                                                Record(88, 1, "Data\\In\\b") + Record(92, 1, "data\\c") +
                                                Record(96, 1, "a\\a") +
                                                Bytes("L225\0\0\0\0"
                                                      "1\0\0\0"
                                                      "2\0\0\0"
                                                      "3\0\0\0"
                                                      "4"));
    }
};

} // namespace

TEST_F(BigEdit, RenameGivesAFileAnotherLastPartOverTheArchive) {
    TwoEntries();
    Output({u"big"_s, u"rename"_s, Native(u"two.big"_s), u"data\\B.T"_s, u"New.txt"_s});
    EXPECT_EQ(World::ReadFile(At(u"two.big"_s)), Bytes("BIGF\x46\0\0\0\0\0\0\x02\0\0\0\x3B"
                                                       "\0\0\0\x3C\0\0\0\x05"
                                                       "a.ini\0"
                                                       "\0\0\0\x44\0\0\0\x02"
                                                       "Data\\New.txt\0"
                                                       "L225\0\0\0\0\0hello\0\0\0hi"));
    EXPECT_FALSE(Files::FileExists(At(u"two.big.tmp"_s)));
}

TEST_F(BigEdit, RenameReplacesAFilesTextWhereverItStandsInTheName) {
    Folders();
    Output({u"big"_s, u"rename"_s, Native(u"f.big"_s), u"a\\a"_s, u"x"_s});
    EXPECT_EQ(Names(u"f.big"_s), (QStringList{u"Data\\a"_s, u"Data\\In\\b"_s, u"data\\c"_s, u"x\\x"_s}));
}

TEST_F(BigEdit, RenameGivesAFolderAnotherNameWithExactCompare) {
    Folders();
    Output({u"big"_s, u"rename"_s, Native(u"f.big"_s), u"Data\\"_s, u"New"_s, u"--target"_s, Native(u"out.big"_s)});
    EXPECT_EQ(Names(u"out.big"_s), (QStringList{u"New\\a"_s, u"New\\In\\b"_s, u"data\\c"_s, u"a\\a"_s}));
    EXPECT_EQ(Names(u"f.big"_s).constFirst(), u"Data\\a"_s) << "the archive itself stays";
    Output({u"big"_s, u"rename"_s, Native(u"f.big"_s), u"Data\\In\\"_s, u"Out"_s});
    EXPECT_EQ(Names(u"f.big"_s), (QStringList{u"Data\\a"_s, u"Data\\Out\\b"_s, u"data\\c"_s, u"a\\a"_s}));
}

TEST_F(BigEdit, RenameRefusesWhatTheEditorRefusesAndWhatIsNotThere) {
    Folders();
    const QByteArray before = World::ReadFile(At(u"f.big"_s));
    for (const QString& text : {QString(), u"x\\y"_s, u"\\"_s})
        EXPECT_TRUE(Failure({u"big"_s, u"rename"_s, Native(u"f.big"_s), u"a\\a"_s, text}).contains("f.big"));
    EXPECT_TRUE(Failure({u"big"_s, u"rename"_s, Native(u"f.big"_s), u"none"_s, u"x"_s}).contains("none"));
    EXPECT_TRUE(Failure({u"big"_s, u"rename"_s, Native(u"f.big"_s), u"None\\"_s, u"x"_s}).contains("None"));
    EXPECT_TRUE(Failure({u"big"_s, u"rename"_s, Native(u"f.big"_s), QString(), u"x"_s}).contains("f.big"));
    EXPECT_EQ(World::ReadFile(At(u"f.big"_s)), before);
}

TEST_F(BigEdit, DeleteLeavesOutFilesAndFolders) {
    Folders();
    Output({u"big"_s, u"delete"_s, Native(u"f.big"_s), u"DATA\\A"_s, u"Data\\In\\"_s});
    EXPECT_EQ(Names(u"f.big"_s), (QStringList{u"data\\c"_s, u"a\\a"_s}));
    EXPECT_TRUE(Output({u"big"_s, u"extract"_s, Native(u"f.big"_s), Native(u"out"_s)}).isEmpty());
    EXPECT_EQ(World::ReadFile(At(u"out\\a\\a"_s)), "4");
}

TEST_F(BigEdit, DeleteComparesAFolderExactlyAndWritesElsewhereWhenTold) {
    Folders();
    Output({u"big"_s, u"delete"_s, Native(u"f.big"_s), u"Data\\"_s, u"--target"_s, Native(u"out.big"_s)});
    EXPECT_EQ(Names(u"out.big"_s), (QStringList{u"data\\c"_s, u"a\\a"_s}));
    EXPECT_EQ(Names(u"f.big"_s).size(), 4);
}

TEST_F(BigEdit, DeleteRefusesWhatIsNotThereAndTheWholeArchive) {
    TwoEntries();
    EXPECT_TRUE(Failure({u"big"_s, u"delete"_s, Native(u"two.big"_s), u"a.ini"_s, u"none"_s}).contains("none"));
    EXPECT_TRUE(Failure({u"big"_s, u"delete"_s, Native(u"two.big"_s), u"DATA\\"_s}).contains("DATA"));
    EXPECT_TRUE(
        Failure({u"big"_s, u"delete"_s, Native(u"two.big"_s), u"a.ini"_s, u"Data\\b.t"_s}).contains("no entry"));
    EXPECT_EQ(Names(u"two.big"_s).size(), 2);
}

TEST_F(BigEdit, VerifyEndsWithACountAndSucceedsOnAGoodArchive) {
    TwoEntries();
    Output({u"big"_s, u"save"_s, Native(u"two.big"_s), Native(u"good.big"_s)});
    EXPECT_EQ(Output({u"big"_s, u"verify"_s, Native(u"good.big"_s)}), "2 entries, 0 findings\n");
}

TEST_F(BigEdit, VerifyTellsEachFindingInALineAndFails) {
    world_.WriteFile(u"bad.big"_s, HeaderOf("BIGF", 2, 49) + Record(52, 5, "..\\a") + Record(56, 2, "b") +
                                       Bytes("L225\0\0\0\0\0\0\0hello\0"));
    const Outcome outcome = RunCommand({u"big"_s, u"verify"_s, Native(u"bad.big"_s)});
    EXPECT_EQ(outcome.Code, 1);
    EXPECT_EQ(outcome.Error, QByteArray());
    EXPECT_EQ(outcome.Output, "length\t-\t\tthe header declares 0 bytes, the file has 56\n"
                              "first-file\t-\t\tthe first-file field is 49, the layout has 47\n"
                              "first-file\t0\t..\\a\tbegins the data at 52, the layout has 48\n"
                              "beyond-end\t0\t..\\a\tends 1 bytes behind the end of the file\n"
                              "name\t0\t..\\a\tleads out of its folder\n"
                              "overlap\t1\tb\tshares bytes with entry 0\n"
                              "beyond-end\t1\tb\tends 2 bytes behind the end of the file\n"
                              "2 entries, 7 findings\n");
}

TEST_F(BigEdit, VerifyPrintsJson) {
    TwoEntries(); // its header declares no length
    const Outcome outcome = RunCommand({u"big"_s, u"verify"_s, u"--json"_s, Native(u"two.big"_s)});
    EXPECT_EQ(outcome.Code, 1);
    const QJsonObject archive = QJsonDocument::fromJson(outcome.Output).object();
    EXPECT_EQ(archive[u"entries"_s].toInt(), 2);
    EXPECT_EQ(archive[u"count"_s].toInt(), 1);
    EXPECT_EQ(archive[u"findings"_s].toArray().at(0).toObject(),
              (QJsonObject{{u"kind"_s, u"length"_s},
                           {u"index"_s, -1},
                           {u"name"_s, QString()},
                           {u"text"_s, u"the header declares 0 bytes, the file has 66"_s}}));
}

TEST_F(BigEdit, VerifyRefusesWhatIsNoArchive) {
    world_.WriteFile(u"not.big"_s, "something else");
    EXPECT_TRUE(Failure({u"big"_s, u"verify"_s, Native(u"not.big"_s)}).contains("not.big: "));
}
