// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "csf/document/TableBehind.h"

#include "platform/RuntimeError.h"
#include "tests/csf/Tables.h"
#include "tests/csf/WholeBytes.h"

using namespace Qt::StringLiterals;
using namespace WholeBytes;

namespace {

std::vector<LabelRow> ToldRows(const TableBehind& behind) {
    LabelList list;
    list.Load(behind.Told());
    return list.Rows();
}

} // namespace

TEST(TableBehind, OneThatEightBitsHoldLosesNothing) {
    const TableBehind behind = TableBehind::Read(Head(2, 2) + Entry("b", u"\u00FF"_s) + Entry("a", u"\u0080"_s));
    EXPECT_EQ(behind.LostNames(ToldRows(behind)), QStringList());
    EXPECT_TRUE(behind.HasPlainHeader());
}

TEST(TableBehind, WhatEightBitsLoseIsNamed) {
    const TableBehind behind =
        TableBehind::Read(Head(5, 6) + Entry("wide", u"\u0100"_s) + Label(2, "two") + String(u"1"_s) + String(u"2"_s) +
                          Label(1, "extra") + WithExtra(u"v"_s, "x") + Label(0, "bare") + Entry("plain", u"p"_s));
    const QStringList lost = behind.LostNames(ToldRows(behind));
    EXPECT_EQ(QSet<QString>(lost.begin(), lost.end()), QSet<QString>({u"wide"_s, u"two"_s, u"extra"_s, u"bare"_s}));
    EXPECT_EQ(lost.size(), 4);
}

TEST(TableBehind, WhatTheUserDeletedOrWroteAnewIsNotLost) {
    const TableBehind behind = TableBehind::Read(Head(2, 2) + Entry("a", u"\u0410"_s) + Entry("b", u"\u0411"_s));
    std::vector<LabelRow> rows = ToldRows(behind);
    rows[0].Value = u"new"_s;
    rows.pop_back();
    EXPECT_EQ(behind.LostNames(rows), QStringList());
}

TEST(TableBehind, ALabelThatIsPassedOverTakesItsNameAlong) {
    // The extra data moves the marks behind it off the steps of three, up to the next string's own.
    for (int length = 0; length < 12; ++length) {
        const TableBehind behind =
            TableBehind::Read(Head(4, 4) + Entry("a", u"1"_s) + Label(1, "b") +
                              WithExtra(u"2"_s, QByteArray(length, 'x')) + Entry("c", u"3"_s) + Entry("d", u"4"_s));
        const std::vector<LabelRow> rows = behind.WholeRows(ToldRows(behind));
        LabelList list;
        list.Replace(rows);
        QStringList texts;
        for (const LabelRow& row : list.Rows())
            texts += row.Name + u'=' + row.Value;
        texts.sort();
        EXPECT_EQ(texts, QStringList({u"a=1"_s, u"b=2"_s, u"c=3"_s, u"d=4"_s})) << length;
    }
}

TEST(TableBehind, WhatIsNoStringIsLeftOutUnlessItWasChanged) {
    // Extra data that looks like a record, where the steps of three meet it.
    const QByteArray inside = "xx" + EntryRecords("no", "no");
    QByteArray bytes;
    std::optional<TableBehind> behind;
    for (int before = 0; before < 3 && !behind; ++before) {
        bytes = Head(2, 2) + Label(1, "b") + WithExtra(u"2"_s, QByteArray(before, 'y') + inside) + Entry("c", u"3"_s);
        behind = TableBehind::Read(bytes);
        if (behind->Told().empty() || behind->Told()[0].Name != u"no"_s)
            behind.reset();
    }
    ASSERT_TRUE(behind);
    std::vector<LabelRow> rows = ToldRows(*behind);
    EXPECT_EQ(behind->WholeRows(rows).size(), 2U);
    std::ranges::find(rows, u"no"_s, &LabelRow::Name)->Value = u"typed"_s;
    const std::vector<LabelRow> whole = behind->WholeRows(rows);
    EXPECT_EQ(whole.size(), 3U);
    EXPECT_EQ(std::ranges::find(whole, u"no"_s, &LabelRow::Name)->Value, u"typed"_s);
}

TEST(TableBehind, WholeRowsMakeTheirFileAgain) {
    const QByteArray bytes = Head(9, 9, 0x01020304, 7, 2) + Label(0, "bare") + Label(2, "z", " lBl") +
                             String(u"\u0E44\u0E17\u0E22"_s) + WithExtra(u"\U0001F5FA"_s, "x") + Entry("a", u"1"_s);
    TableBehind behind = TableBehind::Read(bytes);
    LabelList list;
    list.Replace(behind.WholeRows(ToldRows(behind)));
    list.SortBy(LabelList::Name);
    EXPECT_EQ(list.Row(0).Name, u"a"_s);
    EXPECT_EQ(behind.Take(list.Rows(), behind.Language()), (std::vector<int>{2, 0, 1}));
    EXPECT_EQ(behind.Bytes(), bytes);
}

TEST(TableBehind, WhatIsNotWellFormedIsRefused) {
    EXPECT_THROW(TableBehind::Read(Head(1, 1) + "xx"), RuntimeError);
    EXPECT_THROW(TableBehind::Read(""), RuntimeError);
}

TEST(TypedOver, KeepsWhatIsBehindTheLettersThatStay) {
    EXPECT_EQ(TypedOver(u"\uD55C\uAD6D"_s, u"\u005C\u006D"_s, u"\u005C!\u006D"_s), u"\uD55C!\uAD6D"_s);
    EXPECT_EQ(TypedOver(u"\uD55C"_s, u"?"_s, u"?\uAD6D"_s), u"\uD55C\uAD6D"_s);
    EXPECT_EQ(TypedOver(u"a\U0001F5FAb"_s, u"a?b"_s, u"a?bc"_s), u"a\U0001F5FAbc"_s);
    EXPECT_EQ(TypedOver(u"a\U0001F5FAb"_s, u"a?b"_s, u"ab"_s), u"ab"_s);
    EXPECT_EQ(TypedOver(u"a\U0001F5FA\U0001F5FB"_s, u"a??"_s, u"xa??"_s), u"xa\U0001F5FA\U0001F5FB"_s);
    EXPECT_EQ(TypedOver(u"\u0410\u0410"_s, u"\u0010\u0010"_s, u"\u0010"_s), u"\u0410"_s);
    EXPECT_EQ(TypedOver(u""_s, u""_s, u"new"_s), u"new"_s);
    EXPECT_EQ(TypedOver(u"\u0410"_s, u"x"_s, u""_s), QString());
}
