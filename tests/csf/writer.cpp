// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/csf/Tables.h"

#include "platform/Files.h"
#include "platform/NumberedFiles.h"
#include "platform/Paths.h"
#include "platform/RuntimeError.h"

#include <QFile>

using namespace Qt::StringLiterals;

namespace {

class CsfWriter : public TableTest {
protected:
    CsfWriter() { mCSF::CsfStrings = {{u"B\u00E9\n"_s, u"GUI:OK"_s}}; }

    /// Saves the table as "out.csf" and returns the bytes.
    QByteArray Saved(qint16 language = 0) {
        EXPECT_TRUE(mCSF::WriteCSF(At(u"out.csf"_s), language));
        return World::ReadFile(At(u"out.csf"_s));
    }

    void ExpectFatal(const QString& path, qint16 language, int number) {
        host_.Messages.clear();
        EXPECT_THROW(mCSF::WriteCSF(path, language), ProgramEnded);
        ASSERT_EQ(host_.Messages.size(), 1U);
        const ScriptedHost::Shown& shown = host_.Messages[0];
        EXPECT_EQ(shown.Sign, Host::Icon::Critical);
        EXPECT_EQ(shown.Title, QString());
        const QString head = u"Une erreur s'est produite, l'application va se terminer. Veuillez signaler cette erreur "
                             u"au concepteur du programme\r\n\r\nD\u00E9tails :\r\nErreur n\u00B0 %1 : "_s.arg(number);
        EXPECT_EQ(shown.Text.first(std::min(shown.Text.size(), head.size())), head);
        EXPECT_TRUE(shown.Text.endsWith(u", source : Brindock"_s));
        EXPECT_FALSE(NumberedFiles::IsOpen(mCSF::FileNumber));
    }
};

QByteArray WrittenByHand() {
    return Bytes(" FSC\3\0\0\0\1\0\0\0\1\0\0\0\0\0\0\0\3\0\0\0"
                 " LBL\1\0\0\0\6\0\0\0GUI:OK"
                 " RTS\3\0\0\0\xBD\xFF\x16\xFF\xF5\xFF");
}

} // namespace

TEST_F(CsfWriter, WritesAFileWrittenOutByHand) {
    EXPECT_EQ(Saved(3), WrittenByHand());
    EXPECT_FALSE(NumberedFiles::IsOpen(mCSF::FileNumber));
    EXPECT_TRUE(host_.Messages.empty());
}

TEST_F(CsfWriter, WritesBothCountsAndKeepsTheOrder) {
    mCSF::CsfStrings = {{u"1"_s, u"b"_s}, {u"2"_s, u"a"_s}, {u"3"_s, u"b"_s}};
    EXPECT_EQ(Saved(255),
              CsfHeader(3, '\xFF') + EntryRecords("b", "1") + EntryRecords("a", "2") + EntryRecords("b", "3"));
}

TEST_F(CsfWriter, AnEmptyNameOrValueWritesALengthOfZeroAndNoBytes) {
    mCSF::CsfStrings = {{{}, u"n"_s}, {u"v"_s, {}}};
    EXPECT_EQ(Saved(), CsfHeader(2) + Bytes(" LBL\1\0\0\0\1\0\0\0n RTS\0\0\0\0"
                                            " LBL\1\0\0\0\0\0\0\0 RTS\1\0\0\0\x89\xFF"));
}

TEST_F(CsfWriter, ACharacterThatThePageLacksBecomesAQuestionMark) {
    mCSF::CsfStrings = {{u"\u4E2D\U0001F600"_s, u"\u4E2D"_s}};
    EXPECT_EQ(Saved(), CsfHeader(1) + EntryRecords("?", "??"));
}

TEST_F(CsfWriter, HighBytesAreGoneAfterAReadAndASave) {
    Read(CsfHeader(1) + LabelRecord("a") + Bytes(" RTS\2\0\0\0\xBE\x00\xBD\xAB"));
    EXPECT_EQ(Saved(), CsfHeader(1) + EntryRecords("a", "AB"));
}

TEST_F(CsfWriter, WhatWasWrittenIsReadBack) {
    QByteArray all;
    for (int code = 0; code < 256; ++code)
        all += static_cast<char>(code);
    const QByteArray file = CsfHeader(4, 9) + EntryRecords("b", all) + EntryRecords(all, "x") + EntryRecords("", "") +
                            EntryRecords("b", "again");
    EXPECT_EQ(Read(file), 9);
    const auto table = mCSF::CsfStrings;
    EXPECT_EQ(Saved(9), file);
    EXPECT_EQ(mCSF::ReadCSF(At(u"out.csf"_s)), 9);
    EXPECT_EQ(mCSF::CsfStrings, table);
}

TEST_F(CsfWriter, TheLanguageDriftsAtEachOpenAndSave) {
    const qint32 first = Read(CsfHeader(1, 10) + EntryRecords("a", "b"));
    EXPECT_EQ(Saved(static_cast<qint16>(first)), CsfHeader(1, 16) + EntryRecords("a", "b"));
    EXPECT_EQ(mCSF::ReadCSF(At(u"out.csf"_s)), 22);
}

TEST_F(CsfWriter, ALanguageAbove255EndsTheProgramBeforeAnyFileIsTouched) {
    const QString path = Put(u"out.csf"_s, "old");
    ExpectFatal(path, 256, 5);
    ExpectFatal(path, -1, 5);
    EXPECT_EQ(World::ReadFile(path), "old");
    EXPECT_FALSE(Files::FileExists(path + u".sav"_s));
}

TEST_F(CsfWriter, SavingOverAFileLeavesNoBackupBehind) {
    Put(u"out.csf"_s, QByteArray(1000, 'x'));
    EXPECT_EQ(Saved(3), WrittenByHand());
    EXPECT_FALSE(Files::FileExists(At(u"out.csf.sav"_s)));
}

TEST_F(CsfWriter, AStaleBackupEndsTheProgramAndBothFilesStay) {
    const QString path = Put(u"out.csf"_s, "old");
    const QString stale = Put(u"out.csf.sav"_s, "older");
    ExpectFatal(path, 0, 58);
    EXPECT_EQ(World::ReadFile(path), "old");
    EXPECT_EQ(World::ReadFile(stale), "older");
}

TEST_F(CsfWriter, ABackupThatASaveOfThisDocumentLeftIsNotInTheNextOnesWay) {
    const QString path = Put(u"out.csf"_s, "the good one");
    const std::vector<CsfString> small = mCSF::CsfStrings;
    mCSF::CsfStrings.assign(32769, {u"x"_s, u"a"_s});
    CsfSaves saves;
    EXPECT_FALSE(mCSF::WriteCSF(path, 0, &saves));
    EXPECT_FALSE(saves.Failure.isEmpty());
    EXPECT_EQ(saves.Aside, path + u".sav"_s);
    EXPECT_FALSE(mCSF::WriteCSF(path, 0, &saves)) << "and again";
    EXPECT_EQ(World::ReadFile(path + u".sav"_s), "the good one");
    mCSF::CsfStrings = small;
    EXPECT_TRUE(mCSF::WriteCSF(path, 3, &saves));
    EXPECT_EQ(World::ReadFile(path), WrittenByHand()) << "nothing of the longer file stands behind it";
    EXPECT_FALSE(Files::FileExists(path + u".sav"_s));
    EXPECT_EQ(saves.Failure, QString());
    EXPECT_EQ(saves.Aside, QString());
    EXPECT_TRUE(mCSF::WriteCSF(path, 3, &saves));
    EXPECT_TRUE(host_.Messages.empty());
}

TEST_F(CsfWriter, ABackupIsKnownAgainAfterASaveElsewhere) {
    const QString path = Put(u"out.csf"_s, "old");
    const std::vector<CsfString> small = mCSF::CsfStrings;
    mCSF::CsfStrings.assign(32769, {u"x"_s, u"a"_s});
    CsfSaves saves;
    EXPECT_FALSE(mCSF::WriteCSF(path, 0, &saves));
    mCSF::CsfStrings = small;
    EXPECT_TRUE(mCSF::WriteCSF(At(u"elsewhere.csf"_s), 0, &saves));
    EXPECT_TRUE(mCSF::WriteCSF(path, 3, &saves));
    EXPECT_EQ(World::ReadFile(path), WrittenByHand());
}

TEST_F(CsfWriter, ABackupThatSomebodyElsePutThereSinceEndsTheProgram) {
    const QString path = Put(u"out.csf"_s, "old");
    mCSF::CsfStrings.assign(32769, {u"x"_s, u"a"_s});
    CsfSaves saves;
    EXPECT_FALSE(mCSF::WriteCSF(path, 0, &saves));
    Put(u"out.csf.sav"_s, "another");
    const QByteArray before = World::ReadFile(path);
    EXPECT_THROW(mCSF::WriteCSF(path, 0, &saves), ProgramEnded);
    EXPECT_EQ(World::ReadFile(path + u".sav"_s), "another");
    EXPECT_EQ(World::ReadFile(path), before);
}

TEST_F(CsfWriter, AStaleBackupWithoutItsFileIsNoSavesToDelete) {
    Put(u"out.csf.sav"_s, "older");
    Saved();
    EXPECT_EQ(World::ReadFile(At(u"out.csf.sav"_s)), "older") << "it may be all that is left of the file";
}

TEST_F(CsfWriter, AWriteProtectedFileIsRefusedBeforeAnythingIsTouched) {
    const QString path = Put(u"out.csf"_s, "old");
    ASSERT_TRUE(QFile::setPermissions(Paths::ToNative(path), QFile::ReadOwner));
    CsfSaves saves;
    EXPECT_FALSE(mCSF::WriteCSF(path, 0, &saves));
    EXPECT_TRUE(saves.Failure.startsWith(Paths::ToNative(path) + u": "_s)) << saves.Failure.toStdString();
    EXPECT_EQ(saves.Aside, QString());
    EXPECT_EQ(World::ReadFile(path), "old");
    EXPECT_FALSE(Files::FileExists(path + u".sav"_s));
    EXPECT_TRUE(host_.Messages.empty()) << "the program goes on";
    QFile::setPermissions(Paths::ToNative(path), QFile::ReadOwner | QFile::WriteOwner);
    EXPECT_TRUE(mCSF::WriteCSF(path, 0, &saves));
    EXPECT_EQ(saves.Failure, QString());
}

TEST_F(CsfWriter, AWriteProtectedFileIsRefusedForAValueToo) {
    const QString path = Put(u"out.csf"_s, "old");
    ASSERT_TRUE(QFile::setPermissions(Paths::ToNative(path), QFile::ReadOwner));
    try {
        CsfTable{0, mCSF::CsfStrings}.Write(path);
        FAIL() << "written";
    } catch (const RuntimeError& error) {
        EXPECT_EQ(error.Number(), 70);
        EXPECT_TRUE(error.Description().startsWith(Paths::ToNative(path) + u": "_s));
    }
    EXPECT_EQ(World::ReadFile(path), "old");
}

TEST_F(CsfWriter, ATableThatIsBeingReadIsNotSaved) {
    bool saved = true;
    CsfSaves saves;
    host_.OnYield = [&] { saved = mCSF::WriteCSF(At(u"out.csf"_s), 0, &saves); };
    EXPECT_EQ(Read(CsfHeader(1) + EntryRecords("a", "b")), 0);
    EXPECT_FALSE(saved);
    EXPECT_FALSE(saves.Failure.isEmpty());
    EXPECT_FALSE(Files::FileExists(At(u"out.csf"_s)));
    EXPECT_TRUE(host_.Messages.empty());
}

TEST_F(CsfWriter, AFolderThatIsMissingEndsTheProgram) {
    ExpectFatal(At(u"gone\\out.csf"_s), 0, 76);
}

TEST_F(CsfWriter, AFileNumberThatIsTakenEndsTheProgramAndTheBackupStays) {
    const QString path = Put(u"out.csf"_s, "old");
    NumberedFiles::Open(mCSF::FileNumber, Put(u"other"_s, "x"), NumberedFiles::Access::Read);
    ExpectFatal(path, 0, 55);
    EXPECT_EQ(World::ReadFile(path + u".sav"_s), "old");
    EXPECT_FALSE(Files::FileExists(path));
}

TEST_F(CsfWriter, ATableWithoutEntriesEndsTheProgramInTheHeader) {
    mCSF::CsfStrings.clear();
    ExpectFatal(At(u"out.csf"_s), 0, 9);
    EXPECT_FALSE(Files::FileExists(At(u"out.csf"_s))) << "no half table";
}

TEST_F(CsfWriter, AsManyEntriesAsTheUpperBoundHoldsAreWritten) {
    mCSF::CsfStrings.assign(32768, {u"x"_s, u"a"_s});
    EXPECT_EQ(Saved(), CsfHeader(32768) + EntryRecords("a", "x").repeated(32768));
}

TEST_F(CsfWriter, OneEntryMoreOverflowsTheUpperBoundAndOnlyTheFirstIsWritten) {
    Put(u"out.csf"_s, "old");
    mCSF::CsfStrings.assign(32769, {u"x"_s, u"a"_s});
    EXPECT_FALSE(mCSF::WriteCSF(At(u"out.csf"_s), 0));
    EXPECT_EQ(World::ReadFile(At(u"out.csf"_s)), CsfHeader(32769) + EntryRecords("a", "x"));
    EXPECT_EQ(World::ReadFile(At(u"out.csf.sav"_s)), "old") << "not all was written";
    EXPECT_TRUE(host_.Messages.empty());
}
