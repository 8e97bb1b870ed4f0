// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// What can't be read or written fails a save with its name, and nothing is lost.
#include "platform/File.h"
#include "platform/Files.h"
#include "platform/Paths.h"
#include "tests/big/Archives.h"

#include <QFile>

#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using mBIG::BigEntries;

namespace {

QByteArray TwoEntries() {
    return HeaderOf("BIGF", 2, 48) + Record(48, 5, "a.ini") + Record(56, 2, "b") + Bytes("L225\0\0\0\0hello\0\0\0hi");
}

class SaveSources : public ArchiveTest {
protected:
    SaveSources() {
        path_ = Put(u"open.big"_s, TwoEntries());
        mBIG::Load(path_);
    }

    void AddSource(const QString& path) { BigEntries.push_back({u"new"_s, 0, 3, true, false, path}); }

    void ExpectRefused(const QString& name) {
        const QStringList before = Files::ListFolder(At(u"*"_s));
        const QString failure = FailureOf(path_);
        EXPECT_TRUE(failure.contains(name)) << failure.toStdString();
        EXPECT_EQ(World::ReadFile(path_), TwoEntries());
        EXPECT_TRUE(BigEntries.back().IsNew) << "the change stays";
        EXPECT_EQ(Files::ListFolder(At(u"*"_s)), before) << "nothing is left beside it";
    }

    /// The next save writes all, and can't put it in the target's place.
    void LetTheCommitFail() {
        host_.OnYield = [this] {
            for (const QString& name : Files::ListFolder(At(u"*"_s)))
                if (!stays_.contains(name))
                    Files::DeleteForced(At(name));
        };
        stays_ = Files::ListFolder(At(u"*"_s));
    }

    static QByteArray Native(const QString& path) { return QFile::encodeName(Paths::ToNative(path)); }

    QString path_;

private:
    QStringList stays_;
};

} // namespace

TEST_F(SaveSources, APipeIsRefusedWithItsNameAndNotWaitedFor) {
    ASSERT_EQ(::mkfifo(Native(At(u"pipe"_s)).constData(), 0600), 0);
    AddSource(At(u"pipe"_s));
    ExpectRefused(u"pipe: "_s);
}

TEST_F(SaveSources, ADeviceIsRefusedWithItsName) {
    ASSERT_EQ(::symlink("/dev/zero", Native(At(u"zeros"_s)).constData()), 0);
    AddSource(At(u"zeros"_s));
    ExpectRefused(u"zeros: "_s);
}

TEST_F(SaveSources, AFolderIsRefusedWithItsName) {
    Files::MakeFolder(At(u"folder"_s));
    AddSource(At(u"folder"_s));
    ExpectRefused(u"folder: "_s);
}

TEST_F(SaveSources, AFileThatBreaksOffIsRefusedWithItsName) {
    const QString source = Put(u"short"_s, QByteArray(2'000'000, 'x'));
    AddSource(source);
    // The header is written by then and promises all the bytes.
    int yields = 0;
    host_.OnYield = [&] {
        if (++yields == 7)
            File::Open(source, File::Access::ReadWrite).SetLength(1000);
    };
    ExpectRefused(u"short: "_s);
}

TEST_F(SaveSources, AFileThatIsGoneIsNoFailure) {
    AddSource(At(u"never was"_s));
    EXPECT_EQ(FailureOf(path_), QString());
}

TEST_F(SaveSources, AReadOnlyTargetIsRefusedWithItsNameAndStays) {
    AddSource(Put(u"new"_s, "123"));
    ASSERT_EQ(::chmod(Native(path_).constData(), 0444), 0);
    ExpectRefused(u"open.big: "_s);
    const QString other = Put(u"other.big"_s, "precious");
    ASSERT_EQ(::chmod(Native(other).constData(), 0444), 0);
    EXPECT_TRUE(FailureOf(other).contains(u"other.big: "_s));
    EXPECT_EQ(World::ReadFile(other), "precious");
}

TEST_F(SaveSources, TheModeOfAFileThatIsSavedOverAndALinkToItStay) {
    AddNew(u"new"_s, "123");
    ASSERT_EQ(::chmod(Native(path_).constData(), 0640), 0);
    ASSERT_EQ(::symlink("open.big", Native(At(u"link.big"_s)).constData()), 0);
    mBIG::BigFileName = At(u"link.big"_s);
    EXPECT_EQ(FailureOf(mBIG::BigFileName), QString());

    struct stat status {};

    ASSERT_EQ(::lstat(Native(path_).constData(), &status), 0);
    EXPECT_EQ(status.st_mode & 07777U, 0640U);
    EXPECT_TRUE(S_ISREG(status.st_mode));
    EXPECT_TRUE(Files::IsLink(At(u"link.big"_s)));
    EXPECT_EQ(World::ReadFile(path_).sliced(52, 13), Bytes("L225\0\0\0\0hello"));
}

TEST_F(SaveSources, NothingIsEmptiedBehindAScratchFolderThatIsALink) {
    const QString precious = Put(u"precious\\file"_s, "x");
    const QByteArray scratch = Native(world_.ProgramFolder() + u"\\Temp"_s);
    Files::DeleteFolder(world_.ProgramFolder() + u"\\Temp"_s);
    ASSERT_EQ(::symlink(Native(At(u"precious"_s)).constData(), scratch.constData()), 0);
    EXPECT_TRUE(mBIG::WriteBigFile(At(u"out.big"_s)));
    EXPECT_EQ(World::ReadFile(precious), "x");
}

TEST_F(SaveSources, AnotherFileInTheArchivesPlaceDoesNotCostItsBytesWhenTheSaveFails) {
    Files::Replace(Put(u"other"_s, QByteArray(500, 'x')), path_);
    LetTheCommitFail();
    EXPECT_NE(FailureOf(path_), QString());
    host_.OnYield = {};
    EXPECT_EQ(World::ReadFile(path_), QByteArray(500, 'x'));
    EXPECT_EQ(FailureOf(At(u"out.big"_s)), QString());
    EXPECT_EQ(World::ReadFile(At(u"out.big"_s)).sliced(40), Bytes("L225\0\0\0\0hello\0\0\0hi"));
}

TEST_F(SaveSources, AFileThatComesInTheArchivesPlaceBehindAFailedSaveIsNotTakenForIt) {
    const QString link = At(u"link.big"_s);
    ASSERT_EQ(::link(Native(path_).constData(), Native(link).constData()), 0);
    Files::DeleteForced(path_);
    LetTheCommitFail();
    EXPECT_NE(FailureOf(link), QString());
    host_.OnYield = {};
    Put(u"open.big"_s, QByteArray(500, 'x'));
    EXPECT_TRUE(FailureOf(At(u"out.big"_s)).contains(u"changed"_s));
    EXPECT_FALSE(Files::FileExists(At(u"out.big"_s)));
    Files::Replace(link, path_);
    EXPECT_EQ(FailureOf(At(u"out.big"_s)), QString()) << "This is the file that was read.";
    EXPECT_EQ(World::ReadFile(At(u"out.big"_s)).sliced(40), Bytes("L225\0\0\0\0hello\0\0\0hi"));
}
