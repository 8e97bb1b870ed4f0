// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Commands for string tables on a device that fails at every write.
#include "tests/cli/CsfCommandTest.h"
#include "tests/support/posix/FileLengthLimit.h"

#include "platform/Files.h"

using namespace Qt::StringLiterals;

TEST_F(CsfCommands, ASaveThatFailsMidwayLeavesTheOldFile) {
    const QString three = Three();
    const QByteArray before = Contents(u"three.csf"_s);
    for (const rlim_t room : {0U, 23U, 24U, 60U}) {
        QByteArray told;
        {
            const FileLengthLimit limit(room);
            told = Failure({u"save"_s, three, three, u"--set"_s, u"b=x"_s, u"--8-bit"_s});
        }
        EXPECT_TRUE(told.startsWith("brindock-cli: " + three.toUtf8() + ": ")) << told.constData();
        EXPECT_FALSE(told.contains("~brindock")) << told.constData();
        EXPECT_EQ(Contents(u"three.csf"_s), before);
        EXPECT_EQ(Files::ListFolder(At(u"*.sav"_s)), QStringList());
    }
}

TEST_F(CsfCommands, ASaveOfAllThatFailsMidwayKeepsWhatStoodThere) {
    const QString three = Three();
    const QByteArray before = Contents(u"three.csf"_s);
    for (const rlim_t room : {0U, 23U, 24U, 60U}) {
        const FileLengthLimit limit(room);
        EXPECT_TRUE(Failure({u"save"_s, three, three, u"--set"_s, u"b=x"_s}).contains("three.csf: "));
        EXPECT_EQ(Contents(u"three.csf"_s), before);
    }
    EXPECT_EQ(Files::ListFolder(At(u"~brindock*"_s)), QStringList{});
}

TEST_F(CsfCommands, ANewFileThatFailsMidwayHasNoOldOneToName) {
    const QString three = Three();
    const FileLengthLimit limit(60);
    const QByteArray told = Failure({u"save"_s, three, Native(u"new.csf"_s)});
    EXPECT_TRUE(told.startsWith("brindock-cli: " + Native(u"new.csf"_s).toUtf8() + ": "));
    EXPECT_FALSE(told.contains(".sav")) << told.constData();
}

TEST_F(CsfCommands, AnExportThatFailsMidwayKeepsWhatStoodThere) {
    const QString three = Three();
    const QString target = Put(u"out.csv"_s, "old");
    const FileLengthLimit limit(10);
    EXPECT_TRUE(Failure({u"export"_s, three, target}).startsWith("brindock-cli: " + target.toUtf8() + ": "));
    EXPECT_EQ(Contents(u"out.csv"_s), "old");
    EXPECT_EQ(Files::ListFolder(At(u"~brindock*"_s)), QStringList{});
}
