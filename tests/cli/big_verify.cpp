// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/cli/BigCommandTest.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

using namespace Qt::StringLiterals;

namespace {

class BigVerify : public BigCommandTest {
protected:
    /// Five faults and three notes.
    QString Bad() {
        world_.WriteFile(u"bad.big"_s, HeaderOf("BIGF", 2, 49) + Record(52, 5, "..\\a") + Record(56, 2, "b") +
                                           Bytes("L225\0\0\0\0\0\0\0hello\0"));
        return Native(u"bad.big"_s);
    }

    /// Variant 2, as saves write it: the data begin one byte before the directory's offsets.
    QString OneByteBefore() {
        world_.WriteFile(u"shifted.big"_s, Bytes("BIG4\x37\0\0\0\0\0\0\x02\0\0\0\x30"
                                                 "\0\0\0\x30\0\0\0\x05"
                                                 "a.ini\0"
                                                 "\0\0\0\x35\0\0\0\x03"
                                                 "b\0"
                                                 "L219\0\0\0hellobye"));
        return Native(u"shifted.big"_s);
    }
};

} // namespace

TEST_F(BigVerify, EndsWithACountAndSucceedsOnAGoodArchive) {
    TwoEntries();
    Output({u"big"_s, u"save"_s, Native(u"two.big"_s), Native(u"good.big"_s)});
    EXPECT_EQ(Output({u"big"_s, u"verify"_s, Native(u"good.big"_s)}), "2 entries, 0 faults, 0 notes\n");
}

TEST_F(BigVerify, TellsEachFaultInALineAndFails) {
    const Outcome outcome = RunCommand({u"big"_s, u"verify"_s, Bad()});
    EXPECT_EQ(outcome.Code, 1);
    EXPECT_EQ(outcome.Error, QByteArray());
    EXPECT_EQ(outcome.Output, "beyond-end\t0\t..\\a\tends 1 bytes behind the end of the file\n"
                              "name\t0\t..\\a\tleads out of its folder\n"
                              "overlap\t1\tb\tshares bytes with entry 0\n"
                              "beyond-end\t1\tb\tends 2 bytes behind the end of the file\n"
                              "2 entries, 4 faults, 3 notes\n");
}

TEST_F(BigVerify, PrintsTheNotesWhenTold) {
    const Outcome outcome = RunCommand({u"big"_s, u"verify"_s, u"--notes"_s, Bad()});
    EXPECT_EQ(outcome.Code, 1);
    EXPECT_TRUE(outcome.Output.startsWith("length\t-\t\tthe header declares 0 bytes, the file has 56\n"
                                          "first-file\t-\t\tthe first-file field is 49, the layout has 47\n"
                                          "first-file\t0\t..\\a\tbegins the data at 52, the layout has 48\n"));
}

TEST_F(BigVerify, NotesAloneAreNoFailure) {
    TwoEntries(); // its header declares no length
    EXPECT_EQ(Output({u"big"_s, u"verify"_s, Native(u"two.big"_s)}), "2 entries, 0 faults, 1 notes\n");
}

TEST_F(BigVerify, PrintsJson) {
    TwoEntries(); // its header declares no length
    const QJsonObject archive =
        QJsonDocument::fromJson(Output({u"big"_s, u"verify"_s, u"--json"_s, Native(u"two.big"_s)})).object();
    EXPECT_EQ(archive[u"entries"_s].toInt(), 2);
    EXPECT_EQ(archive[u"faults"_s].toInt(-1), 0);
    EXPECT_EQ(archive[u"notes"_s].toInt(), 1);
    EXPECT_EQ(archive[u"findings"_s].toArray().at(0).toObject(),
              (QJsonObject{{u"class"_s, u"note"_s},
                           {u"kind"_s, u"length"_s},
                           {u"index"_s, -1},
                           {u"name"_s, QString()},
                           {u"text"_s, u"the header declares 0 bytes, the file has 66"_s}}));
}

TEST_F(BigVerify, RefusesWhatIsNoArchive) {
    world_.WriteFile(u"not.big"_s, "something else");
    EXPECT_TRUE(Failure({u"big"_s, u"verify"_s, Native(u"not.big"_s)}).contains("not.big: "));
}

TEST_F(BigVerify, AShiftIsOneFaultWithItsDistance) {
    const Outcome outcome = RunCommand({u"big"_s, u"verify"_s, OneByteBefore()});
    EXPECT_EQ(outcome.Code, 1);
    EXPECT_EQ(outcome.Output, "shift\t-\t\tthe data of 2 entries lie -1 bytes from their offsets\n"
                              "2 entries, 1 faults, 0 notes\n");
}

TEST_F(BigVerify, RepairLaysTheDataWhereTheDirectorySays) {
    const QString shifted = OneByteBefore();
    Output({u"big"_s, u"repair"_s, shifted, Native(u"whole.big"_s)});
    EXPECT_EQ(World::ReadFile(At(u"whole.big"_s)), Bytes("BIG4\x38\0\0\0\0\0\0\x02\0\0\0\x30"
                                                         "\0\0\0\x30\0\0\0\x05"
                                                         "a.ini\0"
                                                         "\0\0\0\x35\0\0\0\x03"
                                                         "b\0"
                                                         "L219\0\0\0\0hellobye"));
    EXPECT_EQ(Output({u"big"_s, u"verify"_s, Native(u"whole.big"_s)}), "2 entries, 0 faults, 0 notes\n");
    EXPECT_TRUE(Failure({u"big"_s, u"repair"_s, Native(u"whole.big"_s), Native(u"again.big"_s)}).contains("whole.big"));
    EXPECT_FALSE(Files::FileExists(At(u"again.big"_s)));
}

TEST_F(BigVerify, RepairWorksOverTheArchiveItself) {
    const QString shifted = OneByteBefore();
    Output({u"big"_s, u"repair"_s, shifted, shifted});
    Output({u"big"_s, u"extract"_s, shifted, Native(u"out"_s)});
    EXPECT_EQ(World::ReadFile(At(u"out\\a.ini"_s)), "hello");
    EXPECT_EQ(World::ReadFile(At(u"out\\b"_s)), "bye");
}

TEST_F(BigVerify, ASaveTellsOfItsShiftAndIsExactWhenTold) {
    TwoEntries();
    const QByteArray line =
        Shifted({u"big"_s, u"save"_s, Native(u"two.big"_s), Native(u"out.big"_s), u"--version"_s, u"2"_s});
    EXPECT_TRUE(line.contains("out.big") && line.contains("2 entries") && line.contains("-1 bytes"))
        << line.constData();
    Output({u"big"_s, u"save"_s, Native(u"two.big"_s), Native(u"out.big"_s), u"--version"_s, u"2"_s, u"--exact"_s});
    // 24 + 14 + 17 = 55.
    EXPECT_EQ(World::ReadFile(At(u"out.big"_s)), Bytes("BIG4\x3E\0\0\0\0\0\0\x02\0\0\0\x37"
                                                       "\0\0\0\x37\0\0\0\x05"
                                                       "a.ini\0"
                                                       "\0\0\0\x3C\0\0\0\x02"
                                                       "Data\\b.t\0"
                                                       "L219\0\0\0\0hellohi"));
}

TEST_F(BigVerify, TheSettingMakesEverySaveExact) {
    TwoEntries();
    Output({u"setting"_s, u"set"_s, u"ExactOffsets"_s, u"1"_s});
    Output({u"big"_s, u"rename"_s, Native(u"two.big"_s), u"a.ini"_s, u"ab.ini"_s});
    Output({u"big"_s, u"save"_s, Native(u"two.big"_s), Native(u"two.big"_s), u"--version"_s, u"2"_s});
    EXPECT_EQ(Output({u"big"_s, u"verify"_s, Native(u"two.big"_s)}), "2 entries, 0 faults, 0 notes\n");
}

TEST_F(BigVerify, AnArchiveOfOneEntryIsSavedExactlyOnly) {
    world_.WriteFile(u"one\\a"_s, "1");
    EXPECT_TRUE(Failure({u"big"_s, u"create"_s, Native(u"x.big"_s), u"--version"_s, u"0"_s, Native(u"one"_s)})
                    .contains("--exact"));
    Output({u"big"_s, u"create"_s, Native(u"x.big"_s), u"--version"_s, u"0"_s, Native(u"one"_s), u"--exact"_s});
    // 24 + 10 = 34; the data begin at the next multiple of 4.
    EXPECT_EQ(World::ReadFile(At(u"x.big"_s)), Bytes("BIGF\x25\0\0\0\0\0\0\x01\0\0\0\x22"
                                                     "\0\0\0\x24\0\0\0\x01"
                                                     "a\0"
                                                     "L225\0\0\0\0\0\0"
                                                     "1"));
}

TEST_F(BigVerify, DeleteKeepsTheOtherEntriesBytesWhenTheArchiveWasExact) {
    TwoEntries();
    Output({u"big"_s, u"delete"_s, Native(u"two.big"_s), u"a.ini"_s, u"--exact"_s});
    Output({u"big"_s, u"extract"_s, Native(u"two.big"_s), Native(u"out"_s)});
    EXPECT_EQ(World::ReadFile(At(u"out\\Data\\b.t"_s)), "hi");
}
