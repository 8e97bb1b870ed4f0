// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tools/demoworld/Archives.h"
#include "tests/support/Printing.h"
#include "tests/tools/Reading.h"

#include <gtest/gtest.h>

#include <array>

using namespace Demo;
using namespace Qt::StringLiterals;

namespace {

const std::vector<ArchiveEntry> TwoEntries{{u"a.ini"_s, "hello"}, {u"b"_s, "yz"}};

/// A device that takes some bytes and then no more.
class FullDevice : public QIODevice {
public:
    explicit FullDevice(qint64 room) : room_(room) { open(WriteOnly | Unbuffered); }

protected:
    qint64 readData(char*, qint64) override { return -1; }

    qint64 writeData(const char*, qint64 size) override {
        const qint64 taken = std::min(room_, size);
        room_ -= taken;
        return taken == 0 && size > 0 ? -1 : taken;
    }

private:
    qint64 room_;
};

} // namespace

TEST(SampleArchives, TheFirstVariantStandsAsWorkedOutByHand) {
    EXPECT_EQ(Archive(0, TwoEntries), Hex("42494746 3a000000 00000002 00000030"
                                          "00000030 00000005 612e696e6900"
                                          "00000038 00000002 6200"
                                          "4c323235 00000000"
                                          "68656c6c6f 000000"
                                          "797a"));
}

TEST(SampleArchives, TheSecondVariantDiffersInItsMarkOnly) {
    QByteArray expected = Archive(0, TwoEntries);
    expected.replace(40, 4, "L231");
    EXPECT_EQ(Archive(1, TwoEntries), expected);
}

TEST(SampleArchives, TheThirdVariantHasNoGapsAndItsDataWhereTheDirectorySays) {
    EXPECT_EQ(Archive(2, TwoEntries), Hex("42494734 37000000 00000002 00000030"
                                          "00000030 00000005 612e696e6900"
                                          "00000035 00000002 6200"
                                          "4c323139 00000000"
                                          "68656c6c6f"
                                          "797a"));
}

TEST(SampleArchives, TheFourthVariantsHeadCountsToTheByteBeforeTheData) {
    EXPECT_EQ(Archive(3, {{u"ab"_s, "x"}}), Hex("42494734 25000000 00000001 00000023"
                                                "00000024 00000001 616200"
                                                "4c323533 1505 000000"
                                                "78"));
}

TEST(SampleArchives, DataStartsOnFourBytesWhateverTheNamesLengths) {
    for (const QString& name : {u"a"_s, u"ab"_s, u"abc"_s, u"abcd"_s}) {
        for (const int version : {0, 1, 3}) {
            const QByteArray bytes = Archive(version, {{name, "data"}});
            const qint64 offset = Big32At(bytes, 16);
            EXPECT_EQ(offset % 4, 0);
            EXPECT_EQ(bytes.mid(offset), "data");
        }
    }
}

TEST(SampleArchives, NamesAreInTheAnsiPage) {
    EXPECT_TRUE(Archive(0, {{u"Été\\Forêt"_s, "x"}}).contains("\xC9t\xE9\\For\xEAt"));
}

TEST(SampleArchives, EmptyEntriesTakeNoRoom) {
    const QByteArray bytes = Archive(2, {{u"a"_s, {}}, {u"b"_s, "x"}});
    EXPECT_EQ(Big32At(bytes, 16), Big32At(bytes, 26));
    EXPECT_EQ(Big32At(bytes, 20), 0);
}

TEST(SampleArchives, TheHeadIsWhatStandsBeforeTheData) {
    const QByteArray head = ArchiveHead(0, TwoEntries);
    EXPECT_EQ(head, Archive(0, TwoEntries).first(48));
}

TEST(SampleArchives, AFullDeviceIsToldOf) {
    const qint64 whole = Archive(0, TwoEntries).size();
    for (qint64 room = 0; room < whole; ++room) {
        FullDevice device(room);
        EXPECT_FALSE(WriteArchive(device, 0, TwoEntries)) << room;
    }
    FullDevice device(whole);
    EXPECT_TRUE(WriteArchive(device, 0, TwoEntries));
}
