// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The numbers of a save at their bounds, without a byte of an archive.
#include "big/format/WritePlan.h"
#include "tests/support/Raised.h"

#include <gtest/gtest.h>

#include <limits>

using namespace Qt::StringLiterals;
using Archives::Placement;
using WritePlan::Item;
using WritePlan::Origin;

namespace {

constexpr qint64 mostPosition = std::numeric_limits<qint32>::max();

/// Variant 2 is not aligned: two names of one byte end the directory at 36, and the first-file field is 44.
constexpr qint64 firstFile = 44;

WritePlan::Plan PlanOf(const std::vector<Item>& items, Placement placement, qint32 version = 2) {
    return WritePlan::Make(Layout::VariantOf(version), items, placement);
}

OffsetShift::Shift ShiftOf(const std::vector<Item>& items, qint32 version = 2) {
    return PlanOf(items, Placement::Told, version).ShiftOf(Layout::VariantOf(version), items);
}

} // namespace

TEST(WritePlan, AnExactEntryMayEndAtTheLastPosition) {
    const qint64 most = mostPosition - firstFile;
    const auto exact = PlanOf({{1, most, Origin::OldArchive}, {1, 0, Origin::OldArchive}}, Placement::Exact);
    EXPECT_TRUE(exact.Places[0].Fits);
    EXPECT_EQ(exact.Places[1].Offset, mostPosition);
    const auto beyond = PlanOf({{1, most + 1, Origin::OldArchive}, {1, 0, Origin::OldArchive}}, Placement::Exact);
    EXPECT_FALSE(beyond.Places[0].Fits);
    EXPECT_EQ(beyond.Places[1].Offset, firstFile) << "A sum beyond it is not stored.";
}

TEST(WritePlan, AToldEntryMayEndAtTheLastPosition) {
    const qint64 most = mostPosition - (firstFile - 1);
    const auto told = PlanOf({{1, most, Origin::File}, {1, 0, Origin::File}}, Placement::Told);
    EXPECT_TRUE(told.Places[0].Fits);
    EXPECT_EQ(told.Places[0].Data, firstFile - 1);
    EXPECT_EQ(told.Places[0].Bytes, most);
    EXPECT_EQ(told.Length, mostPosition);
    const auto beyond = PlanOf({{1, most + 1, Origin::File}, {1, 0, Origin::File}}, Placement::Told);
    EXPECT_FALSE(beyond.Places[0].Fits);
    EXPECT_EQ(beyond.Places[0].Bytes, 0);
}

TEST(WritePlan, WhatIsRepeatedBehindAFileAndDoesNotFitIsAFailureForAFileOnly) {
    const qint64 half = 1'500'000'000;
    EXPECT_TRUE(PlanOf({{1, half, Origin::File}, {1, 0, Origin::OldArchive}}, Placement::Told).Places[1].Fits);
    EXPECT_FALSE(PlanOf({{1, half, Origin::File}, {1, 0, Origin::File}}, Placement::Told).Places[1].Fits);
    EXPECT_TRUE(PlanOf({{1, half, Origin::OldArchive}, {1, 0, Origin::OldArchive}}, Placement::Told).Places[1].Fits);
}

TEST(WritePlan, AFileThatIsGoneEmptiesWhatWouldBeRepeated) {
    const auto plan = PlanOf({{1, 7, Origin::File}, {1, 0, Origin::GoneFile}}, Placement::Told);
    EXPECT_EQ(plan.Places[1].Bytes, 0);
    EXPECT_EQ(PlanOf({{1, 7, Origin::File}, {1, 0, Origin::File}}, Placement::Told).Places[1].Bytes, 7);
}

TEST(WritePlan, AnEntryOfWhichNothingIsPutIsNotShifted) {
    const auto shift = ShiftOf({{1, 100, Origin::OldArchive}, {1, mostPosition, Origin::OldArchive}});
    EXPECT_EQ(shift.Count, 1);
    EXPECT_EQ(shift.Distances, (std::vector<qint64>{-1, 0}));
}

TEST(WritePlan, AShiftTellsTheDistanceOfItsFirstEntry) {
    const auto shift = ShiftOf({{1, 5, Origin::OldArchive}, {1, 0, Origin::OldArchive}, {1, 3, Origin::OldArchive}});
    EXPECT_EQ(shift.Distances, (std::vector<qint64>{-1, 0, 4}));
    EXPECT_EQ(shift.Count, 2);
    EXPECT_EQ(shift.First, -1);
}

TEST(WritePlan, WithoutAShiftNothingLooksLikeAnExactArchive) {
    const auto shift = ShiftOf({{3, 5, Origin::OldArchive}, {1, 2, Origin::OldArchive}}, 0);
    EXPECT_TRUE(shift.IsNone());
    EXPECT_FALSE(shift.ExactFits);
}

TEST(WritePlan, AnArchiveHasAsManyEntriesAsAReaderTakes) {
    Archive archive;
    archive.Entries.resize(Archives::MaximumEntries);
    EXPECT_EQ(MessageOf([&] { WritePlan::CheckCount(archive, u"a.big"_s); }), QString());
    archive.Entries.emplace_back();
    EXPECT_TRUE(MessageOf([&] { WritePlan::CheckCount(archive, u"a.big"_s); }).startsWith(u"a.big: "_s));
}
