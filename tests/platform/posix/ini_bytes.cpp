// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/INIRuntime.h"
#include "platform/ProfileText.h"

#include "tests/platform/Scratch.h"

#include <gtest/gtest.h>

#include <sys/stat.h>

#include <optional>

using namespace Qt::StringLiterals;

namespace {

QByteArray Changed(const QByteArray& bytes, const QString& section, const QString& key, const QString& value) {
    return ProfileText(bytes).Write(section, key, value);
}

} // namespace

TEST(ProfileBytes, AWriteKeepsEveryOtherByte) {
    EXPECT_EQ(Changed(" [ A ] x\n\n  k  =  1  \r\t\t j=2\r\n\r\n", u"A"_s, u"k"_s, u"5"_s),
              " [ A ] x\n\n  k  =  5  \r\t\t j=2\r\n\r\n");
}

TEST(ProfileBytes, ASecondUtf16MarkStays) {
    // The line with the mark names no section.
    const QByteArray before("\xFF\xFE\xFF\xFE[\0A\0]\0\n\0k\0=\0", 16);
    EXPECT_EQ(Changed(before + QByteArray("1\0", 2), {}, u"k"_s, u"2"_s), before + QByteArray("2\0", 2));
}

TEST(ProfileBytes, ANewKeyComesBeforeTheBlankLinesAtItsSectionsEnd) {
    EXPECT_EQ(Changed("[A]\n\nk=1\n\n \n[B]\n\nz=1\n", u"A"_s, u"j"_s, u"2"_s), "[A]\n\nk=1\nj=2\r\n\n \n[B]\n\nz=1\n");
    EXPECT_EQ(Changed("[A]\r\n;c\r\n\r\n", u"A"_s, u"j"_s, u"2"_s), "[A]\r\n;c\r\nj=2\r\n\r\n");
}

TEST(ProfileBytes, ANewSectionComesAtTheVeryEnd) {
    EXPECT_EQ(Changed("[A]\nk=1\n\n", u"B"_s, u"j"_s, u"2"_s), "[A]\nk=1\n\n[B]\r\nj=2\r\n");
}

TEST(ProfileBytes, WritingTheValueThatStandsThereChangesNothing) {
    const QByteArray bytes = "[A]\n k = 1 \n";
    EXPECT_EQ(Changed(bytes, u"A"_s, u"k"_s, u"1"_s), bytes);
}

TEST(ProfileBytes, LettersBeyondAsciiAreFoundWithoutRegardToCase) {
    EXPECT_EQ(ProfileText("[\xC9T\xC9]\ncl\xC9=1\n").Read(u"été"_s, u"clé"_s), u"1"_s);
}

TEST(IniFile, AWriteLeavesNoOtherFileAndKeepsPermissionsAndLinks) {
    const Scratch scratch;
    const QString file = scratch.Write(u"f/real.ini"_s, "[A]\nk=1\n");
    ASSERT_EQ(::chmod(qPrintable(scratch.Native(u"f/real.ini"_s)), 0640), 0);
    ASSERT_TRUE(QFile::link(u"real.ini"_s, scratch.Native(u"f/link.ini"_s)));
    EXPECT_EQ(INIRuntime().WriteINI(u"A"_s, u"k"_s, u"2"_s, scratch.Inside(u"f/link.ini"_s)), u"1"_s);
    EXPECT_EQ(scratch.Read(u"f/real.ini"_s), "[A]\nk=2\n");

    struct stat status {};

    ASSERT_EQ(::stat(qPrintable(scratch.Native(u"f/real.ini"_s)), &status), 0);
    EXPECT_EQ(status.st_mode & 0777U, 0640U);
    EXPECT_TRUE(QFileInfo(scratch.Native(u"f/link.ini"_s)).isSymLink());
    EXPECT_EQ(QDir(scratch.Native(u"f"_s)).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
              (QStringList{u"link.ini"_s, u"real.ini"_s}));
}

TEST(IniFile, IsFoundWithoutRegardToCase) {
    const Scratch scratch;
    scratch.Write(u"Some.INI"_s, "[A]\nk=1\n");
    EXPECT_EQ(INIRuntime().ReadINI(u"A"_s, u"k"_s, scratch.Inside(u"sOME.ini"_s)), u"1"_s);
}

TEST(IniFile, APipeReadsAsEmptyTextAndNobodyWaits) {
    const Scratch scratch;
    ASSERT_EQ(::mkfifo(qPrintable(scratch.Native(u"pipe"_s)), 0600), 0);
    EXPECT_EQ(INIRuntime().ReadINI(u"A"_s, u"k"_s, scratch.Inside(u"pipe"_s)), QString());
    EXPECT_EQ(INIRuntime().WriteINI(u"A"_s, u"k"_s, u"1"_s, scratch.Inside(u"pipe"_s)), u"0"_s);
}

TEST(IniFile, AFullDeviceAnswersZero) {
    EXPECT_EQ(INIRuntime().WriteINI(u"A"_s, u"k"_s, u"1"_s, u"\\proc\\file.ini"_s), u"0"_s);
    EXPECT_EQ(INIRuntime().WriteINI(u"A"_s, u"k"_s, u"1"_s, u"\\dev\\full"_s), u"0"_s);
}

TEST(LongProfiles, WhatTheBeginningSettlesNeedsNoMoreOfTheFile) {
    const ProfileText text("[A]\r\nk=1\r\n[B]\r\n");
    EXPECT_EQ(text.ReadFromBeginning(u"A"_s, u"k"_s), u"1"_s);
    EXPECT_EQ(text.ReadFromBeginning(u"A"_s, u"j"_s), QString()) << "the section has ended";
    EXPECT_EQ(text.ReadFromBeginning(u"B"_s, u"j"_s), std::nullopt);
    EXPECT_EQ(text.ReadFromBeginning(u"C"_s, u"j"_s), std::nullopt);
    EXPECT_EQ(ProfileText("[A]\nk=1").ReadFromBeginning(u"A"_s, u"k"_s), std::nullopt) << "the value may go on";
    EXPECT_EQ(ProfileText("[A]\nj=1\n[B]").ReadFromBeginning(u"A"_s, u"k"_s), std::nullopt) << "so may the line";
}

TEST(LongProfiles, AValueIsFoundWhereverItStands) {
    const Scratch scratch;
    const INIRuntime ini;
    for (const qsizetype before : {0, 65520, 65521, 65525, 65526, 65527, 65528, 65529, 65530, 65536, 200'000}) {
        const QByteArray filler = "[Z]\r\n" + QByteArray(before, 'x') + "\r\n";
        const QString file = scratch.Write(u"long.ini"_s, filler + "[A]\r\nkey=value\r\n" + QByteArray(70'000, 'y'));
        EXPECT_EQ(ini.ReadINI(u"A"_s, u"key"_s, file), u"value"_s) << before;
        EXPECT_EQ(ini.ReadINI(u"A"_s, u"other"_s, file), QString()) << before;
    }
}
