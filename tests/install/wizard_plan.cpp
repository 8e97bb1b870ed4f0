// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// What would go where, told without writing anything.
#include "tests/install/InstallTest.h"

#include <limits>

using namespace Qt::StringLiterals;

namespace {

using Effect = PlannedFile::Effect;

class PlanTest : public InstallTest {
protected:
    InstallPlan Plan(const QString& path) {
        Analyse(path);
        TickAll();
        return InstallPlans::Make(AddFiles::Source, 0, zip_);
    }

    InstallPlan ZipPlan(const std::vector<Part>& parts) { return Plan(PutZip(parts)); }

    static std::vector<Effect> Effects(const PlannedItem& item) {
        std::vector<Effect> effects;
        for (const PlannedFile& file : item.Files)
            effects.push_back(file.What);
        return effects;
    }
};

} // namespace

TEST_F(PlanTest, ALooseMapTellsWhatTravelsWithIt) {
    Put(u"Bay\\map.ini"_s, "123");
    Files::DeleteFolder(Maps());
    const InstallPlan plan = Plan(Put(u"Bay\\Bay.map"_s, "12345"));
    ASSERT_EQ(plan.Items.size(), 1U);
    EXPECT_EQ(plan.Items[0].Folder, Maps() + u"Bay\\"_s);
    EXPECT_EQ(plan.Items[0].Files.size(), 2U);
    EXPECT_EQ(plan.Items[0].Files[1].Target, Maps() + u"Bay\\map.ini"_s);
    EXPECT_EQ(plan.Size, 8);
    EXPECT_FALSE(Files::FolderExists(Maps()));
}

TEST_F(PlanTest, FilesOfALooseMapAreComparedByTheirBytes) {
    Put(u"Bay\\same.txt"_s, "12");
    Put(u"Bay\\other.txt"_s, "12");
    Put(u"Bay\\longer.txt"_s, "123");
    const QString path = Put(u"Bay\\Bay.map"_s);
    InstallFile(path);
    Put(u"Bay\\other.txt"_s, "13");
    Put(u"Bay\\longer.txt"_s, "1234");
    Put(u"Bay\\new.txt"_s);
    EXPECT_EQ(Effects(Plan(path).Items[0]),
              (std::vector{Effect::Same, Effect::Replaces, Effect::New, Effect::Replaces, Effect::Same}));
}

TEST_F(PlanTest, OnlyWhatIsTickedIsPlanned) {
    AnalyseZip({{.Name = "a.rep", .Content = "1"}, {.Name = "b.rep", .Content = "22"}});
    AddFiles::Source.InstallRecords[1].Selected = true;
    const InstallPlan plan = InstallPlans::Make(AddFiles::Source, 0, zip_);
    ASSERT_EQ(plan.Items.size(), 1U);
    EXPECT_EQ(plan.Items[0].Number, 1U);
    EXPECT_EQ(plan.Size, 2);
}

TEST_F(PlanTest, ShellMapsGetTheirNumbersOneBehindTheOther) {
    Files::MakeFolders(Own() + u"Maps\\QvShellMap997"_s);
    const InstallPlan plan =
        ZipPlan({{.Name = "a/shellmap1.map"}, {.Name = "b/shellmap1.map"}, {.Name = "c/shellmap1.map"}});
    EXPECT_EQ(plan.Items[0].Folder, Own() + u"Maps\\QvShellMap998\\"_s);
    EXPECT_EQ(plan.Items[1].Folder, Own() + u"Maps\\QvShellMap999\\"_s);
    EXPECT_TRUE(plan.Items[2].Refusal.contains(u"1000"_s)) << plan.Items[2].Refusal.toStdString();
    EXPECT_EQ(plan.Items[0].IniFile, Own() + u"Maps\\QvShellMap998\\QvInfos.ini"_s);
    EXPECT_EQ(Names(Own() + u"Maps"_s), QStringList{u"QvShellMap997"_s});
}

TEST_F(PlanTest, WhatMayNotBeWrittenIsRefused) {
    const InstallPlan plan =
        ZipPlan({{.Name = "a/nul.rep"}, {.Name = "b/..map"}, {.Name = "c/m.map"}, {.Name = "c/x:y"}});
    EXPECT_EQ(Effects(plan.Items[0]), std::vector{Effect::Refused});
    EXPECT_FALSE(plan.Items[1].Refusal.isEmpty());
    EXPECT_EQ(Effects(plan.Items[2]), (std::vector{Effect::New, Effect::Refused}));
}

TEST_F(PlanTest, AModIsKnownAsTheGamesOwnByItsName) {
    const InstallPlan plan = ZipPlan({{.Name = "x/ini.BIG"}, {.Name = "mine.big"}});
    EXPECT_TRUE(plan.Items[0].IsOwnArchive);
    EXPECT_FALSE(plan.Items[1].IsOwnArchive);
    EXPECT_EQ(plan.Items[1].IniFile, Own() + u"mine.ini"_s);
}

TEST_F(PlanTest, SizesThatAddUpToMoreThanThereIsAreTheMostThereIs) {
    constexpr quint64 most = std::numeric_limits<qint64>::max();
    const InstallPlan plan = ZipPlan({{.Name = "a.rep", .IsWide = true, .Size = most},
                                      {.Name = "b.rep", .IsWide = true, .Size = most},
                                      {.Name = "s/shellmap1.map", .IsWide = true, .Size = most}});
    EXPECT_EQ(plan.Size, std::numeric_limits<qint64>::max());
    EXPECT_TRUE(plan.IsDense);
}

TEST_F(PlanTest, DenseIsWhatIsLargeAndPackedFiveHundredfold) {
    constexpr quint64 limit = 64ULL * 1024 * 1024;
    const auto isDense = [&](quint64 size, quint64 packed) {
        return ZipPlan({{.Name = "a.rep", .Size = size, .Packed = packed}}).IsDense;
    };
    EXPECT_FALSE(isDense(limit, 1));
    EXPECT_TRUE(isDense(limit + 1, 1));
    EXPECT_FALSE(isDense(100'000'000, 200'000));
    EXPECT_TRUE(isDense(100'000'001, 200'000));
    std::vector<Part> many;
    many.reserve(65);
    for (int number = 0; number < 65; ++number)
        many.push_back({.Name = QByteArray::number(number) + ".rep", .Size = 1024 * 1024, .Packed = 100});
    EXPECT_TRUE(ZipPlan(many).IsDense);
}

TEST_F(PlanTest, TheNextNumberIsTheLastNamesPlusOne) {
    EXPECT_EQ(InstallPlans::NextShellMapNumber({}), 1);
    EXPECT_EQ(InstallPlans::NextShellMapNumber({u"QvShellMap009"_s, u"QvShellMap003"_s}), 10);
    EXPECT_EQ(InstallPlans::NextShellMapNumber({u"QvShellMap009"_s, u"QvShellMapabc"_s}), 0);
    EXPECT_EQ(InstallPlans::NextShellMapNumber({u"qvshellmap009"_s, u"other"_s}), 1);
}
