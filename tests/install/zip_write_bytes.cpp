// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// What is in the archive, byte by byte.
#include "platform/AnsiCodec.h"
#include "tests/install/ZipTest.h"

#include <zlib.h>

#include <numeric>
#include <random>

using namespace Qt::StringLiterals;

namespace {

class ZipBytes : public ZipTest {
protected:
    /// The name in an archive of one file, as it stands in both records; empty when they differ.
    static QByteArray NameIn(const QByteArray& archive) {
        const auto local = static_cast<unsigned char>(archive.at(26));
        const qsizetype central = archive.indexOf("PK\1\2");
        const auto again = static_cast<unsigned char>(archive.at(central + 28));
        const QByteArray name = archive.mid(30, local);
        return archive.mid(central + 46, again) == name && archive.mid(central + 46 + again, 2) == "PK" ? name
                                                                                                        : QByteArray();
    }

    /// The only entry's data.
    [[nodiscard]] QByteArray Data() const {
        return Written().sliced(30 + zip_.FileName(1).size(), zip_.SizeCompressed(1));
    }

    static QByteArray Inflated(const QByteArray& raw, qsizetype length) {
        QByteArray out(length + 1, '\0');
        z_stream stream{};
        EXPECT_EQ(::inflateInit2(&stream, -MAX_WBITS), Z_OK);
        QByteArray in = raw;
        stream.next_in = reinterpret_cast<Bytef*>(in.data());
        stream.avail_in = static_cast<uInt>(in.size());
        stream.next_out = reinterpret_cast<Bytef*>(out.data());
        stream.avail_out = static_cast<uInt>(out.size());
        EXPECT_EQ(::inflate(&stream, Z_FINISH), Z_STREAM_END);
        EXPECT_EQ(stream.avail_in, 0U) << "nothing stands behind the stream";
        out.resize(static_cast<qsizetype>(stream.total_out));
        ::inflateEnd(&stream);
        return out;
    }

    /// The stream that zlib makes, without its head and its tail.
    static QByteArray Deflated(const QByteArray& content) {
        uLongf length = ::compressBound(static_cast<uLong>(content.size()));
        QByteArray stream(static_cast<qsizetype>(length), '\0');
        EXPECT_EQ(::compress(reinterpret_cast<Bytef*>(stream.data()), &length,
                             reinterpret_cast<const Bytef*>(content.constData()), static_cast<uLong>(content.size())),
                  Z_OK);
        return stream.sliced(2, static_cast<qsizetype>(length) - 6);
    }

    static QByteArray Noise(qsizetype size) {
        std::mt19937 random(2005);
        QByteArray bytes;
        bytes.reserve(size);
        while (bytes.size() < size)
            bytes += static_cast<char>(random());
        return bytes;
    }
};

} // namespace

// The streams are blocks of fixed codes, worked out by hand: "hello" is CB 48 CD C9 C9 07 00, "hi" is CB C8 04 00.
TEST_F(ZipBytes, TwoSmallFilesByteForByte) {
    PutAt(QDateTime(QDate(2004, 2, 29), QTime(23, 59, 58)), u"Map\\a.ini"_s, "hello");
    PutAt(QDateTime(QDate(1999, 12, 1), QTime(0, 1, 2)), u"Map\\sub\\b.t"_s, "hi");
    EXPECT_EQ(zip_.FileAdd(At(u"Map\\*.*"_s), ZipClass::Relative, true), 2);
    zip_.SetComment(u"caf\u00E9"_s);
    EXPECT_EQ(Written(), Bytes("PK\x03\x04\x14\x00\x02\x00\x08\x00\x7D\xBF\x5D\x30\x86\xA6\x10\x36"
                               "\x07\x00\x00\x00\x05\x00\x00\x00\x09\x00\x00\x00"
                               "Map\\a.ini"
                               "\xCB\x48\xCD\xC9\xC9\x07\x00"
                               "PK\x03\x04\x14\x00\x02\x00\x08\x00\x21\x00\x81\x27\xAC\x2A\x93\xD8"
                               "\x04\x00\x00\x00\x02\x00\x00\x00\x0B\x00\x00\x00"
                               "Map\\sub\\b.t"
                               "\xCB\xC8\x04\x00"
                               "PK\x01\x02\x14\x00\x14\x00\x02\x00\x08\x00\x7D\xBF\x5D\x30\x86\xA6\x10\x36"
                               "\x07\x00\x00\x00\x05\x00\x00\x00\x09\x00\x00\x00\x00\x00\x00\x00"
                               "\x20\x00\x00\x00\x00\x00\x00\x00\x00\x00"
                               "Map\\a.ini"
                               "PK\x01\x02\x14\x00\x14\x00\x02\x00\x08\x00\x21\x00\x81\x27\xAC\x2A\x93\xD8"
                               "\x04\x00\x00\x00\x02\x00\x00\x00\x0B\x00\x00\x00\x00\x00\x00\x00"
                               "\x20\x00\x00\x00\x00\x00\x2E\x00\x00\x00"
                               "Map\\sub\\b.t"
                               "PK\x05\x06\x00\x00\x00\x00\x02\x00\x02\x00\x70\x00\x00\x00\x5B\x00\x00\x00\x04\x00"
                               "caf\xE9"));
}

TEST_F(ZipBytes, TheEmptyCommentEndsInTheEndRecord) {
    zip_.FileAdd(Put(u"a.ini"_s), ZipClass::NameOnly, false);
    const QByteArray written = Written();
    EXPECT_EQ(written.last(22).first(12), Bytes("PK\x05\x06\x00\x00\x00\x00\x01\x00\x01\x00"));
    EXPECT_EQ(written.last(2), Bytes("\x00\x00"));
}

TEST_F(ZipBytes, AnArchiveOfNothingIsTheEndRecord) {
    EXPECT_EQ(Written(), "PK\5\6" + QByteArray(18, '\0'));
}

TEST_F(ZipBytes, NamesAreInTheAnsiCodePage) {
    zip_.FileAdd(Put(u"\u00C4\u20AC\u4E2D.map"_s), ZipClass::NameOnly, false);
    EXPECT_EQ(NameIn(Written()), AnsiCodec::Encode(u"\u00C4\u20AC?.map"_s));
    EXPECT_EQ(zip_.FileName(1), u"\u00C4\u20AC\u4E2D.map"_s);
}

TEST_F(ZipBytes, TheDataIsWhatTheLibraryGivesWithoutHeadAndTail) {
    const QByteArray noise = Noise(70'000);
    const std::vector<QByteArray> contents{"a",
                                           "hello",
                                           noise.first(50),
                                           noise.first(10'000),
                                           noise,
                                           QByteArray(1'000'000, 'a'),
                                           QByteArray("Object Tank\r\n  Side = GLA\r\nEnd\r\n").repeated(40'000)};
    for (const QByteArray& content : contents) {
        ASSERT_EQ(zip_.FileAdd(Put(u"file.x"_s, content), ZipClass::NameOnly, false), 1);
        EXPECT_EQ(zip_.SizeUncompressed(1), content.size());
        EXPECT_EQ(Data(), Deflated(content)) << content.size();
        EXPECT_TRUE(Inflated(Data(), content.size()) == content) << content.size();
        zip_.FileDel(1);
    }
}

TEST_F(ZipBytes, TheRoomForTheStreamIsRoundedHalfToEven) {
    EXPECT_EQ(ZipFile::OutputLimit(1), 13);
    EXPECT_EQ(ZipFile::OutputLimit(50), 62) << "62.5";
    EXPECT_EQ(ZipFile::OutputLimit(150), 164) << "163.5";
    EXPECT_EQ(ZipFile::OutputLimit(60), 73) << "72.6";
    EXPECT_EQ(ZipFile::OutputLimit(100), 113);
}

TEST(DosTimes, EachPartHasItsBits) {
    EXPECT_EQ(DosTime::Date(QDate(2004, 2, 29).startOfDay()), 0x305D);
    EXPECT_EQ(DosTime::Date(QDate(1980, 1, 1).startOfDay()), 0x0021);
    EXPECT_EQ(DosTime::Date(QDate(2107, 12, 31).startOfDay()), 0xFF9F);
    EXPECT_EQ(DosTime::Time(QDateTime(QDate(2004, 1, 1), QTime(23, 59, 58))), 0xBF7D);
    EXPECT_EQ(DosTime::Time(QDateTime(QDate(2004, 1, 1), QTime(0, 0, 0))), 0);
}

TEST(DosTimes, AnOddSecondIsCut) {
    EXPECT_EQ(DosTime::Time(QDateTime(QDate(2004, 1, 1), QTime(1, 2, 59))), 0x085D);
    EXPECT_EQ(DosTime::Time(QDateTime(QDate(2004, 1, 1), QTime(1, 2, 3))), 0x0841);
}

TEST(DosTimes, TheYearBefore1980Is127) {
    EXPECT_EQ(DosTime::Date(QDate(1979, 12, 31).startOfDay()), 0xFF9F);
    EXPECT_EQ(DosTime::Date(QDate(1970, 1, 1).startOfDay()), 0xEC21);
}

TEST(DosTimes, AYearBeyondTheBitsBeginsAnew) {
    EXPECT_EQ(DosTime::Date(QDate(2108, 1, 1).startOfDay()), 0x0021);
}

TEST_F(ZipBytes, AFileOf1979HasTheYear127) {
    PutAt(QDateTime(QDate(1979, 5, 6), QTime(7, 8, 10)), u"old.map"_s, "x");
    zip_.FileAdd(At(u"old.map"_s), ZipClass::NameOnly, false);
    EXPECT_EQ(Written().sliced(10, 4), Bytes("\x05\x39\xA6\xFE"));
}

TEST_F(ZipBytes, ALongFileIsPackedInPiecesWithTheSameBytes) {
    const QByteArray content = QByteArray("Object Tank\r\n  Side = GLA\r\nEnd\r\n").repeated(30'000) + Noise(700'001) +
                               QByteArray(900'000, '\0');
    std::vector<qint64> pieces;
    zip_.Watch = [&](qint64 bytes) { pieces.push_back(bytes); };
    zip_.FileAdd(Put(u"a.t"_s, content), 0, false);
    EXPECT_TRUE(Data() == Deflated(content));
    EXPECT_GT(pieces.size(), 8U);
    EXPECT_EQ(std::accumulate(pieces.begin(), pieces.end(), qint64{0}), content.size());
}

TEST_F(ZipBytes, WhoeverWatchesMayEndTheAdding) {
    zip_.Watch = [](qint64) { throw RuntimeError(ErrorNumber::InvalidCall, u"enough"_s); };
    EXPECT_EQ(ErrorOf([&] { zip_.FileAdd(Put(u"a.t"_s), 0, false); }), ErrorNumber::InvalidCall);
    EXPECT_EQ(zip_.FileCount(), 0);
}

TEST_F(ZipBytes, NamesMayStandInUtf8WhereThePageLacksALetter) {
    zip_.Utf8Names = true;
    zip_.FileAdd(Put(u"\u4E2D.t"_s), 0, false);
    zip_.FileAdd(Put(u"\u00C4.t"_s), 0, false);
    const QByteArray archive = Written();
    EXPECT_EQ(archive.mid(6, 2), Bytes("\2\x08"));
    EXPECT_EQ(archive.mid(26, 2), Bytes("\5\0"));
    EXPECT_EQ(archive.mid(30, 5), "\xE4\xB8\xAD.t");
    const qsizetype second = archive.indexOf("PK\3\4", 4);
    EXPECT_EQ(archive.mid(second + 6, 2), Bytes("\2\0"));
    EXPECT_EQ(archive.mid(second + 30, 3), "\xC4.t");
    const qsizetype central = archive.indexOf("PK\1\2");
    EXPECT_EQ(archive.mid(central + 8, 2), Bytes("\2\x08"));
    EXPECT_EQ(archive.mid(central + 46, 5), "\xE4\xB8\xAD.t");
}
