// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Tables that come from a standard stream or go to one.
#include "tests/cli/CsfCommandTest.h"

#include <QProcess>

using namespace Qt::StringLiterals;

namespace {

class CsfStreams : public CsfCommands {
protected:
    static QByteArray Piped(const QStringList& arguments, const QByteArray& input) {
        const Outcome outcome = RunCommand(QStringList{u"csf"_s} + arguments, input);
        EXPECT_EQ(outcome.Code, 0) << outcome.Error.constData();
        EXPECT_EQ(outcome.Error, QByteArray());
        return outcome.Output;
    }

    static QByteArray Table() { return Head(2, 3) + Entry("b", "2") + Entry("a", "x\n"); }
};

} // namespace

TEST_F(CsfStreams, TablesAreReadFromStandardInput) {
    EXPECT_EQ(Piped({u"list"_s, u"-"_s}, Table()), "language 3\nb\t2\na\tx\\n\n");
    Piped({u"save"_s, u"-"_s, Native(u"out.csf"_s), u"--delete"_s, u"b"_s}, Table());
    EXPECT_EQ(Contents(u"out.csf"_s), Head(1, 3) + Entry("a", "x\n"));
}

TEST_F(CsfStreams, TablesAndFormsAreWrittenToStandardOutput) {
    EXPECT_EQ(Piped({u"save"_s, u"-"_s, u"-"_s}, Table()), Table());
    EXPECT_EQ(Piped({u"save"_s, u"-"_s, u"-"_s, u"--8-bit"_s}, Table()), Table());
    EXPECT_EQ(Piped({u"export"_s, u"-"_s, u"-"_s, u"--format"_s, u"str"_s}, Table()),
              "b\r\n\"2\"\r\nEND\r\n\r\na\r\n\"x\\n\"\r\nEND\r\n\r\n");
    EXPECT_EQ(Piped({u"import"_s, u"-"_s, u"-"_s, u"--format"_s, u"csv"_s}, "name,language 3\nb,2\na,\"x\n\"\n"),
              Table());
}

TEST_F(CsfStreams, AStreamWithoutAFormatIsRefused) {
    EXPECT_EQ(Failure({u"export"_s, Put(u"t.csf"_s, Table()), u"-"_s}),
              "brindock-cli: standard output: --format has to tell what a stream holds\n");
    EXPECT_TRUE(Failure({u"import"_s, u"-"_s, Native(u"out.csf"_s)}).contains("standard input: "));
    EXPECT_FALSE(Failure({u"export"_s, u"a"_s, u"b.txt"_s, u"--format"_s, u"po"_s}, 2).isEmpty());
}

TEST_F(CsfStreams, StandardInputIsReadOnce) {
    const Outcome outcome = RunCommand({u"csf"_s, u"diff"_s, u"-"_s, u"-"_s}, Table());
    EXPECT_EQ(outcome.Code, 2);
    EXPECT_EQ(outcome.Error, "brindock-cli: standard input: can be read only once\n");
    EXPECT_EQ(Piped({u"diff"_s, u"-"_s, Put(u"t.csf"_s, Table())}, Table()), "");
}

TEST_F(CsfStreams, AMergeToStandardOutputIsTheTable) {
    const QString base = Put(u"t.csf"_s, Table());
    EXPECT_EQ(Piped({u"merge"_s, base, base, u"-"_s, u"-"_s}, Table() + ""), Table());
    const Outcome outcome = RunCommand({u"csf"_s, u"merge"_s, base, base, base, u"-"_s, u"--json"_s});
    EXPECT_EQ(outcome.Code, 2);
    EXPECT_EQ(outcome.Output, QByteArray());
}

TEST_F(CsfStreams, WhatIsNoTableIsRefusedByTheStreamsName) {
    const Outcome outcome = RunCommand({u"csf"_s, u"list"_s, u"-"_s}, "no table");
    EXPECT_EQ(outcome.Code, 1);
    EXPECT_TRUE(outcome.Error.startsWith("brindock-cli: standard input: not a CSF file that can be read: "));
}

TEST_F(CsfStreams, TheGamesOwnTextCanBeCompared) {
    const QString text = Put(u"t.str"_s, "b\n\"2\"\nEND\na\n\"y\"\nEND\n");
    EXPECT_EQ(Findings({u"diff"_s, Put(u"t.csf"_s, Table()), text}), "changed\ta\tx\\n\ty\n")
        << "a form without a language has no other one";
}

TEST_F(CsfStreams, TheSeparatorOfACsvIsChosen) {
    Output({u"export"_s, Put(u"t.csf"_s, Table()), Native(u"t.csv"_s), u"--separator"_s, u"semicolon"_s});
    EXPECT_EQ(Contents(u"t.csv"_s), "\xEF\xBB\xBF"
                                    "name;language 3\r\nb;2\r\na;\"x\n\"\r\n");
    EXPECT_FALSE(Failure({u"export"_s, u"a.csf"_s, u"t.csv"_s, u"--separator"_s, u"dot"_s}, 2).isEmpty());
}

TEST_F(CsfStreams, ATranslationIsACatalogueThatGettextTakes) {
    const QString english = Put(u"EN.csf"_s, Head(2, 0) + Entry("a", "%d men") + Entry("n", "%hs"));
    const QString french = Put(u"FR.csf"_s, Head(2, 3) + Entry("A", "%d hommes") + Entry("o", "vieux"));
    Output({u"export"_s, french, Native(u"fr.po"_s), u"--source"_s, english});
    QProcess gettext;
    gettext.start(u"msgfmt"_s, {u"--check"_s, u"-o"_s, Native(u"t.mo"_s), Native(u"fr.po"_s)});
    ASSERT_TRUE(gettext.waitForFinished()) << "gettext has to be installed";
    EXPECT_EQ(gettext.exitCode(), 0) << gettext.readAllStandardError().constData();
    Output({u"import"_s, Native(u"fr.po"_s), Native(u"back.csf"_s)});
    EXPECT_EQ(Contents(u"back.csf"_s), Contents(u"FR.csf"_s));
    EXPECT_TRUE(Failure({u"export"_s, french, Native(u"fr.json"_s), u"--source"_s, english}).contains("only PO"));
}

TEST_F(CsfStreams, TheGamesOwnTextIsReadAndWrittenInThePageThatIsNamed) {
    // The Cyrillic capital letter Zhe, U+0416, is 0xC6 in Windows-1251.
    Output({u"import"_s, Put(u"ru.str"_s, "a\n\"\xC6\"\nEND\n"), Native(u"ru.csf"_s), u"--page"_s, u"1251"_s});
    EXPECT_EQ(Output({u"list"_s, Native(u"ru.csf"_s)}), "language 0\na\t\xD0\x96\n");
    Output({u"export"_s, Native(u"ru.csf"_s), Native(u"back.str"_s), u"--page"_s, u"1251"_s});
    EXPECT_EQ(Contents(u"back.str"_s), "a\r\n\"\xC6\"\r\nEND\r\n\r\n");
    Output({u"export"_s, Native(u"ru.csf"_s), Native(u"utf.str"_s)});
    EXPECT_EQ(Contents(u"utf.str"_s), "\xEF\xBB\xBF"
                                      "a\r\n\"\xD0\x96\"\r\nEND\r\n\r\n")
        << "1252 lacks the letter";
    Output({u"diff"_s, Native(u"ru.csf"_s), Native(u"back.str"_s), u"--page"_s, u"1251"_s});
    EXPECT_TRUE(Failure({u"export"_s, Native(u"ru.csf"_s), Native(u"no.str"_s), u"--page"_s, u"12"_s})
                    .contains("no code page 12"));
}
