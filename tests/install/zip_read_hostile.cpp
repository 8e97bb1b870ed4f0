// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Archives that are broken or lie: an entry comes out as it is or not at all, and nothing outside of the folder.
#include "Places.h"
#include "tests/install/zip_fixture.h"

#include "tests/install/ZipSamples.h"

#include <QDirIterator>

#include <random>

using namespace Qt::StringLiterals;
using ZipBytes::Part;

namespace {

class ZipHostile : public ZipReadTest {
protected:
    static QByteArray Sample() {
        const QByteArray lines = QByteArray("line\n").repeated(20);
        return ZipBytes::Archive(
            {{.Name = "d/"},
             {.Name = "d/deflated.txt", .Content = lines, .Method = 8},
             {.Name = "stored", .Content = "12345", .HasDescriptor = true},
             {.Name = "wide", .Content = lines, .Method = 8, .IsWide = true},
             {.Name = "\xD0\x96", .Content = "6", .Extra = ZipBytes::UnicodeName("\xD0\x96", "u")}},
            {.Comment = "comment", .IsWide = true});
    }

    /// Every entry is extracted or not; afterwards only the archive and the folder stand there.
    void ReadAll(const QByteArray& bytes) {
        zip_.Init(Make(u"a.zip"_s, bytes));
        for (const QString& name : QStringList(zip_.Col))
            zip_.Decompress(Out(), name, true);
        ASSERT_TRUE(Names(u"."_s).join(u',') == u"a.zip"_s || Names(u"."_s).join(u',') == u"a.zip,out"_s);
        QDirIterator below(Paths::ToNative(Out()), QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
        while (below.hasNext())
            ASSERT_FALSE(QFileInfo(below.next()).fileName().startsWith(u"~brindock-"_s))
                << qPrintable(below.filePath());
    }

    qint32 ResultOf(const Part& part) {
        Open({part});
        return Extract(zip_.GetFile(1));
    }
};

} // namespace

TEST_F(ZipHostile, EveryCutOfAnArchiveIsReadOrRefused) {
    const QByteArray sample = Sample();
    for (qsizetype length = 0; length <= sample.size(); ++length) {
        ReadAll(sample.first(length));
        ASSERT_EQ(zip_.Count(), length == sample.size() ? 5 : 0) << length;
        ReadAll(sample.sliced(length));
    }
}

TEST_F(ZipHostile, ThousandsOfRandomChangesAreReadOrRefused) {
    std::mt19937 random(2005);
    const auto below = [&](qsizetype bound) {
        return static_cast<qsizetype>(random() % static_cast<std::uint32_t>(bound));
    };
    zip_.Password = u"secret"_s;
    const std::vector<QByteArray> samples{Sample(), ZipSamples::Sample(ZipSamples::Traditional),
                                          ZipSamples::Sample(ZipSamples::Aes256)};
    int listed = 0;
    constexpr std::size_t rounds = Places::SystemIsEmulated ? 1000 : 10000;
    for (std::size_t round = 0; round < rounds; ++round) {
        QByteArray bytes = samples[round % samples.size()];
        for (qsizetype changes = below(4) + 1; changes > 0; --changes) {
            const qsizetype at = below(bytes.size());
            switch (below(4)) {
            case 0:
                bytes[at] = static_cast<char>(below(256));
                break;
            case 1:
                bytes.remove(at, below(8) + 1);
                break;
            case 2:
                bytes.insert(at, QByteArray(below(8) + 1, static_cast<char>(below(256))));
                break;
            default:
                bytes[at] = static_cast<char>(bytes[at] ^ (1 << below(8)));
            }
        }
        ASSERT_NO_FATAL_FAILURE(ReadAll(bytes)) << round;
        listed += zip_.Count() > 0 ? 1 : 0;
    }
    EXPECT_GT(10 * static_cast<std::size_t>(listed), 3 * rounds) << "most changes must get behind the directory";
}

TEST_F(ZipHostile, AWrongChecksumFailsTheEntryAndLeavesWhatStood) {
    Files::MakeFolder(Out());
    for (const int method : {0, 8}) {
        Make(u"out\\a"_s, "old");
        EXPECT_EQ(ResultOf({.Name = "a", .Content = "new", .Method = method, .Crc = 1}), ZipResult::BadData);
        EXPECT_EQ(Got(u"a"_s), "old");
        EXPECT_EQ(ResultOf({.Name = "a", .Content = QByteArray(600000, 'n'), .Method = method, .Crc = 1}),
                  ZipResult::BadData);
        EXPECT_EQ(Got(u"a"_s), "old");
    }
    EXPECT_EQ(ResultOf({.Name = "a", .Crc = 1}), ZipResult::BadData) << "of nothing";
    EXPECT_EQ(Names(), QStringList{u"a"_s}) << "and nothing stays beside it";
}

TEST_F(ZipHostile, AnEntryThatYieldsMoreThanItDeclaresFails) {
    for (const quint64 declared : {0U, 1U, 300000U, 699999U}) {
        const QByteArray content(700000, 'x');
        EXPECT_EQ(ResultOf({.Name = "a", .Content = content, .Method = 8, .Size = declared}), ZipResult::BadData);
        EXPECT_EQ(ResultOf({.Name = "a", .Content = content, .Size = declared}), ZipResult::BadData);
    }
    EXPECT_EQ(Names(), QStringList());
}

TEST_F(ZipHostile, AnEntryThatYieldsLessThanItDeclaresFails) {
    EXPECT_EQ(ResultOf({.Name = "a", .Content = "12345", .Method = 8, .Size = 6}), ZipResult::CutShort);
    EXPECT_EQ(ResultOf({.Name = "a", .Content = "12345", .Size = 6}), ZipResult::BadData);
    EXPECT_EQ(ResultOf({.Name = "a", .Content = "12345", .Method = 8, .Size = 0xFFFFFFFE}), ZipResult::CutShort);
    EXPECT_EQ(Names(), QStringList());
}

TEST_F(ZipHostile, AnEntryThatDeclaresMoreThanTheDiskHoldsFailsBeforeItIsWritten) {
    Open({{.Name = "a", .Content = QByteArray(600000, 'x'), .Method = 8, .IsWide = true, .Size = quint64{1} << 62U}});
    EXPECT_EQ(Extract(u"a"_s), ZipResult::DiskFull);
    EXPECT_EQ(zip_.GetZipInfo(), u"a: the disk has no room for it"_s);
    EXPECT_EQ(Names(), QStringList());
}

TEST_F(ZipHostile, DataThatAreNoPackedDataFail) {
    EXPECT_EQ(ResultOf({.Name = "a", .Content = "12345", .Method = 8, .Bytes = QByteArray("\xFF\xFF\xFF\xFF")}),
              ZipResult::BadData);
    EXPECT_EQ(ResultOf({.Name = "a", .Content = "12345", .Method = 8, .Bytes = ZipBytes::Deflated("12345").chopped(3)}),
              ZipResult::BadData);
    EXPECT_EQ(ResultOf({.Name = "a", .Content = "12345", .Method = 8, .Bytes = QByteArray()}), ZipResult::CutShort);
}

TEST_F(ZipHostile, AnEntryThatDoesNotStandWhereTheDirectorySaysFails) {
    EXPECT_EQ(ResultOf({.Name = "a", .Content = "12345", .Offset = 1}), ZipResult::BadData);
    EXPECT_EQ(ResultOf({.Name = "a", .Content = "12345", .Offset = 2}), ZipResult::CutShort) << "it would end too late";
    EXPECT_EQ(ResultOf({.Name = "a", .Content = "12345", .Packed = 1, .Offset = 1}), ZipResult::BadData);
    EXPECT_EQ(ResultOf({.Name = "a", .Content = "12345", .Offset = 0x7FFFFFFF}), ZipResult::CutShort);
    EXPECT_EQ(ResultOf({.Name = "a", .Content = "12345", .IsWide = true, .Offset = ~quint64{0}}), ZipResult::CutShort);
    EXPECT_EQ(ResultOf({.Name = "a", .Content = "12345", .IsWide = true, .Packed = ~quint64{0} - 40}),
              ZipResult::CutShort);
    EXPECT_EQ(ResultOf({.Name = "a", .Content = "12345", .IsWide = true, .Size = ~quint64{0}}), ZipResult::CutShort);
    EXPECT_EQ(ResultOf({.Name = "a", .Content = "12345", .Packed = 7}), ZipResult::CutShort) << "into the directory";
    EXPECT_EQ(Names(), QStringList());
}

TEST_F(ZipHostile, EntriesThatShareBytesFailAndTheOthersDoNot) {
    Open({{.Name = "a", .Content = "12345"},
          {.Name = "b", .Content = "12345", .Offset = 0},
          {.Name = "c", .Content = "12345"},
          {.Name = "d", .Content = "12345", .Packed = 30},
          {.Name = "e", .Content = "12345"}});
    EXPECT_EQ(Extract(u"a"_s), ZipResult::Overlap);
    EXPECT_EQ(Extract(u"b"_s), ZipResult::Overlap);
    EXPECT_EQ(Extract(u"c"_s), 0);
    EXPECT_EQ(Extract(u"d"_s), ZipResult::Overlap);
    EXPECT_EQ(Extract(u"e"_s), ZipResult::Overlap);
    EXPECT_EQ(Names(), QStringList{u"c"_s});
}

/// Each entry's data hold the local headers of all that follow, as stored blocks of its own, up to a kernel of zeros.
TEST_F(ZipHostile, ABombOfOverlappingEntriesYieldsNothing) {
    const QByteArray kernel(100'000, '\0');
    std::vector<Part> parts;
    parts.reserve(100);
    for (int i = 0; i < 100; ++i)
        parts.push_back({.Name = QByteArray::number(100 + i), .Content = kernel, .Method = 8, .Bytes = QByteArray()});
    parts.back().Bytes.reset();
    const auto rest = static_cast<quint64>(ZipBytes::Deflated(kernel).size());
    for (std::size_t i = 0; i + 1 < parts.size(); ++i)
        parts[i].Packed = rest + 33 * (parts.size() - 1 - i);
    Open(parts);
    ASSERT_EQ(zip_.Count(), 100);
    for (const QString& name : QStringList(zip_.Col))
        EXPECT_EQ(Extract(name), ZipResult::Overlap) << name.toStdString();
    EXPECT_EQ(Names(), QStringList());
}

TEST_F(ZipHostile, ADirectoryThatLiesIsRefusedWhole) {
    const std::vector<Part> parts{{.Name = "a", .Content = "12345"}, {.Name = "b", .Content = "1"}};
    for (const ZipBytes::Ends& ends : std::vector<ZipBytes::Ends>{{.Count = 1},
                                                                  {.Count = 3},
                                                                  {.Count = 0},
                                                                  {.Count = 65535},
                                                                  {.Size = 0xFFFFFFFF},
                                                                  {.Start = 0xFFFFFFFF},
                                                                  {.Size = 0},
                                                                  {.IsWide = true, .Count = 1},
                                                                  {.IsWide = true, .Count = ~quint64{0}},
                                                                  {.IsWide = true, .Count = quint64{1} << 40U},
                                                                  {.IsWide = true, .Size = ~quint64{0}},
                                                                  {.IsWide = true, .Start = ~quint64{0}}}) {
        Open(parts, ends);
        EXPECT_EQ(zip_.Count(), 0);
        EXPECT_FALSE(zip_.IsOpen());
    }
}

TEST_F(ZipHostile, NamesThatLeaveTheFolderOrNameDevicesAreRefused) {
    const QStringList names{u"../x"_s,
                            u"a/../../x"_s,
                            u"/x"_s,
                            u"C:/x"_s,
                            u"C:x"_s,
                            u"a/nul"_s,
                            u"COM1.txt"_s,
                            u"a//x"_s,
                            u"x."_s,
                            u"a/b:c"_s,
                            u"//server/share/x"_s,
                            u"a/con/x"_s};
    std::vector<Part> parts{{.Name = ""}, {.Name = "..\\..\\y"}, {.Name = "\\y"}, {.Name = "a/..\\..\\y", .Host = 3}};
    for (const QString& name : names)
        parts.push_back({.Name = name.toUtf8(), .Content = "1"});
    Open(parts);
    for (const QString& name : QStringList(zip_.Col))
        EXPECT_EQ(Extract(name, true), ZipResult::NoTarget) << name.toStdString();
    EXPECT_EQ(Names(u"."_s), QStringList{u"a.zip"_s}) << "nothing is made, no folder either";
    for (const QString& name : {u"../x"_s, u"/x"_s, u"a/..\\..\\y"_s})
        EXPECT_EQ(Extract(name), 0) << "without its folders it is a name like any other";
    EXPECT_EQ(Names(), (QStringList{u"x"_s, u"y"_s}));
    for (const QString& name : {u"a/nul"_s, u"COM1.txt"_s, u"x."_s, u"a/b:c"_s, u"C:x"_s})
        EXPECT_EQ(Extract(name), ZipResult::NoTarget) << name.toStdString();
    EXPECT_EQ(Extract(u"a/../"_s, true), ZipResult::NoEntry);
}

TEST_F(ZipHostile, FoldersThatLeaveTheFolderAreRefused) {
    Open({{.Name = "../d/"}, {.Name = "a/nul/"}, {.Name = "/"}});
    for (const QString& name : QStringList(zip_.Col))
        EXPECT_EQ(Extract(name, true), ZipResult::NoTarget) << name.toStdString();
    EXPECT_FALSE(Files::FolderExists(At(u"d"_s)));
}

TEST_F(ZipHostile, NamesThatDifferInCaseOnlyAreOneFile) {
    Open({{.Name = "D/a", .Content = "1"}, {.Name = "d/A", .Content = "2"}});
    EXPECT_EQ(Extract(u"D/a"_s, true), 0);
    EXPECT_EQ(Extract(u"d/A"_s, true), 0);
    EXPECT_EQ(Names(), QStringList{u"D"_s});
    EXPECT_EQ(Names(u"out\\D"_s), QStringList{u"a"_s});
    EXPECT_EQ(Got(u"D\\a"_s), "2");
}

TEST_F(ZipHostile, AFolderInTheFilesPlaceOrAFileInTheFoldersFails) {
    Files::MakeFolder(Out());
    Files::MakeFolder(At(u"out\\d"_s));
    Make(u"out\\f"_s, "old");
    Open({{.Name = "d", .Content = "1"}, {.Name = "f/x", .Content = "1"}, {.Name = "f/"}});
    for (const QString& name : QStringList(zip_.Col))
        EXPECT_EQ(Extract(name, true), ZipResult::NoTarget) << name.toStdString();
    EXPECT_EQ(Got(u"f"_s), "old");
    EXPECT_EQ(zip_.Decompress(At(u"a.zip\\out"_s), u"d"_s, false), ZipResult::NoTarget);
}

TEST_F(ZipHostile, ThousandsOfEndsInTheCommentAreNoEnds) {
    std::vector<Part> parts(3000, {.Name = "n"});
    QByteArray ends;
    const QByteArray archive = ZipBytes::Archive(parts);
    for (int i = 0; i < 2900; ++i)
        ends += archive.last(22);
    Open(parts, {.Comment = ends});
    EXPECT_EQ(Extract(u"n"_s), ZipResult::Done);
    EXPECT_EQ(zip_.Count(), 3000);
}
