// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tools/demoworld/Texts.h"
#include "tests/support/Printing.h"
#include "tests/tools/Reading.h"
#include "tools/demoworld/UserFiles.h"

#include <gtest/gtest.h>

#include <QStringList>

using namespace Demo;
using namespace Qt::StringLiterals;

namespace {

/// What stands behind the first place where `key` is directly followed by "=", up to the next semicolon.
QByteArray EntryOf(const QByteArray& head, const char* key) {
    const qsizetype start = head.indexOf(QByteArray(key) + '=');
    return start < 0 ? QByteArray() : head.mid(start + 2, head.indexOf(';', start) - start - 2);
}

} // namespace

TEST(SampleStrings, ATableStandsAsWorkedOutByHand) {
    EXPECT_EQ(Csf(3, {{u"A:é"_s, u"Oé"_s}, {u"B"_s, u""_s}}),
              " FSC" + Hex("03000000 02000000 02000000 00000000 03000000") + " LBL" + Hex("01000000 03000000") +
                  "A:\xE9" + " RTS" + Hex("02000000 b0ff 16ff") + " LBL" + Hex("01000000 01000000") + "B" + " RTS" +
                  Hex("00000000"));
}

TEST(SampleStrings, EntriesHaveAccentsAndLineBreaks) {
    QString all;
    for (const CsfEntry& entry : CsfEntries(3, 40, 1))
        all += entry.Value;
    EXPECT_TRUE(all.contains(u'\n'));
    EXPECT_TRUE(all.contains(u'é') || all.contains(u'ê'));
    EXPECT_EQ(CsfEntries(0, 40, 1).size(), 40U);
}

TEST(SampleTexts, DefinitionsAreAsLongAsAskedAndEndTheirLinesWithBoth) {
    const QByteArray text = IniText(4, 5000);
    EXPECT_GE(text.size(), 5000);
    EXPECT_LT(text.size(), 6000);
    EXPECT_EQ(text.count('\n'), text.count("\r\n"));
    EXPECT_EQ(text, IniText(4, 5000));
    EXPECT_NE(text, IniText(5, 5000));
}

TEST(SampleTexts, NotesAreInTheAnsiPage) {
    EXPECT_TRUE(ReadMe(u"Été"_s).startsWith("\xC9t\xE9\r\n===\r\n"));
}

TEST(SampleRecords, ModsAndShellMapsHaveNameAndComments) {
    EXPECT_EQ(ModRecord(u"Été"_s, u"a b"_s), "[Mod]\r\nName=\xC9t\xE9\r\nComments=a b\r\n");
    EXPECT_EQ(ShellMapRecord(u"N"_s, u"C"_s), "[Infos]\r\nName=N\r\nComments=C\r\n");
}

TEST(SampleReplays, EachGameHasItsMark) {
    EXPECT_TRUE(Replay(0, {}, 0, 1).startsWith("GENREP"));
    EXPECT_TRUE(Replay(1, {}, 0, 1).startsWith("GENREP"));
    EXPECT_TRUE(Replay(2, {}, 0, 1).startsWith("BFMEREPL"));
    EXPECT_TRUE(Replay(3, {}, 0, 1).startsWith("BFME2RPL"));
    EXPECT_EQ(ReplayExtension(0), u".rep"_s);
    EXPECT_EQ(ReplayExtension(3), u".BfME2Replay"_s);
}

TEST(SampleReplays, TheVersionStandsInSixteenBitsBehindItsWord) {
    const QByteArray word = Hex("56006500720073006900 6f00 6e"); // "Version" without its last zero
    const QByteArray replay = Replay(0, {u"1.04"_s, {}, {}}, 0, 1);
    const qsizetype start = replay.indexOf(word);
    ASSERT_GT(start, 0);
    EXPECT_EQ(replay.mid(start + 16, 10), Hex("31002e003000340000 00"));
}

TEST(SampleReplays, MapAndSlotsAreTheFirstEntriesOfTheirNames) {
    const QByteArray replay = Replay(0, {u"1.04"_s, u"077maps/col"_s, u"HZoé,1:CE,-1:O:X:X:X:X:X"_s}, 0, 1);
    EXPECT_EQ(EntryOf(replay, "M"), "077maps/col");
    const qsizetype start = replay.indexOf(";S=");
    ASSERT_GT(start, 0);
    EXPECT_EQ(replay.mid(start + 3, replay.indexOf(';', start + 1) - start - 3), "HZo\xE9,1:CE,-1:O:X:X:X:X:X:");
}

TEST(SampleReplays, EverythingToldLiesInTheFirst2048Bytes) {
    for (GameIndex game = 0; game < GameCount; ++game) {
        for (quint64 seed = 0; seed < 40; ++seed) {
            const ReplayFacts facts = RandomReplayFacts(game, seed);
            const QByteArray replay = Replay(game, facts, 100, seed);
            ASSERT_GE(replay.size(), 2048);
            const QByteArray head = replay.first(2048);
            EXPECT_TRUE(EntryOf(head, "M").startsWith(game == 3 ? "data/maps/official/map " : "03maps/"))
                << game << ' ' << seed;
            EXPECT_TRUE(head.contains(";S=H"));
            EXPECT_TRUE(head.contains(":;"));
            EXPECT_EQ(facts.Slots.split(u':').size(), 8);
        }
    }
}

TEST(SampleReplays, AReplayStandsAsTheGameWritesIt) {
    const QByteArray replay =
        Replay(0, {u"1.0"_s, u"03maps/alpine assault"_s, u"HPlayer,0,0,TT,1,8,1,0,1:X:X:X:X:X:X:X"_s}, 0, 1);
    const QByteArray name = Hex("4c0061007300740020005200650070006c006100790000 00");
    EXPECT_EQ(replay.mid(28, 24), name) << "behind the mark and 22 bytes of numbers";
    EXPECT_EQ(replay.indexOf(Hex("560065007200")), 28 + 24 + 16) << "behind 16 bytes of date";
    const qsizetype text = replay.indexOf("US=1;M=03maps/alpine assault;MC=");
    EXPECT_EQ(text, 68 + 24 + 40 + 12) << "behind the version, its date and 12 bytes";
    const qsizetype end = replay.indexOf(":;") + 2;
    EXPECT_TRUE(replay.first(end).endsWith(";C=100;SR=0;SC=10000;O=N;S=HPlayer,0,0,TT,1,8,1,0,1:X:X:X:X:X:X:X:;"));
    EXPECT_EQ(replay[end], '\0');
}

TEST(SampleReplays, HumansHaveTheirSideInTheSixthFieldAndComputersInTheThird) {
    const QStringList slotTexts = RandomReplayFacts(2, 5).Slots.split(u':');
    int humans = 0, computers = 0;
    for (const QString& slot : slotTexts) {
        const QStringList fields = slot.split(u',');
        const int side = slot.startsWith(u'H')   ? fields.value(5).toInt()
                         : slot.startsWith(u'C') ? fields.value(2).toInt()
                                                 : 3;
        humans += slot.startsWith(u'H') ? 1 : 0;
        computers += slot.startsWith(u'C') ? 1 : 0;
        EXPECT_TRUE(side == -2 || side == -1 || (side >= 3 && side <= 6)) << slot.toStdString();
    }
    EXPECT_GT(humans, 0);
    EXPECT_GT(computers, 0);
}

TEST(SampleMaps, ChunksFollowTheTableOfTheirNames) {
    const QByteArray map = Map(16, 1);
    EXPECT_EQ(map.first(8), "CkMp" + Hex("03000000"));
    EXPECT_EQ(map.mid(8, 18), Hex("0d") + "HeightMapData" + Hex("01000000"));
    const qsizetype chunk = 8 + 18 + 14 + 12;
    EXPECT_EQ(map.mid(chunk, 10), Hex("01000000 0100 10010000"));
    EXPECT_EQ(Little32At(map, chunk + 10), 16);
}
