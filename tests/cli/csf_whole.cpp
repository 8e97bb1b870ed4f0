// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Tables with letters beyond 8 bits and with what else a file can hold.

#include "tests/cli/CsfCommandTest.h"

using namespace Qt::StringLiterals;

namespace {

const QByteArray mapOfKorea("\x34\x2A\x52\x53", 4); // U+D5CB, U+ACAD inverted

QByteArray Number(quint32 value) {
    QByteArray bytes;
    for (int byte = 0; byte < 4; ++byte)
        bytes += static_cast<char>(value >> (8 * byte));
    return bytes;
}

QByteArray Label(quint32 strings, const QByteArray& name) {
    return " LBL" + Number(strings) + Number(static_cast<quint32>(name.size())) + name;
}

QByteArray Korean(const QByteArray& mark = " RTS") {
    return mark + Number(2) + mapOfKorea;
}

/// A header with counts and fields of its own, a bare label, and a label of two strings with extra data.
QByteArray Odd() {
    return " fsc" + Number(2) + Number(7) + Number(9) + Number(0xCAFE) + Number(0x10003) + Label(0, "bare") +
           Label(1, "a") + Korean() + Label(2, "b") + Korean("wrts") + Number(3) + "xyz" + " RTS" + Number(0);
}

} // namespace

TEST_F(CsfCommands, SaveKeepsAllThatATableHas) {
    const QString file = Put(u"odd.csf"_s, Odd());
    Output({u"save"_s, file, Native(u"out.csf"_s)});
    EXPECT_EQ(Contents(u"out.csf"_s), Odd());
    Output({u"save"_s, file, file, u"--set"_s, u"a=\u0416"_s});
    EXPECT_EQ(Contents(u"odd.csf"_s),
              QByteArray(Odd()).replace(Label(1, "a") + Korean(), Label(1, "a") + " RTS" + Number(1) + "\xE9\xFB"));
}

TEST_F(CsfCommands, EveryLetterIsListed) {
    EXPECT_EQ(Output({u"list"_s, Put(u"odd.csf"_s, Odd())}),
              "language 65539\na\t\xED\x97\x8B\xEA\xB2\xAD\nb\t\xED\x97\x8B\xEA\xB2\xAD\nb\t\n");
}

TEST_F(CsfCommands, EightBitReadsAndWritesAsEditorsDo) {
    const QString file = Put(u"korean.csf"_s, Head(9, 16) + Label(1, "a") + Korean() + Label(7, "b") + Korean());
    EXPECT_EQ(Output({u"list"_s, file, u"--8-bit"_s}), "language 22\na\t\xC3\x8B\xC2\xAD\nb\t\xC3\x8B\xC2\xAD\n");
    Output({u"save"_s, file, Native(u"out.csf"_s), u"--8-bit"_s});
    EXPECT_EQ(Contents(u"out.csf"_s), Head(2, 22) + Entry("a", "\xCB\xAD") + Entry("b", "\xCB\xAD"));
}

TEST_F(CsfCommands, WhatIsNotWellFormedIsRefusedWithTheOffset) {
    const QString file = Put(u"bad.csf"_s, Head(1, 0) + Entry("a", "1") + "tail");
    EXPECT_TRUE(Failure({u"list"_s, file}).contains("bad.csf: not a CSF file that can be read: offset 47: "));
    EXPECT_EQ(RunCommand({u"csf"_s, u"list"_s, file, u"--8-bit"_s}).Code, 1) << "three and one bytes run over the end";
}

TEST_F(CsfCommands, ExportsGiveAllOfItBack) {
    const QString file = Put(u"odd.csf"_s, Odd());
    for (const QString& format : {u"json"_s, u"po"_s}) {
        Output({u"export"_s, file, Native(u"out."_s + format)});
        Output({u"import"_s, Native(u"out."_s + format), Native(u"back.csf"_s)});
        EXPECT_EQ(Output({u"list"_s, Native(u"back.csf"_s), u"--json"_s}), Output({u"list"_s, file, u"--json"_s}));
        EXPECT_EQ(Output({u"diff"_s, file, Native(u"back.csf"_s)}), QByteArray());
    }
}

TEST_F(CsfCommands, WhatAFormCanNotHoldIsNamed) {
    const QString file = Put(u"odd.csf"_s, Odd());
    const Outcome csv = RunCommand({u"csf"_s, u"export"_s, file, Native(u"out.csv"_s)});
    EXPECT_EQ(csv.Code, 0);
    EXPECT_EQ(csv.Error, "not held whole\tb\n") << "the second string of its label";
    const Outcome str = RunCommand({u"csf"_s, u"export"_s, file, Native(u"out.str"_s)});
    EXPECT_EQ(str.Code, 0);
    EXPECT_EQ(str.Error, "not held whole\tb\n") << "the extra data";
    EXPECT_TRUE(Contents(u"out.str"_s)
                    .startsWith("\xEF\xBB\xBF"
                                "a\r\n\"\xED"));
}

TEST_F(CsfCommands, TheGamesOwnTextIsImported) {
    Output({u"import"_s, Put(u"map.str"_s, "a // first\n\"Caf\xE9\\n\"\nEND\n"), Native(u"out.csf"_s)});
    EXPECT_EQ(Contents(u"out.csf"_s), Head(1, 0) + Entry("a", "Caf\xE9\n"));
}

TEST_F(CsfCommands, CheckTellsWhatEightBitEditorsWouldLose) {
    EXPECT_EQ(Findings({u"check"_s, Put(u"odd.csf"_s, Odd())}),
              "letters\ta\nletters\tb\nextra-data\tb\nduplicate\tb\nempty\tb\n");
}

TEST_F(CsfCommands, ExtraDataThatChangedIsADifference) {
    const QString before = Put(u"odd.csf"_s, Odd());
    const QString after = Put(u"new.csf"_s, QByteArray(Odd()).replace("xyz", "zyx"));
    EXPECT_EQ(Findings({u"diff"_s, before, after}), "extra\tb\txyz\tzyx\n");
    Output({u"merge"_s, before, before, after, Native(u"out.csf"_s)});
    EXPECT_EQ(Contents(u"out.csf"_s), Contents(u"new.csf"_s));
}

TEST_F(CsfCommands, NamesMayHoldAnEqualsSignAndDeletesTakePatterns) {
    Output({u"save"_s, Three(), Native(u"out.csf"_s), u"--set"_s, u"k\\=v=1=2"_s, u"--set"_s, u"=3"_s});
    EXPECT_EQ(Contents(u"out.csf"_s),
              Head(4, 3) + Entry("b", "2") + Entry("A:x", "\xE9\n\t\\") + Entry("", "3") + Entry("k=v", "1=2"));
    Output({u"save"_s, Native(u"out.csf"_s), Native(u"out.csf"_s), u"--delete"_s, u"?:*"_s, u"--delete"_s, u"K=?"_s});
    EXPECT_EQ(Contents(u"out.csf"_s), Head(2, 3) + Entry("b", "2") + Entry("", "3"));
    EXPECT_FALSE(Failure({u"save"_s, u"a"_s, u"b"_s, u"--set"_s, u"k\\=v"_s}, 2).isEmpty());
    const QString stars = Put(u"s.csf"_s, Head(2, 0) + Entry("*", "1") + Entry("b", "2"));
    Output({u"save"_s, stars, stars, u"--delete"_s, u"*"_s});
    EXPECT_EQ(Contents(u"s.csf"_s), Head(1, 0) + Entry("b", "2")) << "a name that is spelt so goes before";
}

TEST_F(CsfCommands, ImportIntoATableChangesOnlyWhatTheFileHolds) {
    const QString base = Put(u"base.csf"_s, Odd());
    const QString csv = Put(u"in.csv"_s, "name,language 5\nA,new\nb,\xD0\x96\nc,3\n");
    Output({u"import"_s, csv, base, u"--into"_s, base});
    EXPECT_EQ(Contents(u"base.csf"_s), " fsc" + Number(2) + Number(8) + Number(10) + Number(0xCAFE) + Number(0x10003) +
                                           Label(0, "bare") + Label(1, "a") + " RTS" + Number(3) +
                                           "\x91\xFF\x9A\xFF\x88\xFF" + Label(2, "b") + "wrts" + Number(1) +
                                           "\xE9\xFB" + Number(3) + "xyz" + " RTS" + Number(0) + Entry("c", "3"));
}
