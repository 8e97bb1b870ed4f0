// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Where the program itself looks names up without regard to case, it must not do so once an entry.
#include "tests/big/Archives.h"
#include "tests/big/document_support.h"

#include "big/Extraction.h"
#include "platform/Files.h"

#include <algorithm>
#include <ctime>

using namespace Qt::StringLiterals;

namespace {

class ExtractionGrowth : public ArchiveTest {};

} // namespace

TEST_F(ExtractionGrowth, ThousandsOfEntriesIntoOneFolderTakeATimeThatGrowsWithTheirNumber) {
    std::vector<NamedBytes> entries;
    entries.reserve(3000);
    for (int i = 0; i < 3000; ++i)
        entries.emplace_back(u"Data\\file %1.ini"_s.arg(i), "x");
    mBIG::BigFileName = Put(u"my.big"_s, ArchiveOf(entries));
    ASSERT_TRUE(mBIG::ReadBigFile(mBIG::BigFileName));
    const QString source = Put(u"source"_s, "new");
    for (int i = 0; i < 3000; ++i)
        mBIG::BigEntries.push_back({u"Data\\new %1.ini"_s.arg(i), 0, 3, true, false, source});
    const auto secondsFor = [&](std::size_t count, const QString& folder) {
        std::vector<qint32> list;
        Extraction::TakeAll(list);
        std::ranges::sort(list, {}, [](qint32 index) { return index % 3000; });
        list.resize(count);
        const std::clock_t begin = std::clock(); // of this process alone, whatever else runs
        Extraction::DoExtract(list, {.ExtractFolder = At(folder), .ExtractCancelled = false, .RecreateFolders = true},
                              false);
        return static_cast<double>(std::clock() - begin) / CLOCKS_PER_SEC;
    };
    const double first = secondsFor(750, u"few\\"_s);
    const double second = secondsFor(6000, u"many\\"_s);
    EXPECT_EQ(Files::ListFolder(At(u"many\\Data\\*.*"_s)).size(), 6000);
    // Eight times the work; a look at the folder at each entry would make it sixty times the time.
    EXPECT_LT(second, 24 * first + 1);
}
