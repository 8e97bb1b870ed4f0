// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// How an exported ZIP comes to the disk, its names' letters, and the records of mods.
#include "tests/install/ExportTest.h"

using namespace Qt::StringLiterals;
using Outcome = ExportOutcome;

namespace {

class ExportZipWrite : public ExportTest {
protected:
    std::vector<ExportRecord> ThreeReplays() {
        std::vector<ExportRecord> records;
        for (const QString& name : {u"a.rep"_s, u"b.rep"_s, u"c.rep"_s}) {
            Put(u"replays\\"_s + name, QByteArray(1000, 'x'));
            records.push_back(Replay(name));
        }
        return records;
    }

    /// The flags in the archive's local headers and in its directory.
    [[nodiscard]] QList<QByteArray> Flags() const {
        const QByteArray archive = World::ReadFile(Zip());
        QList<QByteArray> flags;
        for (qsizetype at = archive.indexOf("PK\3\4"); at >= 0; at = archive.indexOf("PK\3\4", at + 4))
            flags += archive.mid(at + 6, 2);
        for (qsizetype at = archive.indexOf("PK\1\2"); at >= 0; at = archive.indexOf("PK\1\2", at + 4))
            flags += archive.mid(at + 8, 2);
        return flags;
    }
};

} // namespace

TEST_F(ExportZipWrite, TheOldZipStandsUntilTheNewOneIsWhole) {
    Put(u"out.zip"_s, "old");
    int looks = 0;
    watch_.Yield = [&] {
        ++looks;
        EXPECT_EQ(World::ReadFile(Zip()), "old");
        return true;
    };
    EXPECT_FALSE(ToZip(ThreeReplays()).HasFailures());
    EXPECT_GE(looks, 6) << "behind each file that is added, and behind each that is written";
    EXPECT_EQ(Names().size(), 3);
}

TEST_F(ExportZipWrite, AZipInAMapsFolderIsSeenByTheWalkBehindIt) {
    Put(u"maps\\A\\A.map"_s);
    Put(u"maps\\B\\B.map"_s);
    const QString zip = At(u"maps\\B\\out.zip"_s);
    const std::vector<ExportSource> sources = ExportSources::Of({Map(u"A"_s), Map(u"B"_s)});
    EXPECT_FALSE(Exporting::ToZip(sources, zip, {}).HasFailures());
    ccZip read;
    read.Init(zip);
    EXPECT_EQ(read.Col, (QStringList{u"A/A.map"_s, u"B/B.map"_s, u"B/out.zip"_s}));
}

TEST_F(ExportZipWrite, AZipThatCantBeWrittenLeavesNothingBehind) {
    const std::vector<ExportSource> sources = ExportSources::Of(ThreeReplays());
    const QStringList before = Files::ListFolder(At(u"*"_s), true);
    const ExportReport report = Exporting::ToZip(sources, At(u"missing\\out.zip"_s), {});
    ASSERT_EQ(report.Lines.size(), 1U) << "nothing was exported, so nothing is told to be done";
    EXPECT_EQ(report.Lines[0].Outcome, Outcome::NotWritten);
    EXPECT_TRUE(report.Lines[0].Item.endsWith(u"out.zip"_s));
    EXPECT_FALSE(Files::FolderExists(At(u"missing"_s)));
    EXPECT_EQ(Exporting::ToZip(sources, At(u"replays"_s), {}).Lines[0].Outcome, Outcome::NotWritten) << "a folder";
    EXPECT_EQ(Files::ListFolder(At(u"*"_s), true), before);
    EXPECT_EQ(Files::ListFolder(At(u"replays\\*"_s), true).size(), 3);
}

TEST_F(ExportZipWrite, OneThatIsCancelledLeavesTheOldZip) {
    Put(u"out.zip"_s, "old");
    int left = 2;
    watch_.Yield = [&] { return --left > 0; };
    const ExportReport report = ToZip(ThreeReplays());
    EXPECT_TRUE(report.Cancelled);
    EXPECT_EQ(World::ReadFile(Zip()), "old");
    Put(u"game\\Maps\\QvShellMap001\\QvInfos.ini"_s);
    left = 1;
    EXPECT_TRUE(ToZip({ShellMap(u"QvShellMap001"_s, u"Night"_s)}).Cancelled);
    EXPECT_EQ(Scratch(), QStringList());
    EXPECT_EQ(World::ReadFile(Zip()), "old");
}

TEST_F(ExportZipWrite, TheBarMovesByBytes) {
    Put(u"replays\\a.rep"_s, QByteArray(100, 'x'));
    Put(u"replays\\b.rep"_s, QByteArray(300, 'x'));
    std::vector<int> values;
    watch_.Progress = [&](int percent) {
        if (values.empty() || values.back() != percent)
            values.push_back(percent);
    };
    ToZip({Replay(u"a.rep"_s), Replay(u"b.rep"_s)});
    EXPECT_EQ(values, (std::vector<int>{25, 100}));
}

TEST_F(ExportZipWrite, LettersThatThePageLacksBecomeQuestionMarks) {
    Put(u"replays\\\u041F\u0440 \u00C4.rep"_s);
    Put(u"replays\\\u00C4.rep"_s);
    const std::vector<ExportRecord> records{Replay(u"\u041F\u0440 \u00C4.rep"_s), Replay(u"\u00C4.rep"_s)};
    EXPECT_EQ(ExportSources::NamesBeyondThePage(ExportSources::Of(records)), QStringList{u"\u041F\u0440 \u00C4.rep"_s});
    EXPECT_FALSE(ToZip(records).HasFailures());
    EXPECT_EQ(Names(), (QList<QByteArray>{"?? \xC4.rep", "\xC4.rep"}));
    EXPECT_EQ(Flags(), QList<QByteArray>(4, Bytes("\2\0")));
}

TEST_F(ExportZipWrite, OrStandInUtf8AndAreFlagged) {
    Put(u"maps\\\u041C\\\u041C.map"_s, "m");
    Put(u"maps\\\u041C\\\U0001F600.ini"_s, "i");
    Put(u"replays\\\u00C4.rep"_s);
    const std::vector<ExportRecord> records{Map(u"\u041C"_s), Replay(u"\u00C4.rep"_s)};
    EXPECT_EQ(ExportSources::NamesBeyondThePage(ExportSources::Of(records)).size(), 2);
    EXPECT_FALSE(ToZip(records, {.Utf8Names = true}).HasFailures());
    EXPECT_EQ(Names(), (QList<QByteArray>{"\xD0\x9C\\\xD0\x9C.map", "\xD0\x9C\\\xF0\x9F\x98\x80.ini", "\xC4.rep"}));
    const QByteArray utf8 = Bytes("\2\x08");
    const QByteArray page = Bytes("\2\0");
    EXPECT_EQ(Flags(), (QList<QByteArray>{utf8, utf8, page, utf8, utf8, page}));
    ccZip read;
    read.Init(Zip());
    EXPECT_EQ(read.Col, (QStringList{u"\u041C/\u041C.map"_s, u"\u041C/\U0001F600.ini"_s, u"\u00C4.rep"_s}));
}

TEST_F(ExportZipWrite, AModLeavesWithoutItsRecordUnlessItIsWanted) {
    Put(u"game\\Contra.big"_s);
    Put(u"game\\Contra.ini"_s, "[Mod]\r\nName=Contra \xC4\r\nComments= two  words \r\nOther=1\r\n");
    ToZip({Mod(u"Contra.big"_s)});
    EXPECT_EQ(Names(), QList<QByteArray>{"Contra.big"});
    const ExportReport report = ToZip({Mod(u"Contra.big"_s)}, {.ModRecords = true});
    EXPECT_EQ(Names(), (QList<QByteArray>{"Contra.big", "Contra.ini"}));
    EXPECT_EQ(Content(u"Contra.ini"_s), "[Mod]\r\nName=Contra \xC4\r\nComments=two  words\r\n"
                                        "[Infos]\r\nName=Contra \xC4\r\nComments=two  words\r\n");
    EXPECT_EQ(With(Outcome::Done, report), (QStringList{u"Contra.big"_s, u"Contra.ini"_s}));
    EXPECT_EQ(Scratch(), QStringList());
}

TEST_F(ExportZipWrite, AModWithoutNameAndCommentsHasNoRecord) {
    Put(u"game\\a.big"_s);
    Put(u"game\\b.big"_s);
    Put(u"game\\b.ini"_s, "[Mod]\r\nName=\r\n[Infos]\r\nName=x\r\n");
    Put(u"replays\\c.rep"_s);
    Put(u"replays\\c.ini"_s, "[Mod]\r\nName=x\r\n");
    EXPECT_FALSE(ToZip({Mod(u"a.big"_s), Mod(u"b.big"_s), Replay(u"c.rep"_s)}, {.ModRecords = true}).HasFailures());
    EXPECT_EQ(Names(), (QList<QByteArray>{"a.big", "b.big", "c.rep"}));
}

TEST_F(ExportZipWrite, QuotesAndBlanksOfARecordReadTheSameAgain) {
    Put(u"game\\a.big"_s);
    const QString ini = Put(u"game\\a.ini"_s, "[Mod]\r\nName=\"'quoted'\"\r\nComments=\" blanks \"\r\n");
    ToZip({Mod(u"a.big"_s)}, {.ModRecords = true});
    const QByteArray record = Content(u"a.ini"_s);
    const QString read = Put(u"read.ini"_s, record);
    for (const QString& section : {u"Mod"_s, u"Infos"_s})
        EXPECT_EQ(mMain::INI().ReadValues(section, {u"Name"_s, u"Comments"_s}, read),
                  mMain::INI().ReadValues(u"Mod"_s, {u"Name"_s, u"Comments"_s}, ini))
            << record.constData();
}

TEST_F(ExportZipWrite, WithoutAScratchFolderReadMeAndShellMapsAreLeftOut) {
    Put(u"program\\Temp"_s, "a file");
    Put(u"game\\Maps\\QvShellMap001\\QvInfos.ini"_s);
    Put(u"replays\\a.rep"_s);
    const ExportReport report =
        ToZip({ShellMap(u"QvShellMap001"_s, u"Night"_s), Replay(u"a.rep"_s)}, {.ReadMe = u"hi"_s});
    EXPECT_EQ(Names(), QList<QByteArray>{"a.rep"});
    EXPECT_EQ(With(Outcome::Failed, report), (QStringList{u"ReadMe.txt"_s, u"Night"_s}));
}

TEST_F(ExportZipWrite, InALongFileTheBarMovesToo) {
    Put(u"game\\big.big"_s, QByteArray(qsizetype{2} * 1024 * 1024, 'b'));
    std::vector<int> values;
    watch_.Progress = [&](int percent) { values.push_back(percent); };
    ToZip({Mod(u"big.big"_s)});
    EXPECT_GE(values.size(), 8U);
    EXPECT_EQ(values.front(), 12);
    EXPECT_EQ(values.back(), 100);
}

TEST_F(ExportZipWrite, AZipDoesNotTakeThePlaceOfWhatItIsToHold) {
    const QString replay = Put(u"replays\\a.rep"_s, "precious");
    const ExportReport report = Exporting::ToZip(ExportSources::Of({Replay(u"a.rep"_s)}), replay, {});
    ASSERT_EQ(report.Lines.size(), 1U);
    EXPECT_EQ(report.Lines[0].Outcome, Outcome::NotWritten);
    EXPECT_EQ(World::ReadFile(replay), "precious");
}
