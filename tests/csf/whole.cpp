// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "csf/format/CsfWhole.h"

#include "platform/RuntimeError.h"
#include "tests/csf/Tables.h"
#include "tests/csf/WholeBytes.h"

#include <random>

using namespace Qt::StringLiterals;
using namespace WholeBytes;

namespace {

/// A little of everything.
QByteArray Everything() {
    return Head(7, 99, 0x01020304, 0xAABBCCDD, 2) + Label(0, "bare first") + Label(1, "a") +
           String(u"\uD55C\uAD6D\uC5B4"_s) + Label(3, "many", " lBl") + String(u"1"_s, " rTs") +
           WithExtra(u"\u0416"_s, Bytes("x\0y"), "WrTs") + String(u""_s) + Label(0, "bare") + Label(1, "") +
           String(u"\U0001F5FA\n"_s) + Label(1, "a") + WithExtra(u"\u00E9"_s, "") + Label(0, "bare last");
}

QString ReasonFor(const QByteArray& bytes) {
    try {
        static_cast<void>(CsfWhole::Read(bytes));
    } catch (const RuntimeError& error) {
        EXPECT_EQ(error.Number(), ErrorNumber::TypeMismatch);
        return error.Description();
    }
    return {};
}

QByteArray After(const QByteArray& before, const std::function<void(CsfTable&)>& change) {
    CsfWhole whole = CsfWhole::Read(before);
    CsfTable table = whole.Table();
    change(table);
    whole.Take(table);
    return whole.Bytes();
}

} // namespace

TEST(WholeTable, WhatIsReadAndWrittenIsTheSameByteForByte) {
    EXPECT_EQ(CsfWhole::Read(Everything()).Bytes(), Everything());
    EXPECT_EQ(After(Everything(), [](CsfTable&) {}), Everything());
    EXPECT_EQ(CsfWhole::Read(Head(0, 0)).Bytes(), Head(0, 0)) << "a table of nothing";
    const QByteArray lower = QByteArray(Everything()).replace(0, 4, " fSc");
    EXPECT_EQ(CsfWhole::Read(lower).Bytes(), lower);
}

TEST(WholeTable, EveryLetterAndAllExtraDataAreThere) {
    const CsfTable table = CsfWhole::Read(Everything()).Table();
    EXPECT_EQ(table.Language, 0x01020304);
    const std::vector<CsfString> expected{
        {u"\uD55C\uAD6D\uC5B4"_s, u"a"_s, {}, false},  {u"1"_s, u"many"_s, {}, false},
        {u"\u0416"_s, u"many"_s, Bytes("x\0y"), true}, {u""_s, u"many"_s, {}, true},
        {u"\U0001F5FA\n"_s, u""_s, {}, false},         {u"\u00E9"_s, u"a"_s, ""_ba, false}};
    EXPECT_EQ(table.Strings, expected);
}

TEST(WholeTable, TheLanguageHasAll32Bits) {
    EXPECT_EQ(CsfWhole::Read(Head(0, 0, 10)).Table().Language, 10) << "and is no hexadecimal text";
    EXPECT_EQ(CsfWhole::Read(Head(0, 0, 0xFFFFFFFE)).Table().Language, -2);
    EXPECT_EQ(After(Head(0, 0, 10), [](CsfTable& table) { table.Language = 70'000; }), Head(0, 0, 70'000));
}

TEST(WholeTable, AChangedStringKeepsWhatStandsAroundIt) {
    EXPECT_EQ(After(Everything(), [](CsfTable& table) { table.Strings[2].Value = u"new"_s; }),
              QByteArray(Everything())
                  .replace(WithExtra(u"\u0416"_s, Bytes("x\0y"), "WrTs"), WithExtra(u"new"_s, Bytes("x\0y"), "WrTs")));
}

TEST(WholeTable, CountsFollowWhatIsAddedAndDeleted) {
    const QByteArray before = Head(5, 9) + Label(1, "a") + String(u"1"_s) + Label(1, "b") + String(u"2"_s);
    EXPECT_EQ(After(before,
                    [](CsfTable& table) {
                        table.Strings.push_back({u"3"_s, u"c"_s});
                    }),
              Head(6, 10) + Label(1, "a") + String(u"1"_s) + Label(1, "b") + String(u"2"_s) + Label(1, "c") +
                  String(u"3"_s));
    EXPECT_EQ(After(before, [](CsfTable& table) { table.Strings.erase(table.Strings.begin()); }),
              Head(4, 8) + Label(1, "b") + String(u"2"_s));
}

TEST(WholeTable, LabelsOfSeveralStringsLoseAndKeepTheOthers) {
    const QByteArray before =
        Head(1, 3) + Label(3, "m", " LbL") + String(u"1"_s) + WithExtra(u"2"_s, "x") + String(u"3"_s);
    const auto without = [&](std::ptrdiff_t place) {
        return After(before, [place](CsfTable& table) { table.Strings.erase(table.Strings.begin() + place); });
    };
    EXPECT_EQ(without(1), Head(1, 2) + Label(2, "m", " LbL") + String(u"1"_s) + String(u"3"_s));
    const QByteArray renamed = After(before, [](CsfTable& table) { table.Strings[2].Name = u"n"_s; });
    EXPECT_EQ(renamed, Head(2, 3) + Label(2, "m", " LbL") + String(u"1"_s) + WithExtra(u"2"_s, "x") + Label(1, "n") +
                           String(u"3"_s));
}

TEST(WholeTable, LabelsWithoutStringsStayWhereTheyStand) {
    const QByteArray changed = After(Everything(), [](CsfTable& table) {
        table.Strings.erase(table.Strings.begin() + 4); // the one behind "bare"
        table.Strings.erase(table.Strings.begin());
        table.Strings.push_back({u"n"_s, u"new"_s});
    });
    EXPECT_EQ(changed, Head(6, 98, 0x01020304, 0xAABBCCDD, 2) + Label(0, "bare first") + Label(3, "many", " lBl") +
                           String(u"1"_s, " rTs") + WithExtra(u"\u0416"_s, Bytes("x\0y"), "WrTs") + String(u""_s) +
                           Label(0, "bare") + Label(1, "a") + WithExtra(u"\u00E9"_s, "") + Label(0, "bare last") +
                           Label(1, "new") + String(u"n"_s));
}

TEST(WholeTable, WhoKnowsWhichStringEachOneWasMayRenameItInItsPlace) {
    CsfWhole whole = CsfWhole::Read(Everything());
    CsfTable table = whole.Table();
    table.Strings[0].Name = u"other"_s;
    table.Strings[1].Name = u"first"_s;
    std::swap(table.Strings[4], table.Strings[5]);
    table.Strings.push_back({u"n"_s, u"new"_s});
    whole.Take(table, {0, 1, 2, 3, 5, 4, -1});
    EXPECT_EQ(whole.Bytes(), Head(9, 100, 0x01020304, 0xAABBCCDD, 2) + Label(0, "bare first") + Label(1, "other") +
                                 String(u"\uD55C\uAD6D\uC5B4"_s) + Label(1, "first", " lBl") + String(u"1"_s, " rTs") +
                                 Label(2, "many", " lBl") + WithExtra(u"\u0416"_s, Bytes("x\0y"), "WrTs") +
                                 String(u""_s) + Label(0, "bare") + Label(1, "a") + WithExtra(u"\u00E9"_s, "") +
                                 Label(0, "bare last") + Label(1, "") + String(u"\U0001F5FA\n"_s) + Label(1, "new") +
                                 String(u"n"_s));
}

TEST(WholeTable, TellsWhereItsStringsLieAndWhatIsBesideThem) {
    const CsfWhole whole = CsfWhole::Read(Everything());
    const QByteArray bytes = Everything();
    std::vector<qsizetype> offsets;
    for (const QByteArray mark : {" RTS", " rTs", "WrTs", "WRTS"})
        for (qsizetype at = bytes.indexOf(mark); at >= 0; at = bytes.indexOf(mark, at + 1))
            offsets.push_back(at);
    std::ranges::sort(offsets);
    EXPECT_EQ(whole.StringOffsets(), offsets);
    EXPECT_EQ(whole.BareLabels(), QStringList({u"bare first"_s, u"bare"_s, u"bare last"_s}));
    EXPECT_FALSE(whole.HasPlainHeader());
    EXPECT_TRUE(CsfWhole::Read(Head(7, 9, 9)).HasPlainHeader());
    EXPECT_FALSE(CsfWhole::Read(Head(0, 0, 10)).HasPlainHeader());
    EXPECT_FALSE(CsfWhole::Read(Head(0, 0, 0, 1)).HasPlainHeader());
    EXPECT_FALSE(CsfWhole::Read(Head(0, 0, 0, 0, 2)).HasPlainHeader());
}

TEST(WholeTable, ExtraDataComesAndGoesWithItsMark) {
    const QByteArray plain = Head(1, 1) + Label(1, "a") + String(u"1"_s);
    const QByteArray with = Head(1, 1) + Label(1, "a") + WithExtra(u"1"_s, "e");
    EXPECT_EQ(After(plain, [](CsfTable& table) { table.Strings[0].Extra = "e"; }), with);
    EXPECT_EQ(After(with, [](CsfTable& table) { table.Strings[0].Extra.reset(); }), plain);
}

TEST(WholeTable, AFreshOneHasTheFormThatTheSuiteWrites) {
    EXPECT_EQ(CsfWhole::Of({3, {{u"\u0416"_s, u"a"_s}, {u"2"_s, u"b"_s}}}).Bytes(),
              Head(2, 2, 3) + Label(1, "a") + String(u"\u0416"_s) + Label(1, "b") + String(u"2"_s));
}

TEST(WholeTable, WhatIsNotWellFormedIsRefusedWithTheOffset) {
    const QByteArray good = Head(1, 1) + Label(1, "a") + String(u"1"_s);
    EXPECT_EQ(ReasonFor("RIFF" + good.sliced(4)), u"offset 0: not a CSF file"_s);
    EXPECT_EQ(ReasonFor(good + "x"), u"offset 47: the file ends too early"_s);
    EXPECT_EQ(ReasonFor(good + "xxxx"), u"offset 47: no label begins here"_s);
    EXPECT_EQ(ReasonFor(Head(1, 1) + Label(1, "a") + Label(1, "b")), u"offset 37: no string begins here"_s);
    EXPECT_EQ(ReasonFor(Head(1, 1) + Label(0xFFFFFFFF, "a") + String(u"1"_s)), u"offset 47: the file ends too early"_s);
    EXPECT_EQ(ReasonFor(Head(1, 1) + " LBL" + Little(1) + Little(0xFFFFFFFF) + "a"),
              u"offset 36: the file ends too early"_s);
    EXPECT_EQ(ReasonFor(Head(1, 1) + Label(1, "a") + " RTS" + Little(0xFFFFFFFF) + "a"),
              u"offset 45: the file ends too early"_s);
}

TEST(WholeTable, CutAnywhereItIsRefusedOrEndsBehindALabel) {
    const QByteArray whole = Everything();
    for (qsizetype length = 0; length < whole.size(); ++length) {
        const QByteArray cut = whole.first(length);
        if (ReasonFor(cut).isEmpty()) {
            EXPECT_EQ(CsfWhole::Read(cut).Bytes(), cut) << length;
        }
    }
    EXPECT_FALSE(ReasonFor(whole.chopped(1)).isEmpty());
}

TEST(WholeTable, RandomChangesAreRefusedOrComeBack) {
    std::mt19937 random(2005);
    for (int time = 0; time < 10'000; ++time) {
        QByteArray bytes = Everything();
        for (int change = 0; change <= time % 3; ++change)
            bytes[static_cast<qsizetype>(random() % static_cast<unsigned>(bytes.size()))] = static_cast<char>(random());
        if (ReasonFor(bytes).isEmpty()) {
            ASSERT_EQ(CsfWhole::Read(bytes).Bytes(), bytes) << time;
        }
    }
}
