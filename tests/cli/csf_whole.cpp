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
