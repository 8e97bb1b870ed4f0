// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/cli/BigCommandTest.h"

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
    Shifted({u"big"_s, u"rename"_s, Native(u"f.big"_s), u"Data\\In\\"_s, u"Out"_s});
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
