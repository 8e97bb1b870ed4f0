// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/cli/CsfCommandTest.h"

#include "platform/Files.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>

using namespace Qt::StringLiterals;

TEST_F(CsfCommands, ListPrintsTheLanguageAndTheEntriesInFileOrder) {
    EXPECT_EQ(Output({u"list"_s, Three()}), "language 3\nb\t2\nA:x\t\xC3\xA9\\n\\t\\\\\n\t3\n");
}

TEST_F(CsfCommands, ListPrintsJson) {
    const QJsonObject table = QJsonDocument::fromJson(Output({u"list"_s, Three(), u"--json"_s})).object();
    EXPECT_EQ(table[u"language"_s].toInt(-1), 3);
    const QJsonArray strings = table[u"strings"_s].toArray();
    ASSERT_EQ(strings.size(), 3);
    EXPECT_EQ(strings[1].toObject(), (QJsonObject{{u"name"_s, u"A:x"_s}, {u"value"_s, u"\u00E9\n\t\\"_s}}));
}

TEST_F(CsfCommands, WhatIsNoTableIsRefusedWithItsNameAndAReason) {
    EXPECT_TRUE(Failure({u"list"_s, Put(u"not.csf"_s, "something else")}).contains("not.csf: not a CSF file"));
    EXPECT_TRUE(Failure({u"list"_s, Put(u"empty.csf"_s, "")}).contains("empty.csf: "));
    EXPECT_TRUE(Failure({u"list"_s, Native(u"missing.csf"_s)}).contains("missing.csf: "));
    EXPECT_TRUE(Failure({u"list"_s, Native(u"."_s)}).contains(": "));
}

TEST_F(CsfCommands, WrongUsageEndsWithTwo) {
    EXPECT_FALSE(Failure({}, 2).isEmpty());
    EXPECT_FALSE(Failure({u"list"_s}, 2).isEmpty());
    EXPECT_FALSE(Failure({u"save"_s, u"a"_s, u"b"_s, u"--set"_s, u"name"_s}, 2).isEmpty());
    EXPECT_FALSE(Failure({u"save"_s, u"a"_s, u"b"_s, u"--language"_s, u"256"_s}, 2).isEmpty());
    EXPECT_FALSE(Failure({u"export"_s, Three(), Native(u"out.txt"_s)}, 2).isEmpty());
    EXPECT_FALSE(Failure({u"import"_s, Native(u"in.txt"_s), Native(u"out.csf"_s)}, 2).isEmpty());
    EXPECT_FALSE(Failure({u"check"_s, Three(), u"--max"_s, u"0"_s}, 2).isEmpty());
}

TEST_F(CsfCommands, EachCommandHasItsHelp) {
    for (const QString& command : {u"list"_s, u"save"_s, u"export"_s, u"import"_s, u"diff"_s, u"merge"_s, u"check"_s})
        EXPECT_TRUE(Output({command, u"--help"_s}).contains("Usage")) << command.toStdString();
}

TEST_F(CsfCommands, SaveKeepsTheFilesOrder) {
    const QString three = Three();
    EXPECT_EQ(Output({u"save"_s, three, Native(u"out.csf"_s)}), QByteArray());
    EXPECT_EQ(Contents(u"out.csf"_s), Contents(u"three.csf"_s));
    Output({u"save"_s, three, three});
    EXPECT_EQ(Contents(u"three.csf"_s), Contents(u"out.csf"_s));
    EXPECT_FALSE(Files::FileExists(At(u"three.csf.sav"_s)));
}

TEST_F(CsfCommands, SaveDeletesThenSets) {
    Output({u"save"_s, Three(), Native(u"out.csf"_s), u"--set"_s, u"B=new\\nline=1"_s, u"--set"_s, u"b2="_s,
            u"--delete"_s, u"a:X"_s, u"--language"_s, u"255"_s});
    EXPECT_EQ(Contents(u"out.csf"_s), Head(3, '\xFF') + Entry("b", "new\nline=1") + Entry("", "3") + Entry("b2", ""));
}

TEST_F(CsfCommands, SaveTakesNamesAsTheyAreSpeltBeforeOthers) {
    const QString both = Put(u"both.csf"_s, Head(3, 0) + Entry("a", "1") + Entry("A", "2") + Entry("a", "3"));
    Output({u"save"_s, both, Native(u"out.csf"_s), u"--set"_s, u"a=x"_s});
    EXPECT_EQ(Contents(u"out.csf"_s), Head(3, 0) + Entry("a", "x") + Entry("A", "2") + Entry("a", "x"));
    Output({u"save"_s, both, Native(u"out.csf"_s), u"--delete"_s, u"a"_s});
    EXPECT_EQ(Contents(u"out.csf"_s), Head(1, 0) + Entry("A", "2"));
    Output({u"save"_s, Three(), Native(u"out.csf"_s), u"--set"_s, u"=x"_s});
    EXPECT_TRUE(Contents(u"out.csf"_s).endsWith(Entry("", "x")));
}

TEST_F(CsfCommands, SaveRefusesWhatCantBeSaved) {
    EXPECT_TRUE(Failure({u"save"_s, Three(), Native(u"out.csf"_s), u"--delete"_s, u"none"_s}).contains("none"));
    const QString one = Put(u"one.csf"_s, Head(1, 0) + Entry("a", "b"));
    EXPECT_TRUE(Failure({u"save"_s, one, Native(u"out.csf"_s), u"--delete"_s, u"a"_s}).contains("out.csf: "));
    EXPECT_TRUE(Failure({u"save"_s, one, Native(u"gone/out.csf"_s)}).contains("out.csf: "));
    Put(u"folder.csf\\file"_s, "x");
    EXPECT_TRUE(Failure({u"save"_s, one, Native(u"folder.csf"_s)}).contains("folder.csf: "));
    EXPECT_EQ(Contents(u"folder.csf\\file"_s), "x");
    const QString drifted = Put(u"drifted.csf"_s, Head(1, 100) + Entry("a", "b"));
    EXPECT_TRUE(Failure({u"save"_s, drifted, drifted, u"--8-bit"_s}).contains("drifted.csf: the language number 256"));
    EXPECT_EQ(Contents(u"drifted.csf"_s), Head(1, 100) + Entry("a", "b"));
    Output({u"save"_s, drifted, drifted});
    EXPECT_EQ(Contents(u"drifted.csf"_s), Head(1, 100) + Entry("a", "b")) << "the number as it stands";
    EXPECT_FALSE(Files::FileExists(At(u"out.csf"_s)));
}

TEST_F(CsfCommands, AStaleBackupIsNamedAndBothFilesStay) {
    const QString three = Three();
    const QByteArray before = Contents(u"three.csf"_s);
    Put(u"three.csf.sav"_s, "older");
    EXPECT_TRUE(Failure({u"save"_s, three, three, u"--set"_s, u"a=b"_s, u"--8-bit"_s}).contains("three.csf.sav"));
    EXPECT_EQ(Contents(u"three.csf"_s), before);
    EXPECT_EQ(Contents(u"three.csf.sav"_s), "older");
}

TEST_F(CsfCommands, AWriteProtectedFileIsNotReplaced) {
    const QString three = Three();
    const QByteArray before = Contents(u"three.csf"_s);
    const QString csv = Put(u"out.csv"_s, "old");
    for (const QString& path : {three, csv})
        ASSERT_TRUE(QFile::setPermissions(path, QFile::ReadOwner));
    EXPECT_TRUE(
        Failure({u"save"_s, three, three, u"--set"_s, u"a=b"_s}).startsWith("brindock-cli: " + three.toUtf8() + ": "));
    EXPECT_TRUE(Failure({u"export"_s, three, csv}).startsWith("brindock-cli: " + csv.toUtf8() + ": "));
    EXPECT_EQ(Contents(u"three.csf"_s), before);
    EXPECT_EQ(Contents(u"out.csv"_s), "old");
    EXPECT_FALSE(Files::FileExists(At(u"three.csf.sav"_s)));
}

TEST_F(CsfCommands, ExportAndImportGiveTheFileBack) {
    QByteArray all;
    for (int code = 1; code < 127; ++code)
        all += static_cast<char>(code);
    QByteArray upper;
    for (int code = 127; code < 256; ++code)
        upper += static_cast<char>(code);
    const QByteArray table = Head(7, 8) + Entry("b", "x") + Entry("", "x") + Entry("b", "x") + Entry("b", "") +
                             Entry(Bytes("\0"), Bytes("\0\r\n\r")) + Entry(all, all) + Entry("\xE9#2", upper);
    const QString file = Put(u"table.csf"_s, table);
    for (const QString& format : {u"json"_s, u"csv"_s, u"po"_s}) {
        Output({u"export"_s, file, Native(u"out."_s + format)});
        Output({u"import"_s, Native(u"out."_s + format), Native(u"back.csf"_s)});
        EXPECT_EQ(Contents(u"back.csf"_s), table) << format.toStdString();
    }
    Output({u"import"_s, Native(u"out.csv"_s), Native(u"back.csf"_s), u"--language"_s, u"2"_s});
    EXPECT_EQ(Contents(u"back.csf"_s)[20], '\2');
}

TEST_F(CsfCommands, AnExportReplacesTheFileThatStoodThere) {
    Put(u"out.csv"_s, "a much longer text than the one that comes");
    Output({u"export"_s, Put(u"one.csf"_s, Head(1, 0) + Entry("a", "b")), Native(u"out.csv"_s)});
    EXPECT_EQ(Contents(u"out.csv"_s), "\xEF\xBB\xBFname,language 0\r\na,b\r\n");
    EXPECT_EQ(Files::ListFolder(At(u"~brindock*"_s)), QStringList{});
}

TEST_F(CsfCommands, AnExportThatFailsNamesItsTarget) {
    for (const QString& target : {u"gone/out.po"_s, u"folder.po"_s}) {
        Put(u"folder.po\\file"_s, "x");
        EXPECT_TRUE(Failure({u"export"_s, Three(), Native(target)})
                        .startsWith("brindock-cli: " + Native(target).toUtf8() + ": "));
    }
    EXPECT_EQ(Files::ListFolder(At(u"~brindock*"_s)), QStringList{});
    EXPECT_EQ(Contents(u"folder.po\\file"_s), "x");
}

TEST_F(CsfCommands, GettextTakesTheExportedCatalogueAndItsCopyIsTheSameTable) {
    QByteArray entries =
        Entry("a", "x\n") + Entry("a", "x\n") + Entry("", "") + Entry("", "") + Entry("a#2", "%s \r\n");
    for (int code = 0; code < 250; ++code) {
        const QByteArray letter(1, static_cast<char>(code));
        entries += Entry(letter, "a" + letter);
    }
    const QByteArray table = Head('\xFF', 3) + entries;
    Output({u"export"_s, Put(u"t.csf"_s, table), Native(u"t.po"_s)});
    const auto run = [](const QString& program, const QStringList& arguments) {
        QProcess gettext;
        gettext.start(program, arguments);
        ASSERT_TRUE(gettext.waitForFinished()) << "gettext has to be installed";
        EXPECT_EQ(gettext.exitCode(), 0) << gettext.readAllStandardError().constData();
    };
    run(u"msgfmt"_s, {u"--check"_s, u"-o"_s, Native(u"t.mo"_s), Native(u"t.po"_s)});
    run(u"msgcat"_s, {u"-o"_s, Native(u"copy.po"_s), Native(u"t.po"_s)});
    Output({u"import"_s, Native(u"copy.po"_s), Native(u"back.csf"_s)});
    EXPECT_EQ(Contents(u"back.csf"_s), table);
}

TEST_F(CsfCommands, ImportNamesTheLineThatItRefuses) {
    EXPECT_TRUE(
        Failure({u"import"_s, Put(u"in.csv"_s, "name,value\na\n"), Native(u"out.csf"_s)}).contains("in.csv: line 2: "));
    EXPECT_TRUE(Failure({u"import"_s, Put(u"in.po"_s, "\nmsgid \"a\"\nmsgstr \"\"\n"), Native(u"out.csf"_s)})
                    .contains("in.po: line 2: "));
    EXPECT_TRUE(Failure({u"import"_s, Put(u"cut.json"_s, "{\n\"strings\":\n"), Native(u"out.csf"_s)})
                    .contains("cut.json: line 3: "));
    EXPECT_TRUE(Failure({u"import"_s, Native(u"missing.po"_s), Native(u"out.csf"_s)}).contains("missing.po: "));
    EXPECT_TRUE(
        Failure({u"import"_s, Put(u"in.json"_s, "{\"strings\":[]}"), Native(u"out.csf"_s)}).contains("out.csf: "));
    EXPECT_FALSE(Files::FileExists(At(u"out.csf"_s)));
}

TEST_F(CsfCommands, ImportTellsWhichEntriesLoseALetter) {
    const Outcome outcome =
        RunCommand({u"csf"_s, u"import"_s, Put(u"in.csv"_s, "name,value\na,\xE4\xB8\xAD\nb,\xC3\xA9\n"),
                    Native(u"out.csf"_s), u"--8-bit"_s});
    EXPECT_EQ(outcome.Code, 0);
    EXPECT_EQ(outcome.Error, "a letter becomes '?'\ta\n");
    EXPECT_EQ(Contents(u"out.csf"_s), Head(2, 0) + Entry("a", "?") + Entry("b", "\xE9"));
}

TEST_F(CsfCommands, SaveTellsWhichSettingLosesALetter) {
    const Outcome outcome = RunCommand({u"csf"_s, u"save"_s, Three(), Native(u"out.csf"_s), u"--set"_s,
                                        u"b=\u4E2D\u00E9"_s, u"--set"_s, u"c=\u00E9"_s, u"--8-bit"_s});
    EXPECT_EQ(outcome.Code, 0);
    EXPECT_EQ(outcome.Error, "a letter becomes '?'\tb\n");
    EXPECT_EQ(Contents(u"out.csf"_s),
              Head(4, 3) + Entry("b", "?\xE9") + Entry("A:x", "\xE9\n\t\\") + Entry("", "3") + Entry("c", "\xE9"));
}

TEST_F(CsfCommands, DiffEndsWithOneWhenTheTablesDiffer) {
    const QString three = Three();
    EXPECT_EQ(Output({u"diff"_s, three, three}), QByteArray());
    const QString other = Put(u"o.csf"_s, Head(3, 2) + Entry("c", "4\n") + Entry("", "3") + Entry("b", "x"));
    EXPECT_EQ(Findings({u"diff"_s, three, other}), "language\t3\t2\n"
                                                   "changed\tb\t2\tx\n"
                                                   "removed\tA:x\t\xC3\xA9\\n\\t\\\\\n"
                                                   "added\tc\t4\\n\n"
                                                   "order\n");
    for (const QStringList& trouble : {QStringList{u"diff"_s, three, Native(u"missing.csf"_s)},
                                       {u"check"_s, Native(u"missing.csf"_s)},
                                       {u"merge"_s, three, Native(u"missing.csf"_s), three, three}})
        EXPECT_TRUE(Failure(trouble, 2).contains("missing.csf: "));
    const QString turned = Put(u"t.csf"_s, Head(3, 3) + Entry("A:x", "\xE9\n\t\\") + Entry("b", "2") + Entry("", "3"));
    EXPECT_EQ(Findings({u"diff"_s, three, turned}), "order\n");
    EXPECT_EQ(Output({u"diff"_s, three, turned, u"--ignore-order"_s}), QByteArray());
    const QJsonObject told = QJsonDocument::fromJson(Findings({u"diff"_s, three, other, u"--json"_s})).object();
    EXPECT_EQ(told[u"languages"_s].toArray(), (QJsonArray{3, 2}));
    EXPECT_EQ(told[u"sameOrder"_s].toBool(true), false);
    EXPECT_EQ(
        told[u"differences"_s].toArray().at(0).toObject(),
        (QJsonObject{{u"kind"_s, u"changed"_s}, {u"name"_s, u"b"_s}, {u"before"_s, u"2"_s}, {u"after"_s, u"x"_s}}));
}

TEST_F(CsfCommands, MergeTakesBothSides) {
    const QString base = Put(u"base.csf"_s, Head(2, 0) + Entry("a", "1") + Entry("b", "1"));
    const QString ours = Put(u"ours.csf"_s, Head(2, 0) + Entry("a", "2") + Entry("b", "1"));
    const QString theirs = Put(u"theirs.csf"_s, Head(3, 3) + Entry("a", "1") + Entry("b", "3") + Entry("c", "3"));
    EXPECT_EQ(Output({u"merge"_s, base, ours, theirs, Native(u"out.csf"_s)}), QByteArray());
    EXPECT_EQ(Contents(u"out.csf"_s), Head(3, 3) + Entry("a", "2") + Entry("b", "3") + Entry("c", "3"));
}

TEST_F(CsfCommands, MergeListsConflictsAndKeepsOurs) {
    const QString base = Put(u"base.csf"_s, Head(2, 0) + Entry("a", "1") + Entry("b", "1"));
    const QString ours = Put(u"ours.csf"_s, Head(2, 2) + Entry("a", "2") + Entry("b", "1"));
    const QString theirs = Put(u"theirs.csf"_s, Head(2, 3) + Entry("a", "3") + Entry("b", "3"));
    const Outcome outcome = RunCommand({u"csf"_s, u"merge"_s, base, ours, theirs, ours});
    EXPECT_EQ(outcome.Code, 1);
    EXPECT_EQ(outcome.Output, QByteArray());
    EXPECT_EQ(outcome.Error, "language\tchanged in both\nconflict\ta\tchanged in both\t2\t3\n");
    EXPECT_EQ(Contents(u"ours.csf"_s), Head(2, 2) + Entry("a", "2") + Entry("b", "3"));
}

TEST_F(CsfCommands, MergePrefersTheSideThatIsNamed) {
    const QString base = Put(u"base.csf"_s, Head(1, 0) + Entry("a", "1"));
    const QString ours = Put(u"ours.csf"_s, Head(1, 2) + Entry("A", "2"));
    const QString theirs = Put(u"theirs.csf"_s, Head(1, 3) + Entry("a", "3"));
    const auto merge = [&](const QString& flag) {
        return RunCommand({u"csf"_s, u"merge"_s, base, ours, theirs, Native(u"out.csf"_s), flag});
    };
    EXPECT_EQ(merge(u"--theirs"_s).Code, 0);
    EXPECT_EQ(Contents(u"out.csf"_s), Head(1, 3) + Entry("A", "3")) << "one name, spelt as ours";
    EXPECT_EQ(merge(u"--ours"_s).Code, 0);
    EXPECT_EQ(Contents(u"out.csf"_s), Contents(u"ours.csf"_s));
    const Outcome json = merge(u"--json"_s);
    EXPECT_EQ(json.Code, 1);
    const QJsonObject told = QJsonDocument::fromJson(json.Output).object();
    EXPECT_TRUE(told[u"languageConflict"_s].toBool());
    EXPECT_EQ(
        told[u"conflicts"_s].toArray().at(0).toObject(),
        (QJsonObject{
            {u"name"_s, u"A"_s}, {u"reason"_s, u"changed in both"_s}, {u"ours"_s, u"2"_s}, {u"theirs"_s, u"3"_s}}));
}

TEST_F(CsfCommands, AnEmptyBaseIsAnEmptyTable) {
    const QString ours = Put(u"ours.csf"_s, Head(2, 3) + Entry("a", "1") + Entry("c", "1"));
    const QString theirs = Put(u"theirs.csf"_s, Head(3, 3) + Entry("a", "1") + Entry("b", "2") + Entry("c", "1"));
    Output({u"merge"_s, Put(u"base.csf"_s, ""), ours, theirs, Native(u"out.csf"_s)});
    EXPECT_EQ(Contents(u"out.csf"_s), Contents(u"theirs.csf"_s)) << "their addition where it stood";
    EXPECT_EQ(RunCommand({u"csf"_s, u"diff"_s, Native(u"base.csf"_s), ours}).Code, 2);
}

TEST_F(CsfCommands, CheckPrintsItsFindings) {
    const QString file =
        Put(u"f.csf"_s, Head(4, 0) + Entry("Ok", "%d\n") + Entry("OK", "") + Entry("c", "12345") + Entry("d", "fine"));
    EXPECT_EQ(Findings({u"check"_s, file}), "duplicate\tOK\nempty\tOK\n");
    const QString other = Put(u"o.csf"_s, Head(2, 0) + Entry("ok", "%s") + Entry("D", "too"));
    EXPECT_EQ(Findings({u"check"_s, file, u"--against"_s, other, u"--max"_s, u"4"_s}),
              "placeholders\tOk\t%d\t%s\nduplicate\tOK\nempty\tOK\nplaceholders\tOK\t\t%s\nextra\tc\nlong\tc\t5\n");
    const QString more = Put(u"m.csf"_s, Head(3, 0) + Entry("D", "fine") + Entry("new", "x") + Entry("c", "12345"));
    EXPECT_EQ(Findings({u"check"_s, file, u"--against"_s, more}),
              "extra\tOk\nduplicate\tOK\nempty\tOK\nextra\tOK\nuntranslated\td\nmissing\tnew\n");
    const QJsonArray told =
        QJsonDocument::fromJson(Findings({u"check"_s, file, u"--against"_s, other, u"--json"_s})).array();
    EXPECT_EQ(
        told.at(0).toObject(),
        (QJsonObject{
            {u"kind"_s, u"placeholders"_s}, {u"name"_s, u"Ok"_s}, {u"here"_s, u"%d"_s}, {u"against"_s, u"%s"_s}}));
    EXPECT_EQ(Output({u"check"_s, Three()}), QByteArray());
}
