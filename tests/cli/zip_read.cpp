// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/cli/Command.h"
#include "tests/install/ZipSamples.h"
#include "tests/support/Printing.h"
#include "tests/support/World.h"
#include "tools/demoworld/ZipBytes.h"

#include "platform/Files.h"
#include "platform/Paths.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class ZipReadCommands : public testing::Test {
protected:
    /// A folder, two files in folders, one beside them.
    QString Sample() {
        return Put(ZipBytes::Archive({{.Name = "d/"},
                                      {.Name = "d/One.map", .Content = "11111"},
                                      {.Name = "d/e/Two.map", .Content = "22", .Method = 8},
                                      {.Name = "read me.txt", .Content = "text"}},
                                     {.Comment = "by caf\xE9\r\nsecond"}));
    }

    /// Writes the archive; returns its native path.
    QString Put(const QByteArray& bytes) { return Paths::ToNative(world_.WriteFile(u"a.zip"_s, bytes)); }

    [[nodiscard]] QString Out() const { return Paths::ToNative(world_.Root() + u"\\out"_s); }

    [[nodiscard]] QByteArray Got(const QString& name) const {
        return World::ReadFile(world_.Root() + u"\\out\\"_s + name);
    }

    [[nodiscard]] QStringList Names() const {
        QStringList names = Files::ListFolder(world_.Root() + u"\\out\\*"_s, true);
        names.sort();
        return names;
    }

    static QByteArray Output(const QStringList& arguments) {
        const Outcome outcome = RunCommand(QStringList{u"zip"_s} + arguments);
        EXPECT_EQ(outcome.Code, 0) << outcome.Error.constData();
        EXPECT_EQ(outcome.Error, QByteArray());
        return outcome.Output;
    }

    /// Runs a command that must fail; returns its one line.
    static QByteArray Failure(const QStringList& arguments) {
        const Outcome outcome = RunCommand(QStringList{u"zip"_s} + arguments);
        EXPECT_EQ(outcome.Code, 1);
        EXPECT_EQ(outcome.Error.count('\n'), 1) << outcome.Error.constData();
        return outcome.Error;
    }

    World world_;
};

} // namespace

TEST_F(ZipReadCommands, ListPrintsALineAnEntry) {
    EXPECT_EQ(Output({u"list"_s, Sample()}), "1\t0\td/\n2\t5\td/One.map\n3\t2\td/e/Two.map\n4\t4\tread me.txt\n");
}

TEST_F(ZipReadCommands, ListPrintsJson) {
    const QJsonObject told = QJsonDocument::fromJson(Output({u"list"_s, Sample(), u"--json"_s})).object();
    EXPECT_EQ(told[u"comment"_s].toString(), u"by café\r\nsecond"_s);
    ASSERT_EQ(told[u"entries"_s].toArray().size(), 4);
    EXPECT_EQ(told[u"entries"_s].toArray()[2].toObject(),
              (QJsonObject{{u"index"_s, 3}, {u"size"_s, 2}, {u"packed"_s, 4}, {u"name"_s, u"d/e/Two.map"_s}}));
}

TEST_F(ZipReadCommands, CommentPrintsIt) {
    EXPECT_EQ(Output({u"comment"_s, Sample()}), "by caf\xC3\xA9\r\nsecond\n");
    EXPECT_EQ(Output({u"comment"_s, Put(ZipBytes::Archive({}))}), "");
}

TEST_F(ZipReadCommands, WhatIsNoArchiveIsRefusedWithItsNameAndAReason) {
    for (const QString& command : {u"list"_s, u"comment"_s}) {
        EXPECT_TRUE(Failure({command, Put("some text")}).contains("a.zip: no ZIP archive"));
        EXPECT_TRUE(Failure({command, Paths::ToNative(world_.Root() + u"\\missing.zip"_s)}).contains("missing.zip: "));
    }
    EXPECT_TRUE(Failure({u"extract"_s, Put("some text"), Out()}).contains("a.zip: no ZIP archive"));
}

TEST_F(ZipReadCommands, ExtractDropsTheFolders) {
    Output({u"extract"_s, Sample(), Out()});
    EXPECT_EQ(Names(), (QStringList{u"One.map"_s, u"Two.map"_s, u"read me.txt"_s}));
    EXPECT_EQ(Got(u"Two.map"_s), "22");
}

TEST_F(ZipReadCommands, ExtractWithDirsMakesThem) {
    Output({u"extract"_s, Sample(), Out(), u"--dirs"_s});
    EXPECT_EQ(Names(), (QStringList{u"d"_s, u"read me.txt"_s}));
    EXPECT_EQ(Got(u"d\\One.map"_s), "11111");
    EXPECT_EQ(Got(u"d\\e\\Two.map"_s), "22");
    Output({u"extract"_s, Put(ZipBytes::Archive({{.Name = "empty/in/"}})), Out(), u"--dirs"_s});
    EXPECT_TRUE(Files::FolderExists(world_.Root() + u"\\out\\empty\\in"_s));
}

TEST_F(ZipReadCommands, ExtractTakesNamesAndPatterns) {
    Output({u"extract"_s, Sample(), Out(), u"read me.txt"_s, u"*TWO*"_s});
    EXPECT_EQ(Names(), (QStringList{u"Two.map"_s, u"read me.txt"_s}));
    EXPECT_TRUE(Failure({u"extract"_s, Sample(), Out(), u"none"_s}).contains("no entry is named none"));
}

TEST_F(ZipReadCommands, ANameWithAStarInItNamesItselfFirst) {
    const QString archive =
        Put(ZipBytes::Archive({{.Name = "[a] ?.map", .Content = "1"}, {.Name = "[a] b.map", .Content = "2"}}));
    EXPECT_TRUE(Failure({u"extract"_s, archive, Out(), u"[a] ?.map"_s}).contains("[a] ?.map"));
    EXPECT_EQ(Names(), QStringList()) << "which is no name for a file";
    Output({u"extract"_s, archive, Out(), u"[a] b*"_s});
    EXPECT_EQ(Names(), QStringList{u"[a] b.map"_s});
}

TEST_F(ZipReadCommands, ExtractTellsTheFirstFailureAndGoesOn) {
    const QString archive = Put(ZipBytes::Archive({{.Name = "../evil", .Content = "1"},
                                                   {.Name = "broken", .Content = "2", .Crc = 0},
                                                   {.Name = "good", .Content = "3"}}));
    const QByteArray line = Failure({u"extract"_s, archive, Out(), u"--dirs"_s});
    EXPECT_TRUE(line.contains("../evil: ") && line.contains("(and 1 more not extracted)")) << line.constData();
    EXPECT_EQ(Names(), QStringList{u"good"_s});
    EXPECT_FALSE(Files::FileExists(world_.Root() + u"\\evil"_s));
}

TEST_F(ZipReadCommands, TheSecondEntryOfAPlaceIsNotExtractedInSilence) {
    const QString archive = Put(ZipBytes::Archive({{.Name = "a/x", .Content = "1"}, {.Name = "b/X", .Content = "2"}}));
    EXPECT_TRUE(Failure({u"extract"_s, archive, Out()}).contains("b/X: another entry has that name"));
    EXPECT_EQ(Got(u"x"_s), "1");
    Output({u"extract"_s, archive, Out(), u"--dirs"_s});
    EXPECT_EQ(Got(u"b\\X"_s), "2");
}

TEST_F(ZipReadCommands, APasswordOpensWhatIsEncrypted) {
    const QString archive = Put(ZipSamples::Sample(ZipSamples::Aes256));
    EXPECT_EQ(Output({u"list"_s, archive}), "1\t5\ta.txt\n2\t1200\tb.txt\n");
    EXPECT_TRUE(Failure({u"extract"_s, archive, Out()}).contains("a.txt: needs a password"));
    EXPECT_FALSE(Failure({u"extract"_s, archive, Out(), u"--password"_s, u"wrong"_s}).isEmpty());
    EXPECT_EQ(Names(), QStringList());
    Output({u"extract"_s, archive, Out(), u"--password"_s, u"secret"_s});
    EXPECT_EQ(Got(u"a.txt"_s), "hello");
}

TEST_F(ZipReadCommands, EachCommandHasItsHelpAndWrongUsageEndsWithTwo) {
    for (const QString& command : {u"list"_s, u"extract"_s, u"comment"_s}) {
        EXPECT_TRUE(Output({command, u"--help"_s}).contains("Usage")) << command.toStdString();
        EXPECT_EQ(RunCommand({u"zip"_s, command}).Code, 2);
    }
}
