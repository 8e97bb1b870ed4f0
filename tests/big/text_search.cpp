// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Looking for a text in an archive: in its names, and in its text entries.
#include "big/document/ArchiveSearch.h"
#include "tests/big/document_support.h"
#include "tests/support/World.h"

#include <gtest/gtest.h>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

qsizetype PlainIndex(const QString& text, const QByteArray& bytes) {
    for (const TextPattern& pattern : TextPattern::OfPlainText(text))
        if (const qsizetype at = pattern.IndexIn(bytes); at >= 0)
            return at;
    return -1;
}

QByteArray AsTableValue(const QString& text) {
    QByteArray bytes;
    for (const QChar letter : text) {
        bytes += static_cast<char>(~letter.unicode());
        bytes += static_cast<char>(~letter.unicode() >> 8);
    }
    return bytes;
}

class TextSearching : public testing::Test {
protected:
    Archive Read(const std::vector<NamedBytes>& entries) {
        return Archives::Read(world_.WriteFile(u"a.big"_s, ArchiveOf(entries)));
    }

    std::vector<int> Found(const Archive& archive, const QString& text) {
        std::vector<int> found;
        last_ = 0;
        looked_ = 0;
        TextSearch search(archive, text);
        unread_ = search.Run(stop_.get_token(), [&](int index, bool is, int percent) {
            if (is)
                found.push_back(index);
            EXPECT_GE(percent, last_);
            last_ = percent;
            ++looked_;
        });
        std::ranges::sort(found);
        return found;
    }

    World world_;
    std::stop_source stop_;
    int unread_ = 0;
    int last_ = 0;
    int looked_ = 0;
};

} // namespace

TEST(TextPatterns, FindATextWhereverItBegins) {
    for (qsizetype at = 0; at < 200; ++at) {
        const QByteArray bytes = QByteArray(at, '.') + "Armor" + QByteArray(200 - at, '.');
        EXPECT_EQ(PlainIndex(u"aRMOR"_s, bytes), at);
        EXPECT_EQ(PlainIndex(u"armour"_s, bytes), -1);
    }
}

TEST(TextPatterns, FindATextThatEndsWithTheBytes) {
    for (qsizetype size = 0; size < 150; ++size)
        EXPECT_EQ(PlainIndex(u"end"_s, QByteArray(size, 'x') + "end"), size);
    EXPECT_EQ(PlainIndex(u"end"_s, "en"), -1);
    EXPECT_EQ(PlainIndex(u"end"_s, {}), -1);
}

// Long ones are looked for in another way; each of these has a part of itself before its place and again inside.
TEST(TextPatterns, FindALongTextBehindPartsOfItself) {
    for (const int length : {31, 32, 33, 99}) {
        QByteArray text = QByteArray("aB").repeated(length).first(length - 3) + "xab";
        for (qsizetype shown = 0; shown < length; ++shown) {
            const QByteArray bytes = text.first(shown) + text.last(shown) + text.toLower() + text;
            const qsizetype place = bytes.toLower().indexOf(text.toLower());
            EXPECT_EQ(PlainIndex(QString::fromLatin1(text), bytes), place) << length << ' ' << shown;
            EXPECT_EQ(PlainIndex(QString::fromLatin1(text), bytes.first(place + length - 1)), -1)
                << length << ' ' << shown;
        }
    }
}

TEST(TextPatterns, FindALongTextWithAccentsInEitherCase) {
    const QString text = u"L'\u00E9t\u00E9 \u00C9t\u00E9 d'un char qui a \u00E9t\u00E9 d\u00E9truit"_s;
    const QString other = text.toUpper();
    EXPECT_EQ(PlainIndex(text, QByteArray(70, 'e') + other.toLatin1()), 70);
    EXPECT_EQ(PlainIndex(other, QByteArray(71, 't') + text.toUtf8()), 71);
    EXPECT_EQ(PlainIndex(other, text.toUtf8().chopped(1)), -1);
}

TEST(TextPatterns, FindOneLetterAndNothingInNoText) {
    EXPECT_EQ(PlainIndex(u"Q"_s, QByteArray(100, 'x') + 'q'), 100);
    EXPECT_EQ(PlainIndex({}, "text"), -1);
}

TEST(TextPatterns, FindAnAccentInThePageAndInUtf8) {
    EXPECT_EQ(PlainIndex(u"\u00C9t\u00E9"_s, "un \xE9t\xC9"), 3);
    EXPECT_EQ(PlainIndex(u"\u00C9t\u00E9"_s, u"un \u00E9t\u00C9"_s.toUtf8()), 3);
}

TEST(TextPatterns, LookForLettersThatThePageLacksInUtf8Only) {
    EXPECT_EQ(PlainIndex(u"\u0440\u0430"_s, u"\u0420\u0410"_s.toUtf8()), 0);
    EXPECT_EQ(PlainIndex(u"\u0440\u0430"_s, "??"), -1);
    // Bytes of one case each do not make a letter.
    EXPECT_EQ(PlainIndex(u"\u0440"_s, "\xD0\x80"), -1);
}

TEST(TextPatterns, FindAValueOfATable) {
    const TextPattern pattern = TextPattern::OfTableValue(u"\uC804\uCC28 tank"_s);
    EXPECT_EQ(pattern.IndexIn("  " + AsTableValue(u"\uC804\uCC28 TANK"_s)), 2);
    EXPECT_EQ(pattern.IndexIn(u"\uC804\uCC28 tank"_s.toUtf8()), -1);
}

TEST(SearchedNames, HoldTheTextOrFitThePattern) {
    Archive archive{.Entries = TableOf({u"Data\\INI\\Tank.ini"_s, u"art\\tank.dds"_s, u"tanks\\a.txt"_s, u""_s}),
                    .FileName = {}};
    EXPECT_EQ(ArchiveSearch::InNames(archive, u"TANK"_s), (std::vector<int>{0, 1, 2}));
    EXPECT_EQ(ArchiveSearch::InNames(archive, u"ini\\t"_s), (std::vector<int>{0}));
    EXPECT_EQ(ArchiveSearch::InNames(archive, u"t*.d?s"_s), (std::vector<int>{1}));
    EXPECT_TRUE(ArchiveSearch::InNames(archive, {}).empty());
    archive.Entries[1].Deleted = true;
    EXPECT_EQ(ArchiveSearch::InNames(archive, u"tank"_s), (std::vector<int>{0, 2}));
}

TEST_F(TextSearching, LooksIntoTextsOnly) {
    const Archive archive = Read({{u"a.INI"_s, "a needle"},
                                  {u"b.txt"_s, "Needle"},
                                  {u"c.dds"_s, "needle"},
                                  {u"d.lua"_s, "needl"},
                                  {u"e.wnd"_s, "NEEDLE"},
                                  {u"ini"_s, "needle"},
                                  {u"f.csf"_s, AsTableValue(u"nEEdle"_s)},
                                  {u"g.csf"_s, "GUI:Needle"},
                                  {u"h.str"_s, AsTableValue(u"needle"_s)}});
    EXPECT_EQ(Found(archive, u"needle"_s), (std::vector<int>{0, 1, 4, 6, 7}));
    EXPECT_EQ(unread_, 0);
    EXPECT_EQ(last_, 100);
}

TEST_F(TextSearching, FindsNoTextAcrossTwoEntries) {
    const Archive archive = Read({{u"a.ini"_s, "nee"}, {u"b.ini"_s, "dle"}, {u"c.ini"_s, "needle"}});
    EXPECT_EQ(Found(archive, u"needle"_s), (std::vector<int>{2}));
}

TEST_F(TextSearching, FindsATextAcrossTheBlocksThatAreRead) {
    constexpr qsizetype block = qsizetype{256} * 1024;
    std::vector<NamedBytes> entries;
    for (qsizetype at = block - 7; at <= block + 1; ++at)
        entries.emplace_back(u"%1.txt"_s.arg(at), QByteArray(at, 'x') + "needle" + QByteArray(block, 'y'));
    entries.emplace_back(u"none.txt"_s, QByteArray(3 * block, 'x'));
    const Archive archive = Read(entries);
    EXPECT_EQ(Found(archive, u"needle"_s), (std::vector<int>{0, 1, 2, 3, 4, 5, 6, 7, 8}));
}

TEST_F(TextSearching, LooksIntoTheFilesOfNewEntriesAndNotIntoDeletedOnes) {
    Archive archive = Read({{u"a.ini"_s, "needle"}, {u"b.ini"_s, "needle"}, {u"c.ini"_s, "x"}});
    archive.Entries[0].Deleted = true;
    archive.Entries[2].IsNew = true;
    archive.Entries[2].SourcePath = world_.WriteFile(u"new.ini"_s, "a needle");
    EXPECT_EQ(Found(archive, u"needle"_s), (std::vector<int>{1, 2}));
}

TEST_F(TextSearching, CountsWhatCannotBeRead) {
    Archive archive = Read({{u"a.ini"_s, "needle"}, {u"b.ini"_s, "needle"}, {u"c.ini"_s, "needle"}});
    archive.Entries[2].IsNew = true;
    archive.Entries[2].SourcePath = world_.Root() + u"\\gone.ini"_s;
    EXPECT_EQ(Found(archive, u"needle"_s), (std::vector<int>{0, 1}));
    EXPECT_EQ(unread_, 1);
    archive.FileName = world_.Root() + u"\\gone.big"_s;
    EXPECT_TRUE(Found(archive, u"needle"_s).empty());
    EXPECT_EQ(unread_, 3);
}

TEST_F(TextSearching, LooksAtWhatIsThereOfACutEntry) {
    Archive archive = Read({{u"a.ini"_s, "a needle"}, {u"b.ini"_s, "needle"}});
    archive.Entries[0].Size = 0x7FFFFFFF;
    archive.Entries[1].Offset = 0x7FFFFF00;
    EXPECT_EQ(Found(archive, u"needle"_s), (std::vector<int>{0}));
}

TEST_F(TextSearching, EndsWhenItIsAskedTo) {
    std::vector<NamedBytes> entries;
    entries.reserve(50);
    for (int i = 0; i < 50; ++i)
        entries.emplace_back(u"%1.ini"_s.arg(i), QByteArray(500000, 'x'));
    const Archive archive = Read(entries);
    stop_.request_stop();
    Found(archive, u"needle"_s);
    EXPECT_EQ(looked_, 0);
}
