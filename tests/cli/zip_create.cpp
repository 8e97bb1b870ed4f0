// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Places.h"
#include "tests/cli/Command.h"
#include "tests/support/ArchiveBytes.h"
#include "tests/support/Printing.h"
#include "tests/support/World.h"

#include "platform/Files.h"
#include "platform/Paths.h"

#include <QProcess>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class ZipCreate : public testing::Test {
protected:
    ZipCreate() {
        for (const QString& name : {u"map\\a.ini"_s, u"map\\B.ini"_s, u"map\\readme"_s, u"map\\sub\\a.ini"_s})
            world_.WriteFile(name, "x");
    }

    [[nodiscard]] QString At(const QString& name) const { return world_.Root() + u'\\' + name; }

    [[nodiscard]] QString Native(const QString& name) const { return Paths::ToNative(At(name)); }

    /// With "zip create OUT" before the arguments and the world's root as the current folder.
    Outcome Create(const QStringList& arguments) {
        QProcess process;
        process.setWorkingDirectory(Paths::ToNative(world_.Root()));
        process.start(QString::fromUtf8(Places::Commands),
                      QStringList{u"zip"_s, u"create"_s, u"out.zip"_s} + arguments);
        const bool ended = process.waitForFinished() && process.exitStatus() == QProcess::NormalExit;
        return {.Code = ended ? process.exitCode() : -1,
                .Output = process.readAllStandardOutput(),
                .Error = process.readAllStandardError()};
    }

    /// Runs a command that must succeed without a word; returns the archive's names in its directory.
    QStringList Names(const QStringList& arguments) {
        const Outcome outcome = Create(arguments + QStringList{u"--overwrite"_s});
        EXPECT_EQ(outcome.Code, 0) << outcome.Error.constData();
        EXPECT_EQ(outcome.Output + outcome.Error, QByteArray());
        const QByteArray archive = World::ReadFile(At(u"out.zip"_s));
        QStringList names;
        for (qsizetype at = archive.indexOf("PK\1\2"); at >= 0; at = archive.indexOf("PK\1\2", at + 46))
            names += QString::fromLatin1(archive.mid(at + 46, static_cast<unsigned char>(archive.at(at + 28))));
        return names;
    }

    /// Runs a command that must fail with one line and write nothing.
    QByteArray Failure(const QStringList& arguments) {
        const Outcome outcome = Create(arguments);
        EXPECT_EQ(outcome.Code, 1);
        EXPECT_EQ(outcome.Output, QByteArray());
        EXPECT_EQ(outcome.Error.count('\n'), 1) << outcome.Error.constData();
        return outcome.Error;
    }

    [[nodiscard]] bool Written() const { return Files::FileExists(At(u"out.zip"_s)); }

    World world_;
};

} // namespace

TEST_F(ZipCreate, StoresTheNamesAlone) {
    EXPECT_EQ(Names({u"--storage"_s, u"0"_s, u"map/*.*"_s}), (QStringList{u"a.ini"_s, u"B.ini"_s}));
}

TEST_F(ZipCreate, StoresWholePaths) {
    EXPECT_EQ(Names({u"--storage"_s, u"1"_s, u"map/a.ini"_s}), QStringList{At(u"map\\a.ini"_s)});
}

TEST_F(ZipCreate, StoresPathsFromTheCurrentFolderOn) {
    EXPECT_EQ(Names({u"--storage"_s, u"2"_s, u"--recurse"_s, u"map/*.*"_s}),
              (QStringList{u"map\\a.ini"_s, u"map\\B.ini"_s, u"map\\sub\\a.ini"_s}));
    EXPECT_EQ(Names({u"--storage"_s, u"2"_s, Native(u"map/a.ini"_s)}), QStringList{u"map\\a.ini"_s});
}

TEST_F(ZipCreate, TakesPatternsInTheirOrder) {
    EXPECT_EQ(Names({u"--storage"_s, u"0"_s, u"map/readme"_s, u"map/[A-Z]*.*"_s, u"map/a.ini"_s}),
              (QStringList{u"readme"_s, u"B.ini"_s, u"a.ini"_s}));
}

TEST_F(ZipCreate, WritesTheFormatsBytes) {
    Names({u"--storage"_s, u"0"_s, u"map/a.ini"_s});
    const QByteArray archive = World::ReadFile(At(u"out.zip"_s));
    // "x" is the stream AB 00 00.
    EXPECT_EQ(archive.first(10) + archive.sliced(14, 24), Bytes("PK\x03\x04\x14\x00\x02\x00\x08\x00"
                                                                "\x83\x16\xDC\x8C\x03\x00\x00\x00\x01\x00\x00\x00"
                                                                "\x05\x00\x00\x00"
                                                                "a.ini\xAB\x00\x00"));
    EXPECT_EQ(archive.size(), 38 + 51 + 22);
}

TEST_F(ZipCreate, AFileThatExistsIsKeptWithoutLeave) {
    world_.WriteFile(u"out.zip"_s, "precious");
    EXPECT_TRUE(Failure({u"--storage"_s, u"0"_s, u"map/a.ini"_s}).contains("out.zip: exists already"));
    EXPECT_EQ(World::ReadFile(At(u"out.zip"_s)), "precious");
}

TEST_F(ZipCreate, WhatNamesNoFileIsToldAndNothingIsWritten) {
    EXPECT_TRUE(Failure({u"--storage"_s, u"0"_s, u"map/a.ini"_s, u"map/*.xyz"_s}).contains("map/*.xyz: no such file"));
    EXPECT_TRUE(Failure({u"--storage"_s, u"0"_s, u"gone/*.*"_s}).contains("gone"));
    EXPECT_TRUE(Failure({u"--storage"_s, u"0"_s, u"map/[*.*"_s}).contains("not a pattern"));
    EXPECT_FALSE(Written());
}

TEST_F(ZipCreate, AnEmptyFileIsToldAndNothingIsWritten) {
    world_.WriteFile(u"map\\empty.ini"_s, "");
    EXPECT_TRUE(Failure({u"--storage"_s, u"0"_s, u"map/*.ini"_s}).contains("empty.ini: an empty file"));
    EXPECT_FALSE(Written());
}

TEST_F(ZipCreate, WrongUsageEndsWithTwo) {
    for (const QStringList& arguments : {QStringList{}, QStringList{u"--storage"_s, u"0"_s},
                                         QStringList{u"map/a.ini"_s}, QStringList{u"--storage"_s, u"3"_s, u"a"_s}})
        EXPECT_EQ(Create(arguments).Code, 2) << arguments.join(u' ').toStdString();
}

TEST_F(ZipCreate, HasItsHelp) {
    EXPECT_TRUE(RunCommand({u"zip"_s, u"create"_s, u"--help"_s}).Output.contains("Usage"));
}
