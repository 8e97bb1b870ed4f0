// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Listing archives and extracting their entries.
#include "tests/install/zip_fixture.h"

#include "platform/AnsiCodec.h"
#include "platform/HeldFolder.h"
#include "tests/support/ScriptedHost.h"

using namespace Qt::StringLiterals;
using ZipBytes::Part;

namespace {

class ZipRead : public ZipReadTest {};

std::vector<Part> Folders() {
    return {{.Name = "Maps/"},
            {.Name = "Maps/One/"},
            {.Name = "Maps/One/One.map", .Content = "map"},
            {.Name = "read.me", .Content = "text"}};
}

} // namespace

TEST_F(ZipRead, NamesComeInTheArchivesOrderFoldersIncluded) {
    Open({{.Name = "z"}, {.Name = "d/"}, {.Name = "d/b"}, {.Name = "a"}});
    EXPECT_EQ(zip_.Col, (QStringList{u"z"_s, u"d/"_s, u"d/b"_s, u"a"_s}));
    EXPECT_EQ(zip_.Count(), 4);
    EXPECT_TRUE(zip_.IsOpen());
    EXPECT_EQ(zip_.Name, At(u"a.zip"_s));
}

TEST_F(ZipRead, ANumberThatIsNoneNamesNothing) {
    Open({{.Name = "a", .Content = "12345", .Method = 8}, {.Name = "b", .Content = "2"}});
    EXPECT_EQ(zip_.GetFile(1), u"a"_s);
    EXPECT_EQ(zip_.GetFile(2), u"b"_s);
    EXPECT_EQ(zip_.Size(1), 5);
    EXPECT_EQ(zip_.Packed(2), 1);
    for (const qint32 number : {-1, 0, 3}) {
        EXPECT_EQ(zip_.GetFile(number), QString());
        EXPECT_EQ(zip_.Size(number), 0);
        EXPECT_EQ(zip_.Packed(number), 0);
    }
}

TEST_F(ZipRead, TheCommentIsInTheAnsiCodePage) {
    Open({{.Name = "a"}}, {.Comment = "caf\xE9, l\xC3\xA9g\r\nsecond line"});
    EXPECT_EQ(zip_.Comm, AnsiCodec::Decode("caf\xE9, l\xC3\xA9g\r\nsecond line"));
    EXPECT_EQ(zip_.GetZipInfo(), zip_.Comm) << "the last that was told";
}

TEST_F(ZipRead, TheCommentEndsAtAZeroOrAt32801Bytes) {
    Open({{.Name = "a"}}, {.Comment = QByteArray("before\0behind", 13)});
    EXPECT_EQ(zip_.Comm, u"before"_s);
    Open({{.Name = "a"}}, {.Comment = QByteArray(40000, 'c')});
    EXPECT_EQ(zip_.Comm, u"c"_s.repeated(32801));
}

TEST_F(ZipRead, AnArchiveWithoutACommentHasNone) {
    Open({{.Name = "a"}}, {.Comment = "old"});
    Open({{.Name = "a"}});
    EXPECT_EQ(zip_.Comm, QString());
}

TEST_F(ZipRead, WhatIsMissingOrNoArchiveHasNoEntriesAndRaisesNothing) {
    Open({{.Name = "a"}}, {.Comment = "old"});
    for (const QString& path : {At(u"missing.zip"_s), Make(u"text.zip"_s, "some text that is no archive at all"),
                                Make(u"empty.zip"_s, ""), At(QString())}) {
        zip_.Level = 9;
        zip_.Init(path);
        EXPECT_EQ(zip_.Count(), 0);
        EXPECT_EQ(zip_.Col, QStringList());
        EXPECT_EQ(zip_.Comm, QString());
        EXPECT_EQ(zip_.Name, path);
        EXPECT_EQ(zip_.Level, 5);
        EXPECT_FALSE(zip_.IsOpen());
        EXPECT_FALSE(zip_.GetZipInfo().isEmpty());
        EXPECT_EQ(Extract(u"a"_s), ZipResult::NoArchive);
    }
    EXPECT_FALSE(Files::FolderExists(Out()));
}

TEST_F(ZipRead, AnArchiveOfNothingIsOne) {
    Open(std::vector<Part>{}, {.Comment = "nothing"});
    EXPECT_TRUE(zip_.IsOpen());
    EXPECT_EQ(zip_.Count(), 0);
    EXPECT_EQ(zip_.Comm, u"nothing"_s);
}

TEST_F(ZipRead, TheLevelIsFiveAfterEveryInit) {
    EXPECT_EQ(zip_.Level, 5);
    zip_.Level = 1;
    Open({{.Name = "a"}});
    EXPECT_EQ(zip_.Level, 5);
}

TEST_F(ZipRead, WithoutAFolderNothingIsDone) {
    Open({{.Name = "a", .Content = "1"}});
    EXPECT_EQ(zip_.Decompress({}, u"a"_s, false), 1);
    EXPECT_EQ(zip_.Decompress({}, u"none"_s, true), 1);
    EXPECT_EQ(zip_.GetZipInfo(), QString()) << "nothing was told either";
}

TEST_F(ZipRead, WithoutFoldersAnEntryLandsInTheFolderItself) {
    Open(Folders());
    EXPECT_EQ(Extract(u"Maps/One/One.map"_s), 0);
    EXPECT_EQ(Got(u"One.map"_s), "map");
    EXPECT_EQ(Extract(u"Maps/One/"_s), 0) << "a folder without its place is nothing";
    EXPECT_EQ(Names(), QStringList{u"One.map"_s});
}

TEST_F(ZipRead, WithFoldersAnEntryLandsInThem) {
    Open(Folders());
    EXPECT_EQ(Extract(u"Maps/One/One.map"_s, true), 0);
    EXPECT_EQ(Got(u"Maps\\One\\One.map"_s), "map");
    Open({{.Name = "Empty/In/"}});
    EXPECT_EQ(Extract(u"Empty/In/"_s, true), 0);
    EXPECT_TRUE(Files::FolderExists(At(u"out\\Empty\\In"_s)));
}

TEST_F(ZipRead, OnlyTheEntryOfExactlyThatNameIsExtracted) {
    Open(Folders());
    for (const QString& name :
         {u"READ.ME"_s, u"read.m*"_s, u"One.map"_s, u"Maps\\One\\One.map"_s, u"Maps"_s, QString()})
        EXPECT_EQ(Extract(name), ZipResult::NoEntry) << name.toStdString();
    EXPECT_TRUE(zip_.GetZipInfo().contains(u"no entry"_s));
    EXPECT_FALSE(Files::FolderExists(Out()));
}

TEST_F(ZipRead, WhatStandsThereIsOverwrittenWithoutAQuestion) {
    Make(u"Read.Me"_s, "x");
    Files::MakeFolder(Out());
    Make(u"out\\Read.Me"_s, "a much longer text");
    Open(Folders());
    EXPECT_EQ(Extract(u"read.me"_s), 0);
    EXPECT_EQ(Names(), QStringList{u"Read.Me"_s}) << "in the case that it has";
    EXPECT_EQ(Got(u"Read.Me"_s), "text");
}

TEST_F(ZipRead, OfTwoEntriesOfOneNameTheFirstIsExtracted) {
    Open({{.Name = "a", .Content = "first"}, {.Name = "b"}, {.Name = "a", .Content = "second"}});
    EXPECT_EQ(zip_.Col, (QStringList{u"a"_s, u"b"_s, u"a"_s}));
    EXPECT_EQ(Extract(u"a"_s), 0);
    EXPECT_EQ(Got(u"a"_s), "first");
}

TEST_F(ZipRead, ManyBlocksComeOutWholeAndTheWindowIsServedBetweenThem) {
    QByteArray content;
    for (int line = 0; content.size() < qsizetype{3} * 262144; ++line)
        content += QByteArray::number(line) + '\n';
    Open({{.Name = "long", .Content = content, .Method = 8},
          {.Name = "short", .Content = "1"},
          {.Name = "even", .Content = content.first(qsizetype{2} * 262144)}});
    ScriptedHost host;
    std::vector<qint64> watched;
    zip_.Watch = [&](qint64 bytes) { watched.push_back(bytes); };
    EXPECT_EQ(Extract(u"long"_s), 0);
    EXPECT_EQ(Got(u"long"_s), content);
    EXPECT_EQ(watched, (std::vector<qint64>{262144, 524288, 786432, content.size()}));
    EXPECT_EQ(host.Yields, 3);
    EXPECT_EQ(Extract(u"short"_s), 0);
    EXPECT_EQ(host.Yields, 3) << "a short entry is done at once";
    EXPECT_EQ(Extract(u"even"_s), 0);
    EXPECT_EQ(Got(u"even"_s), content.first(qsizetype{2} * 262144));
}

TEST_F(ZipRead, WhatRunsWhileItYieldsMayReadOtherEntriesOrAnotherArchive) {
    const QByteArray content(700000, 'x');
    Open({{.Name = "long", .Content = content, .Method = 8}, {.Name = "short", .Content = "1"}});
    ScriptedHost host;
    host.OnYield = [&] {
        host.OnYield = nullptr;
        EXPECT_EQ(zip_.Decompress(At(u"other"_s), u"short"_s, false), 0);
        zip_.Init(At(u"missing.zip"_s));
    };
    EXPECT_EQ(Extract(u"long"_s), 0);
    EXPECT_EQ(Got(u"long"_s), content);
    EXPECT_EQ(BytesOf(u"other\\short"_s), "1");
    EXPECT_EQ(zip_.Count(), 0);
}

TEST_F(ZipRead, AnArchiveThatWasReplacedIsReadToItsEnd) {
    Open(Folders());
    Files::Rename(At(u"a.zip"_s), At(u"moved.zip"_s));
    Make(u"a.zip"_s, "another file");
    EXPECT_EQ(Extract(u"read.me"_s), 0);
    EXPECT_EQ(Got(u"read.me"_s), "text");
}

TEST_F(ZipRead, TheArchiveItselfIsNoTarget) {
    Open({{.Name = "A.zip", .Content = "1"}});
    EXPECT_EQ(zip_.Decompress(At(QString()).chopped(1), u"A.zip"_s, false), ZipResult::NoTarget);
    EXPECT_GT(BytesOf(u"a.zip"_s).size(), 100);
}

TEST_F(ZipRead, SixtyFiveThousandEntriesAreListedAndFoundAtOnce) {
    std::vector<Part> parts(65535);
    for (std::size_t i = 0; i < parts.size(); ++i)
        parts[i] = {.Name = "f" + QByteArray::number(static_cast<int>(i)),
                    .Content = QByteArray::number(static_cast<int>(i))};
    Open(parts);
    ASSERT_EQ(zip_.Count(), 65535);
    EXPECT_EQ(zip_.GetFile(65535), u"f65534"_s);
    for (const int entry : {0, 8191, 8192, 65534, 1}) {
        const QString name = u"f%1"_s.arg(entry);
        EXPECT_EQ(Extract(name), 0);
        EXPECT_EQ(Got(name), QByteArray::number(entry));
    }
}

TEST_F(ZipRead, MoreEntriesThanTheCountHasRoomForAreAllThere) {
    Open({{.Name = "same"}}, {.Repeat = 65537, .Count = 1});
    EXPECT_EQ(zip_.Count(), 65537);
    Open({{.Name = "same"}}, {.Repeat = 65536, .Count = 0});
    EXPECT_EQ(zip_.Count(), 65536);
}

TEST_F(ZipRead, AnEntryIsExtractedToAPlaceThatWasChosen) {
    Open({{.Name = "d/a", .Content = "1"}, {.Name = "bad", .Content = "1", .Crc = 1}});
    Files::MakeFolder(Out());
    const auto out = std::make_shared<HeldFolder>(Out());
    EXPECT_EQ(zip_.DecompressTo({out, u"Other Name"_s}, u"d/a"_s), ZipResult::Done);
    EXPECT_EQ(Got(u"Other Name"_s), "1");
    EXPECT_EQ(zip_.DecompressTo({out, u"b"_s}, u"bad"_s), ZipResult::BadData);
    EXPECT_EQ(zip_.DecompressTo({out, u"b"_s}, u"none"_s), ZipResult::NoEntry);
    const auto beside = std::make_shared<HeldFolder>(At({}));
    EXPECT_EQ(zip_.DecompressTo({beside, u"a.zip"_s}, u"d/a"_s), ZipResult::NoTarget);
    EXPECT_EQ(Names(), QStringList{u"Other Name"_s});
}

TEST_F(ZipRead, WhoWatchesIsToldOfEachFile) {
    struct Watch : FileWatch {
        QStringList Log;
        bool Refuses = false;

        void WillWrite(const QString& path) override {
            Log += u"will "_s + Paths::LastPart(path) + (Files::FileExists(path) ? u" over"_s : u""_s);
            if (Refuses)
                throw RuntimeError(ErrorNumber::DiskFull, u"no"_s);
        }

        void Written(const QString& path) override { Log += u"did "_s + Paths::LastPart(path); }
    } watch;

    Open({{.Name = "a", .Content = "1"}, {.Name = "bad", .Content = "1", .Crc = 1}});
    zip_.Writes = &watch;
    EXPECT_EQ(Extract(u"a"_s), 0);
    EXPECT_EQ(Extract(u"bad"_s), ZipResult::BadData);
    watch.Refuses = true;
    EXPECT_EQ(Extract(u"a"_s), ZipResult::DiskFull);
    EXPECT_EQ(watch.Log, (QStringList{u"will a"_s, u"did a"_s, u"will a over"_s}));
    EXPECT_EQ(Names(), QStringList{u"a"_s});
}

TEST_F(ZipRead, ChecksumsAreTold) {
    Open({{.Name = "a", .Content = "hello"}});
    EXPECT_EQ(zip_.Crc(1), ZipBytes::Crc("hello"));
    EXPECT_EQ(zip_.Crc(0), 0U);
    EXPECT_EQ(zip_.Crc(2), 0U);
}
