// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The archive as a list of entries, and how it comes to the disk.
#include "install/zip/ZipAppender.h"
#include "platform/Files.h"
#include "tests/install/ZipTest.h"
#include "tests/support/FailingDevice.h"

#include <algorithm>
#include <random>

using namespace Qt::StringLiterals;

namespace {

class ZipWriting : public ZipTest {
protected:
    /// Three files of 1, 2 and 3 bytes.
    void AddThree() {
        for (const auto& [name, bytes] : {std::pair(u"a.t"_s, "1"), {u"b.t"_s, "22"}, {u"c.t"_s, "333"}})
            ASSERT_EQ(zip_.FileAdd(Put(name, bytes), 0, false), 1);
    }

    [[nodiscard]] QByteArray Read(const QString& name) const { return World::ReadFile(At(name)); }

    /// What stands beside the world's own files.
    [[nodiscard]] QStringList Archives() const { return Files::ListFolder(At(u"out*"_s)) + Strays(); }

    [[nodiscard]] QStringList Strays() const { return Files::ListFolder(At(u"~*"_s)); }
};

/// Takes everything and keeps nothing.
class NullDevice : public Device {
public:
    [[nodiscard]] qint64 Length() const override { return 0; }

    qint64 ReadInto(qint64 /*offset*/, char* /*bytes*/, qint64 /*count*/) const override { return 0; }

    void Write(qint64 /*offset*/, QByteArrayView /*bytes*/) override {}

    void SetLength(qint64 /*length*/) override {}

    [[nodiscard]] QString Name() const override { return u"nothing.zip"_s; }
};

} // namespace

TEST_F(ZipWriting, EntriesAreCountedFromOne) {
    AddThree();
    EXPECT_EQ(zip_.FileCount(), 3);
    EXPECT_EQ(zip_.FileName(1), u"a.t"_s);
    EXPECT_EQ(zip_.FileName(3), u"c.t"_s);
    EXPECT_EQ(zip_.SizeUncompressed(3), 3);
    EXPECT_EQ(zip_.SizeCompressed(1), 3) << "ten bits of frame and one letter of eight";
}

TEST_F(ZipWriting, ANumberThatIsNoneHasNoNameAndNoSizes) {
    AddThree();
    for (const qint32 index : {4, 0, -1, 2'147'483'647}) {
        EXPECT_EQ(zip_.FileName(index), QString()) << index;
        EXPECT_EQ(zip_.SizeCompressed(index), 0) << index;
        EXPECT_EQ(zip_.SizeUncompressed(index), 0) << index;
    }
}

TEST_F(ZipWriting, AnEntryIsTakenOut) {
    AddThree();
    EXPECT_TRUE(zip_.FileDel(2));
    EXPECT_EQ(Names(), (QStringList{u"a.t"_s, u"c.t"_s}));
    EXPECT_FALSE(Written().contains("b.t"));
}

TEST_F(ZipWriting, ANumberThatIsNoneTakesNothingOut) {
    AddThree();
    for (const qint32 index : {4, 0, -1})
        EXPECT_FALSE(zip_.FileDel(index)) << index;
    EXPECT_EQ(zip_.FileCount(), 3);
}

TEST_F(ZipWriting, TheCommentIsAsItWasSet) {
    EXPECT_EQ(zip_.Comment(), QString());
    zip_.SetComment(u"\u0160, \u4E2D"_s);
    EXPECT_EQ(zip_.Comment(), u"\u0160, \u4E2D"_s);
    EXPECT_EQ(Written().sliced(20, 3), Bytes("\x04\x00\x8A")) << "bytes of the code page are counted";
}

TEST_F(ZipWriting, ACommentOfMoreThan32767BytesIsRefused) {
    zip_.SetComment(QString(32767, u'c'));
    EXPECT_EQ(ErrorOf([&] { zip_.SetComment(QString(32768, u'd')); }), 6);
    EXPECT_EQ(zip_.Comment(), QString(32767, u'c'));
    EXPECT_EQ(Written().size(), 22 + 32767);
    EXPECT_EQ(Written().sliced(20, 2), Bytes("\xFF\x7F"));
}

TEST_F(ZipWriting, AFileThatExistsIsNotTouchedWithoutLeave) {
    Put(u"out.zip"_s, "precious");
    AddThree();
    EXPECT_FALSE(zip_.WriteZip(At(u"out.zip"_s), false));
    EXPECT_FALSE(zip_.WriteZip(u"out.zip"_s, false));
    EXPECT_EQ(Read(u"out.zip"_s), "precious");
    EXPECT_EQ(Archives(), QStringList{u"out.zip"_s});
}

TEST_F(ZipWriting, AFileThatExistsIsReplacedWhole) {
    Put(u"out.zip"_s, QByteArray(100'000, 'x'));
    AddThree();
    EXPECT_TRUE(zip_.WriteZip(At(u"out.zip"_s), true));
    EXPECT_EQ(Read(u"out.zip"_s), Written());
    EXPECT_EQ(Archives(), QStringList{u"out.zip"_s});
}

TEST_F(ZipWriting, ANewFileNeedsNoLeave) {
    AddThree();
    EXPECT_TRUE(zip_.WriteZip(u"out.zip"_s, false)) << "in the archive's current directory";
    EXPECT_EQ(Read(u"out.zip"_s), Written());
}

TEST_F(ZipWriting, WrittenTwiceOneValidArchiveStands) {
    AddThree();
    EXPECT_TRUE(zip_.WriteZip(At(u"out.zip"_s), true));
    const QByteArray first = Read(u"out.zip"_s);
    EXPECT_TRUE(zip_.WriteZip(At(u"out.zip"_s), true));
    EXPECT_EQ(Read(u"out.zip"_s), first);
    EXPECT_EQ(first.count("PK\5\6"), 1);
    EXPECT_EQ(zip_.FileCount(), 3) << "the entries stay";
    zip_.FileAdd(Put(u"d.t"_s), 0, false);
    EXPECT_TRUE(zip_.WriteZip(At(u"out.zip"_s), true));
    EXPECT_EQ(Read(u"out.zip"_s).count("PK\1\2"), 4);
}

TEST_F(ZipWriting, AFileIsNotReadAgainWhenTheArchiveIsWritten) {
    AddThree();
    const QByteArray before = Written();
    Files::DeleteForced(At(u"a.t"_s));
    Put(u"b.t"_s, "something else");
    EXPECT_EQ(Written(), before);
}

TEST_F(ZipWriting, TwoFilesOfOneNameAreTwoEntries) {
    zip_.FileAdd(Put(u"one\\a.t"_s), 0, false);
    zip_.FileAdd(Put(u"two\\a.t"_s), 0, false);
    EXPECT_EQ(Names(), (QStringList{u"a.t"_s, u"a.t"_s}));
    EXPECT_EQ(Written().count("PK\1\2"), 2);
}

TEST_F(ZipWriting, ATargetInNoFolderOrThatIsAFolderIsRaised) {
    AddThree();
    EXPECT_EQ(ErrorOf([&] { static_cast<void>(zip_.WriteZip(At(u"missing\\out.zip"_s), true)); }), 76);
    Files::MakeFolder(At(u"out.zip"_s));
    EXPECT_EQ(ErrorOf([&] { static_cast<void>(zip_.WriteZip(At(u"out.zip"_s), true)); }), 75);
    EXPECT_EQ(Strays(), QStringList{});
}

TEST_F(ZipWriting, TheInterfaceIsServedBehindEachEntry) {
    AddThree();
    int served = 0;
    zip_.Yield = [&] { ++served; };
    EXPECT_TRUE(zip_.WriteZip(At(u"out.zip"_s), false));
    EXPECT_EQ(served, 3);
}

TEST_F(ZipWriting, AWriteThatFailsIsRaised) {
    AddThree();
    std::mt19937 random(2005);
    for (int i = 0; i < 3; ++i) { // noise, which does not get smaller
        QByteArray noise(300'000, '\0');
        std::ranges::generate(noise, [&] { return static_cast<char>(random()); });
        zip_.FileAdd(Put(u"noise%1.t"_s.arg(i), noise), 0, false);
    }
    MemoryDevice whole;
    FailingDevice counting(whole);
    zip_.Write(counting);
    ASSERT_GE(counting.Writes(), 4) << "each large entry, and what is small between";
    for (int good = 0; good < counting.Writes(); ++good) {
        MemoryDevice device;
        FailingDevice failing(device, good);
        EXPECT_EQ(ErrorOf([&] { zip_.Write(failing); }), 61) << good;
        EXPECT_EQ(failing.Writes(), good + 1) << "nothing is written behind a failed write";
        EXPECT_TRUE(whole.Bytes().startsWith(device.Bytes())) << good;
    }
    EXPECT_EQ(Written(), whole.Bytes()) << "and the next one is as if there had been none";
}

TEST_F(ZipWriting, MoreThan32767EntriesAreRaisedAndWhatStoodThereStands) {
    const QString file = Put(u"a.t"_s);
    for (int i = 0; i < 32767; ++i)
        zip_.FileAdd(file, 0, false);
    ASSERT_TRUE(zip_.WriteZip(At(u"out.zip"_s), true));
    const QByteArray most = Read(u"out.zip"_s);
    EXPECT_EQ(most.last(14).first(4), Bytes("\xFF\x7F\xFF\x7F"));
    zip_.FileAdd(file, 0, false);
    EXPECT_EQ(ErrorOf([&] { static_cast<void>(zip_.WriteZip(At(u"out.zip"_s), true)); }), 6);
    EXPECT_TRUE(Read(u"out.zip"_s) == most);
    EXPECT_EQ(Archives(), QStringList{u"out.zip"_s});
}

TEST(ZipAppending, PiecesStandOneBehindTheOther) {
    MemoryDevice device;
    ZipAppender to(device);
    QByteArray all;
    for (const qsizetype size : {1, 300'000, 0, 262'143, 2, 262'144, 262'145, 5}) {
        const QByteArray piece(size, static_cast<char>('a' + all.size() % 26));
        to.Append(piece);
        all += piece;
        EXPECT_EQ(to.Offset(), static_cast<quint32>(all.size()));
    }
    to.Flush();
    EXPECT_TRUE(device.Bytes() == all);
}

TEST(ZipAppending, NoRecordBeginsBehindFourGibibytes) {
    NullDevice device;
    ZipAppender to(device);
    const QByteArray block(qsizetype{1} << 28, Qt::Uninitialized);
    for (int i = 0; i < 15; ++i)
        to.Append(block);
    to.Append(QByteArray::fromRawData(block.constData(), block.size() - 2));
    EXPECT_EQ(to.Offset(), 0xFFFFFFFEU);
    to.Append("x");
    try {
        static_cast<void>(to.Offset());
        FAIL();
    } catch (const RuntimeError& error) {
        EXPECT_EQ(error.Number(), 6);
        EXPECT_TRUE(error.Description().contains(u"nothing.zip"_s));
    }
}
