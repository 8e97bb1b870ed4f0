// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tools/demoworld/Contents.h"
#include "tests/support/Printing.h"

#include <gtest/gtest.h>

#include <QSet>

#include <algorithm>

using namespace Demo;
using namespace Qt::StringLiterals;

namespace {

constexpr Content AllContents[]{Content::Definitions,    Content::Textures,      Content::Effects, Content::Music,
                                Content::Models,         Content::Terrain,       Content::Windows, Content::Maps,
                                Content::EnglishStrings, Content::FrenchStrings, Content::Shaders, Content::Everything};

QByteArray FakeJpeg(const Picture&) {
    return "jpeg";
}

} // namespace

TEST(SampleContents, NamesAreUniqueWhateverTheirCase) {
    const Stock stock = MakeStock(true, FakeJpeg);
    for (const Content content : AllContents) {
        QSet<QString> names;
        for (const ArchiveEntry& entry : MakeEntries(stock, content, 0, 500, 3))
            names.insert(entry.Name.toLower());
        EXPECT_EQ(names.size(), 500) << static_cast<int>(content);
    }
}

TEST(SampleContents, EntriesGoOnUntilBothTheSizeAndTheCountAreReached) {
    const Stock stock = MakeStock(true, FakeJpeg);
    const std::vector<ArchiveEntry> bySize = MakeEntries(stock, Content::Definitions, 5000, 1, 3);
    qint64 size = 0;
    for (const ArchiveEntry& entry : bySize)
        size += entry.Data.size();
    EXPECT_GE(size, 5000);
    EXPECT_LT(size - bySize.back().Data.size(), 5000);
    EXPECT_EQ(MakeEntries(stock, Content::Definitions, 1, 7, 3).size(), 7U);
}

TEST(SampleContents, NoNameLeavesItsFolderOrStartsWithASeparator) {
    const Stock stock = MakeStock(true, FakeJpeg);
    for (const Content content : AllContents) {
        for (const ArchiveEntry& entry : MakeEntries(stock, content, 0, 200, 3)) {
            EXPECT_FALSE(entry.Name.contains(u".."_s) || entry.Name.startsWith(u'\\') || entry.Name.startsWith(u'/'));
            EXPECT_FALSE(entry.Data.isEmpty());
        }
    }
}

TEST(SampleContents, TheStockHasJpegFilesOnlyWithAnEncoder) {
    const auto jpegCount = [](const Stock& stock) {
        return std::ranges::count(stock.Pictures, u".jpg"_s, &Asset::Extension);
    };
    EXPECT_EQ(jpegCount(MakeStock(true, FakeJpeg)), 1);
    EXPECT_EQ(jpegCount(MakeStock(true, {})), 0);
}

TEST(SampleContents, StringTablesAreInTheLanguageOfTheirFolder) {
    const Stock stock = MakeStock(true, FakeJpeg);
    for (quint64 seed = 1; seed < 4; ++seed) {
        const ArchiveEntry english = MakeEntries(stock, Content::EnglishStrings, 0, 1, seed).front();
        EXPECT_EQ(english.Name, u"Data\\English\\generals.csf"_s);
        EXPECT_EQ(english.Data.at(20), 0);
        const ArchiveEntry french = MakeEntries(stock, Content::FrenchStrings, 0, 1, seed).front();
        EXPECT_EQ(french.Name, u"Data\\French\\generals.csf"_s);
        EXPECT_EQ(french.Data.at(20), 3);
    }
}
