// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/cli/BigCommandTest.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

using namespace Qt::StringLiterals;

namespace {

class BigCommands : public BigCommandTest {};

} // namespace

TEST_F(BigCommands, ListPrintsTheVersionAndALineAnEntry) {
    TwoEntries();
    EXPECT_EQ(Output({u"big"_s, u"list"_s, Native(u"two.big"_s)}), "version 0\n0\t56\t5\ta.ini\n1\t64\t2\tData\\b.t\n");
}

TEST_F(BigCommands, ListPrintsNamesInUtf8) {
    world_.WriteFile(u"n.big"_s, HeaderOf("BIGF", 1, 36) + Record(36, 1, "\xE9t\xE9") + "L219");
    EXPECT_EQ(Output({u"big"_s, u"list"_s, Native(u"n.big"_s)}), "version 2\n0\t36\t1\t\xC3\xA9t\xC3\xA9\n");
}

TEST_F(BigCommands, ListPrintsJson) {
    TwoEntries();
    const QJsonObject archive =
        QJsonDocument::fromJson(Output({u"big"_s, u"list"_s, u"--json"_s, Native(u"two.big"_s)})).object();
    EXPECT_EQ(archive[u"version"_s].toInt(-1), 0);
    const QJsonArray entries = archive[u"entries"_s].toArray();
    ASSERT_EQ(entries.size(), 2);
    EXPECT_EQ(entries[1].toObject(),
              (QJsonObject{{u"index"_s, 1}, {u"offset"_s, 64}, {u"size"_s, 2}, {u"name"_s, u"Data\\b.t"_s}}));
}

TEST_F(BigCommands, WhatIsNoArchiveIsRefusedWithItsNameAndAReason) {
    world_.WriteFile(u"not.big"_s, "something else");
    EXPECT_TRUE(Failure({u"big"_s, u"list"_s, Native(u"not.big"_s)}).contains("not.big: "));
    EXPECT_TRUE(Failure({u"big"_s, u"list"_s, Native(u"missing.big"_s)}).contains("missing.big: "));
    EXPECT_TRUE(Failure({u"big"_s, u"list"_s, Native(u"."_s)}).contains(": "));
}

TEST_F(BigCommands, WrongUsageEndsWithTwo) {
    EXPECT_FALSE(Failure({u"big"_s}, 2).isEmpty());
    EXPECT_FALSE(Failure({u"big"_s, u"list"_s}, 2).isEmpty());
    EXPECT_FALSE(Failure({u"nonsense"_s}, 2).isEmpty());
    EXPECT_FALSE(
        Failure({u"big"_s, u"create"_s, Native(u"x.big"_s), u"--version"_s, u"4"_s, Native(u"."_s)}, 2).isEmpty());
    EXPECT_FALSE(Failure({u"big"_s, u"save"_s, u"a"_s, u"b"_s, u"--add"_s, u"name"_s}, 2).isEmpty());
}

TEST_F(BigCommands, EachCommandHasItsHelp) {
    for (const QString& command : {u"list"_s, u"extract"_s, u"save"_s, u"create"_s, u"rename"_s, u"delete"_s,
                                   u"verify"_s, u"repair"_s, u"preview"_s, u"search"_s})
        EXPECT_TRUE(Output({u"big"_s, command, u"--help"_s}).contains("Usage")) << command.toStdString();
}

TEST_F(BigCommands, ExtractRecreatesTheFolders) {
    TwoEntries();
    Output({u"big"_s, u"extract"_s, Native(u"two.big"_s), Native(u"out/new"_s)});
    EXPECT_EQ(World::ReadFile(At(u"out\\new\\a.ini"_s)), "hello");
    EXPECT_EQ(World::ReadFile(At(u"out\\new\\Data\\b.t"_s)), "hi");
}

TEST_F(BigCommands, ExtractReplacesLongerFilesWhole) {
    TwoEntries();
    world_.WriteFile(u"out\\A.INI"_s, "a much longer file");
    Output({u"big"_s, u"extract"_s, Native(u"two.big"_s), Native(u"out"_s)});
    EXPECT_EQ(World::ReadFile(At(u"out\\a.ini"_s)), "hello");
}

TEST_F(BigCommands, ExtractFlatTakesTheLastParts) {
    TwoEntries();
    Output({u"big"_s, u"extract"_s, Native(u"two.big"_s), Native(u"out"_s), u"--flat"_s});
    EXPECT_EQ(World::ReadFile(At(u"out\\b.t"_s)), "hi");
    EXPECT_FALSE(Files::FolderExists(At(u"out\\Data"_s)));
}

TEST_F(BigCommands, ExtractFlatRefusesASecondEntryOfTheSameLastPart) {
    world_.WriteFile(u"same.big"_s, HeaderOf("BIGF", 2, 46) + Record(48, 1, "x\\n") + Record(49, 1, "y\\N") +
                                        Bytes("L225\0\0\0\0\0\0"
                                              "12"));
    EXPECT_TRUE(
        Failure({u"big"_s, u"extract"_s, Native(u"same.big"_s), Native(u"out"_s), u"--flat"_s}).contains("y\\N"));
    EXPECT_EQ(Files::ListFolder(At(u"out\\*.*"_s)).size(), 1);
}

TEST_F(BigCommands, ExtractTakesNamesAndPatterns) {
    TwoEntries();
    Output({u"big"_s, u"extract"_s, Native(u"two.big"_s), Native(u"out"_s), u"data\\*"_s});
    EXPECT_FALSE(Files::FileExists(At(u"out\\a.ini"_s)));
    EXPECT_EQ(World::ReadFile(At(u"out\\Data\\b.t"_s)), "hi");
    EXPECT_TRUE(Failure({u"big"_s, u"extract"_s, Native(u"two.big"_s), Native(u"out"_s), u"none"_s}).contains("none"));
}

TEST_F(BigCommands, SearchPrintsNamesThatHoldTheTextOrFitThePattern) {
    TwoEntries();
    EXPECT_EQ(Output({u"big"_s, u"search"_s, Native(u"two.big"_s), u"A\\B"_s}), "Data\\b.t\n");
    EXPECT_EQ(Output({u"big"_s, u"search"_s, Native(u"two.big"_s), u"*.i?i"_s}), "a.ini\n");
    EXPECT_EQ(Output({u"big"_s, u"search"_s, Native(u"two.big"_s), u"hello"_s}), QByteArray());
}

TEST_F(BigCommands, SearchLooksIntoTextsWhenItIsAskedTo) {
    TwoEntries();
    EXPECT_EQ(Output({u"big"_s, u"search"_s, Native(u"two.big"_s), u"ELL"_s, u"--text"_s}), "a.ini\n");
    EXPECT_EQ(Output({u"big"_s, u"search"_s, Native(u"two.big"_s), u"hi"_s, u"--text"_s}), QByteArray());
    EXPECT_TRUE(Failure({u"big"_s, u"search"_s, Native(u"none.big"_s), u"x"_s}).contains("none.big"));
}

TEST_F(BigCommands, ExtractNeverLeavesTheFolderAndGoesOnWithTheRest) {
    world_.WriteFile(u"evil.big"_s, HeaderOf("BIGF", 3, 70) + Record(71, 1, "..\\evil") + Record(72, 1, "nul.txt") +
                                        Record(73, 1, "good") +
                                        Bytes("L225\0\0\0\0\0\0"
                                              "123"));
    const Outcome outcome = RunCommand({u"big"_s, u"extract"_s, Native(u"evil.big"_s), Native(u"out"_s)});
    EXPECT_EQ(outcome.Code, 1);
    EXPECT_EQ(outcome.Error.count('\n'), 2) << outcome.Error.constData();
    EXPECT_TRUE(outcome.Error.contains("..\\evil") && outcome.Error.contains("nul.txt")) << outcome.Error.constData();
    EXPECT_FALSE(Files::FileExists(At(u"evil"_s)));
    EXPECT_EQ(Files::ListFolder(At(u"out\\*.*"_s), true), QStringList{u"good"_s});
}

TEST_F(BigCommands, ExtractTellsOfEntriesThatAreOneFileAndOfCutOnes) {
    world_.WriteFile(u"odd.big"_s, HeaderOf("BIGF", 3, 56) + Record(56, 1, "x") + Record(57, 1, "X") +
                                       Record(58, 9, "cut") +
                                       Bytes("L225\0\0\0\0"
                                             "12345"));
    const Outcome outcome = RunCommand({u"big"_s, u"extract"_s, Native(u"odd.big"_s), Native(u"out"_s)});
    EXPECT_EQ(outcome.Code, 1);
    EXPECT_EQ(outcome.Error, "brindock-cli: X: another entry has that name\n"
                             "brindock-cli: cut: cut off, the archive ends before its data does\n");
    EXPECT_EQ(World::ReadFile(At(u"out\\x"_s)), "1");
    EXPECT_EQ(World::ReadFile(At(u"out\\cut"_s)), QByteArray("345\0\0\0\0\0\0", 9));
    EXPECT_EQ(Output({u"big"_s, u"extract"_s, Native(u"odd.big"_s), Native(u"out"_s), u"--force"_s}), QByteArray());
    EXPECT_EQ(World::ReadFile(At(u"out\\x"_s)), "2");
}

TEST_F(BigCommands, NamesStayOnTheirLine) {
    world_.WriteFile(u"odd.big"_s, HeaderOf("BIGF", 2, 48) + Record(56, 1, "a\nb") + Record(57, 1, "\x1b[31m\x7f") +
                                       Bytes("L225\0\0\0\0"
                                             "12"));
    EXPECT_EQ(Output({u"big"_s, u"list"_s, Native(u"odd.big"_s)}),
              "version 0\n0\t56\t1\ta\\x0Ab\n1\t57\t1\t\\x1B[31m\\x7F\n");
    const Outcome outcome = RunCommand({u"big"_s, u"extract"_s, Native(u"odd.big"_s), Native(u"out"_s)});
    EXPECT_EQ(outcome.Error.count('\n'), 2);
    EXPECT_FALSE(outcome.Error.contains('\x1b'));
    const QByteArray verified = RunCommand({u"big"_s, u"verify"_s, Native(u"odd.big"_s)}).Output;
    EXPECT_TRUE(verified.contains("a\\x0Ab\t") && verified.contains("\\x1B[31m")) << verified.constData();
}

TEST_F(BigCommands, ExtractTellsOfEntriesThatAreOneFileByEitherSeparator) {
    world_.WriteFile(u"odd.big"_s, HeaderOf("BIGF", 2, 40) + Record(48, 1, "a/x") + Record(49, 1, "a\\x") +
                                       Bytes("L225\0\0\0\0"
                                             "12"));
    const Outcome outcome = RunCommand({u"big"_s, u"extract"_s, Native(u"odd.big"_s), Native(u"out"_s)});
    EXPECT_EQ(outcome.Code, 1);
    EXPECT_EQ(outcome.Error, "brindock-cli: a\\x: another entry has that name\n");
}

TEST_F(BigCommands, CreateRefusesNamesThatWouldBecomeOthers) {
    world_.WriteFile(u"files\\a.txt"_s, "x");
    world_.WriteFile(u"files\\Ж.txt"_s, "x");
    EXPECT_TRUE(Failure({u"big"_s, u"create"_s, Native(u"new.big"_s), u"--version"_s, u"0"_s, Native(u"files"_s)})
                    .contains("\xD0\x96.txt: a letter of its name would become '?'"));
    EXPECT_FALSE(Files::FileExists(At(u"new.big"_s)));
    Output({u"big"_s, u"create"_s, Native(u"new.big"_s), u"--version"_s, u"0"_s, Native(u"files"_s), u"--lossy"_s});
    EXPECT_TRUE(World::ReadFile(At(u"new.big"_s)).contains("?.txt"));
}

TEST_F(BigCommands, AnEntryOfNoBytesBecomesAnEmptyFileAndTheRestFollows) {
    world_.WriteFile(u"zero.big"_s,
                     HeaderOf("BIGF", 2, 44) + Record(44, 0, "e") + Record(44, 1, "f") + Bytes("L225\0\0\0\0x"));
    Output({u"big"_s, u"extract"_s, Native(u"zero.big"_s), Native(u"out"_s)});
    EXPECT_EQ(Files::FileLength(At(u"out\\e"_s)), 0);
    EXPECT_EQ(World::ReadFile(At(u"out\\f"_s)), "x");
}

TEST_F(BigCommands, SaveKeepsTheVariantAndWritesIt) {
    TwoEntries();
    Output({u"big"_s, u"save"_s, Native(u"two.big"_s), Native(u"out.big"_s)});
    EXPECT_EQ(World::ReadFile(At(u"out.big"_s)), Bytes("BIGF\x42\0\0\0\0\0\0\x02\0\0\0\x37"
                                                       "\0\0\0\x38\0\0\0\x05"
                                                       "a.ini\0"
                                                       "\0\0\0\x40\0\0\0\x02"
                                                       "Data\\b.t\0"
                                                       "L225\0\0\0\0\0hello\0\0\0hi"));
}

TEST_F(BigCommands, SaveChangesTheVariantOverTheArchiveItself) {
    TwoEntries();
    Shifted({u"big"_s, u"save"_s, Native(u"two.big"_s), Native(u"two.big"_s), u"--version"_s, u"2"_s});
    EXPECT_EQ(World::ReadFile(At(u"two.big"_s)).sliced(47), Bytes("L219\0\0\0hellohi"));
    EXPECT_FALSE(Files::FileExists(At(u"two.big.tmp"_s)));
}

TEST_F(BigCommands, SaveDeletesAddsAndReplaces) {
    TwoEntries();
    world_.WriteFile(u"new.txt"_s, "new");
    Output({u"big"_s, u"save"_s, Native(u"two.big"_s), Native(u"out.big"_s), u"--add"_s,
            u"A.INI="_s + Native(u"new.txt"_s), u"--add"_s, u"c="_s + Native(u"new.txt"_s), u"--delete"_s,
            u"data\\B.T"_s});
    EXPECT_EQ(Output({u"big"_s, u"list"_s, Native(u"out.big"_s)}), "version 0\n0\t48\t3\tA.INI\n1\t52\t3\tc\n");
    EXPECT_TRUE(Failure({u"big"_s, u"save"_s, Native(u"two.big"_s), Native(u"out.big"_s), u"--delete"_s, u"none"_s})
                    .contains("none"));
    EXPECT_TRUE(Failure({u"big"_s, u"save"_s, Native(u"two.big"_s), Native(u"out.big"_s), u"--add"_s,
                         u"x="_s + Native(u"missing"_s)})
                    .contains("missing"));
}

TEST_F(BigCommands, SaveRefusesWhatTheFormatCanNotHold) {
    TwoEntries();
    world_.WriteFile(u"one.big"_s, HeaderOf("BIGF", 1, 34) + Record(34, 1, "a") + Bytes("L225x"));
    EXPECT_TRUE(Failure({u"big"_s, u"save"_s, Native(u"one.big"_s), Native(u"out.big"_s)}).contains("out.big"));
    EXPECT_TRUE(Failure({u"big"_s, u"save"_s, Native(u"two.big"_s), Native(u"two.big"_s), u"--delete"_s, u"a.ini"_s,
                         u"--delete"_s, u"data\\b.t"_s})
                    .contains("two.big"));
    EXPECT_TRUE(Failure({u"big"_s, u"save"_s, Native(u"two.big"_s), Native(u"no/out.big"_s)}).contains("out.big"));
    EXPECT_TRUE(Output({u"big"_s, u"list"_s, Native(u"two.big"_s)}).startsWith("version 0\n0\t56"));
}

TEST_F(BigCommands, CreateTakesAFoldersFilesSorted) {
    world_.WriteFile(u"in\\b.txt"_s, "two");
    world_.WriteFile(u"in\\Sub\\z"_s, "3");
    world_.WriteFile(u"in\\A.txt"_s, "one");
    Shifted({u"big"_s, u"create"_s, Native(u"in/out.big"_s), u"--version"_s, u"2"_s, Native(u"in"_s)});
    // 24 + 14 + 14 + 14 = 66.
    EXPECT_EQ(World::ReadFile(At(u"in\\out.big"_s)), Bytes("BIG4\x48\0\0\0\0\0\0\x03\0\0\0\x42"
                                                           "\0\0\0\x42\0\0\0\x03"
                                                           "A.txt\0"
                                                           "\0\0\0\x45\0\0\0\x03"
                                                           "b.txt\0"
                                                           "\0\0\0\x48\0\0\0\x01"
                                                           "Sub\\z\0"
                                                           "L219\0\0\0onetwo3"));
    Shifted({u"big"_s, u"create"_s, Native(u"in/out.big"_s), u"--version"_s, u"2"_s, Native(u"in"_s)});
    EXPECT_EQ(Files::FileLength(At(u"in\\out.big"_s)), 72) << "the archive itself is not taken";
}

TEST_F(BigCommands, CreateRefusesAnEmptyFolderAndASingleFile) {
    world_.WriteFile(u"one\\a"_s, "1");
    EXPECT_TRUE(Failure({u"big"_s, u"create"_s, Native(u"x.big"_s), u"--version"_s, u"0"_s, Native(u"one"_s)})
                    .contains("x.big"));
    EXPECT_TRUE(Failure({u"big"_s, u"create"_s, Native(u"x.big"_s), u"--version"_s, u"0"_s, Native(u"none"_s)})
                    .contains("none"));
    EXPECT_FALSE(Files::FileExists(At(u"x.big"_s)));
}
