// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/personal/shellmap_support.h"

#include <QDir>

#include <cmath>
#include <map>

using namespace Qt::StringLiterals;
using mShellMaps::ActivateShellMap;
using mShellMaps::ActivateShellMapBy;

namespace {

const QStringList Stored{u"QvInfos.ini"_s, u"shellmap1.map"_s};

class Activation : public ShellMapTest {
protected:
    /// The number of the map that stands in the first game's place; 0 for none.
    static int Active(GameIndex game = 0) {
        const QString map = Folder(u"ShellMap1\\shellmap1.map"_s, game);
        return Files::FileExists(map) ? World::ReadFile(map).toInt() : 0;
    }

    /// Which map a random number picks.
    static int Picked(float random) {
        ActivateShellMapBy([random] { return random; }, 0);
        return Active();
    }

    /// What a person put into the place by hand.
    void FillByHand(GameIndex game = 0) const {
        Write(Folder(game == 1 ? u"ShellMapMD\\mine.map"_s : u"ShellMap1\\mine.map"_s, game));
    }
};

} // namespace

TEST_F(Activation, LoadPutsTheChosenMapIntoThePlaceWithItsRecord) {
    for (int number = 1; number <= 5; ++number)
        Store(number);
    SetMode(u"Load005"_s);
    ActivateShellMap(0);
    EXPECT_EQ(FilesIn(u"ShellMap1"_s), Stored);
    EXPECT_EQ(Active(), 5);
    EXPECT_TRUE(InMaps().contains(u"shellmap1"_s)) << "made in small letters";
    EXPECT_EQ(FilesIn(u"QvShellMap005"_s), Stored) << "copied and not moved";
}

TEST_F(Activation, TheFirstMiddleEarthHasTheSamePlace) {
    Store(1, 2);
    SetMode(u"Load001"_s, 2);
    ActivateShellMap(2);
    EXPECT_EQ(Active(2), 1);
}

TEST_F(Activation, ForZeroHourThePlaceIsEmptiedAndMadeAndStaysEmpty) {
    for (int number = 1; number <= 5; ++number)
        Store(number, 1);
    Write(Folder(u"QvShellMap005.map"_s, 1));
    for (const QString& mode : {u"Load005"_s, u"Random"_s}) {
        SetMode(mode, 1);
        FillByHand(1);
        ActivateShellMap(1);
        EXPECT_EQ(FilesIn(u"ShellMapMD"_s, 1), QStringList());
        EXPECT_EQ(FilesIn(u"ShellMap1"_s, 1), std::nullopt);
        Files::DeleteFolder(Folder(u"ShellMapMD"_s, 1));
    }
    ActivateShellMap(1);
    EXPECT_TRUE(InMaps(1).contains(u"shellmapmd"_s)) << "made in small letters";
}

TEST_F(Activation, TheSecondMiddleEarthAlwaysGetsNoShellMapWhateverItsSetting) {
    Store(1, 3);
    SetMode(u"Load001"_s, 3);
    FillByHand(3);
    ActivateShellMap(3);
    EXPECT_EQ(InMaps(3), QStringList{u"QvShellMap001"_s});
}

TEST_F(Activation, AnEmptyModeTakesThePlaceAwayWithWhatAPersonPutThere) {
    for (const GameIndex game : {0, 1, 2}) {
        Store(1, game);
        FillByHand(game);
        SetMode({}, game);
        ActivateShellMap(game);
        EXPECT_EQ(InMaps(game), QStringList{u"QvShellMap001"_s}) << game;
    }
}

TEST_F(Activation, AnEmptyModeNeedsNoStoredMap) {
    FillByHand();
    ActivateShellMap(0);
    EXPECT_EQ(InMaps(), QStringList());
}

TEST_F(Activation, ASubfolderInThePlaceStaysWithAllInIt) {
    const QString below = Write(Folder(u"ShellMap1\\sub\\file"_s));
    FillByHand();
    ActivateShellMap(0);
    EXPECT_EQ(FilesIn(u"ShellMap1"_s), QStringList());
    Store(1);
    SetMode(u"Load001"_s);
    ActivateShellMap(0);
    EXPECT_EQ(FilesIn(u"ShellMap1"_s), Stored);
    EXPECT_TRUE(Files::FileExists(below));
}

TEST_F(Activation, APlaceOfAnotherCaseIsTheSame) {
    Store(1);
    Write(Folder(u"SHELLMAP1\\old.map"_s));
    SetMode(u"Load001"_s);
    ActivateShellMap(0);
    EXPECT_EQ(InMaps(), (QStringList{u"QvShellMap001"_s, u"SHELLMAP1"_s}));
    EXPECT_EQ(FilesIn(u"SHELLMAP1"_s), Stored);
    SetMode({});
    ActivateShellMap(0);
    EXPECT_EQ(InMaps(), QStringList{u"QvShellMap001"_s});
}

TEST_F(Activation, TheMapThatStoodThereBeforeGoes) {
    Store(1);
    Store(2);
    Write(Folder(u"QvShellMap001\\only in the first.txt"_s));
    SetMode(u"Load001"_s);
    ActivateShellMap(0);
    SetMode(u"Load002"_s);
    ActivateShellMap(0);
    EXPECT_EQ(FilesIn(u"ShellMap1"_s), Stored);
    EXPECT_EQ(Active(), 2);
}

TEST_F(Activation, FoldersOfAStoredMapAreNotCopied) {
    Store(1);
    Write(Folder(u"QvShellMap001\\sub\\file"_s));
    SetMode(u"Load001"_s);
    ActivateShellMap(0);
    EXPECT_FALSE(Files::FolderExists(Folder(u"ShellMap1\\sub"_s)));
}

TEST_F(Activation, WithoutAStoredMapThePlaceStaysAsItIs) {
    FillByHand();
    for (const QString& mode : {u"Random"_s, u"Load001"_s, u"NoShellMap"_s}) {
        SetMode(mode);
        ActivateShellMap(0);
        EXPECT_EQ(FilesIn(u"ShellMap1"_s), QStringList{u"mine.map"_s}) << mode.toStdString();
    }
    Files::MakeFolders(Folder(u"QvShellMapOld"_s));
    ActivateShellMap(0);
    EXPECT_EQ(FilesIn(u"ShellMap1"_s), QStringList{u"mine.map"_s}) << "a name without a number is passed over";
}

TEST_F(Activation, AChosenMapThatIsGoneLeavesAnEmptyPlace) {
    Store(1);
    FillByHand();
    SetMode(u"Load004"_s);
    ActivateShellMap(0);
    EXPECT_EQ(FilesIn(u"ShellMap1"_s), QStringList());
}

TEST_F(Activation, AFileInTheChosenMapsPlaceIsNoMap) {
    Store(1);
    Write(Folder(u"QvShellMap002"_s));
    SetMode(u"Load002"_s);
    ActivateShellMap(0);
    EXPECT_EQ(FilesIn(u"ShellMap1"_s), QStringList());
}

TEST_F(Activation, ANumberThatCanNotBeFilledOutToThreeCharactersGivesAnEmptyPlace) {
    Store(1);
    Write(Folder(u"QvShellMap1000\\shellmap1.map"_s));
    Write(Folder(u"QvShellMapellMap\\shellmap1.map"_s));
    for (const QString& mode : {u"NoShellMap"_s, u"Load1000"_s, u"Load 001"_s}) {
        FillByHand();
        SetMode(mode);
        ActivateShellMap(0);
        EXPECT_EQ(FilesIn(u"ShellMap1"_s), QStringList()) << mode.toStdString();
    }
    SetMode(u"NoShellMap"_s, 1);
    Store(1, 1);
    ActivateShellMap(1);
    EXPECT_EQ(FilesIn(u"shellmapmd"_s, 1), QStringList());
}

TEST_F(Activation, ANumberOfFewerCharactersIsFilledOut) {
    Store(0);
    Store(7);
    SetMode(u"Load7"_s);
    ActivateShellMap(0);
    EXPECT_EQ(Active(), 7);
    for (const QString& mode : {u"Load"_s, u"Lo"_s}) {
        SetMode(mode);
        ActivateShellMap(0);
        EXPECT_EQ(Bytes(u"ShellMap1\\shellmap1.map"_s), QByteArray("0")) << "no number is 000";
    }
}

TEST_F(Activation, AnyOtherModeLosesItsFirstFourCharacters) {
    Store(42);
    SetMode(u"xxxx042"_s);
    ActivateShellMap(0);
    EXPECT_EQ(Active(), 42);
    SetMode(u"random"_s);
    ActivateShellMap(0);
    EXPECT_EQ(Active(), 0) << "the word counts in its own letters only";
}

TEST_F(Activation, AModeNeverNamesAFolderOutsideTheStore) {
    Store(1);
    Files::MakeFolders(Folder(u"QvShellMap"_s));
    Write(Folder(u"secret.txt"_s));
    for (const QString& mode : {u"Load\\.."_s, u"Load/.."_s}) {
        SetMode(mode);
        ActivateShellMap(0);
        EXPECT_EQ(FilesIn(u"ShellMap1"_s), QStringList()) << mode.toStdString();
    }
}

TEST_F(Activation, RandomPicksEachMapEquallyOften) {
    constexpr int highest = 5;
    for (int number = 1; number <= highest; ++number)
        Store(number);
    SetMode(u"Random"_s);
    std::map<int, int> counts;
    constexpr int rounds = 50;
    for (int round = 0; round < rounds; ++round)
        ++counts[Picked((static_cast<float>(round) + 0.5F) / rounds)];
    for (int number = 1; number <= highest; ++number)
        EXPECT_EQ(counts[number], rounds / highest) << number;
    EXPECT_EQ(Picked(0), 1);
    EXPECT_EQ(Picked(std::nextafter(1.0F, 0.0F)), highest);
}

TEST_F(Activation, RandomWithOneMapTakesIt) {
    Store(1);
    SetMode(u"Random"_s);
    for (int round = 0; round < 10; ++round) {
        ActivateShellMap(0);
        EXPECT_EQ(Active(), 1);
    }
}

TEST_F(Activation, RandomNeverPicksAboveTheHighestNumberWhereSinglePrecisionRoundsUp) {
    Store(512);
    SetMode(u"Random"_s);
    EXPECT_EQ(Picked(std::nextafter(1.0F, 0.0F)), 512);
}

TEST_F(Activation, RandomMayPickANumberWhoseFolderIsMissing) {
    Store(2);
    SetMode(u"Random"_s);
    EXPECT_EQ(Picked(0), 0);
    EXPECT_EQ(Picked(0.5F), 2);
    EXPECT_EQ(FilesIn(u"ShellMap1"_s), Stored);
}

TEST_F(Activation, RandomByTheClockPicksAMapOfTheStore) {
    Store(1);
    Store(2);
    Store(3);
    SetMode(u"Random"_s);
    for (int round = 0; round < 10; ++round) {
        ActivateShellMap(0);
        EXPECT_GE(Active(), 1);
        EXPECT_LE(Active(), 3);
    }
}

TEST_F(Activation, TheHighestNumberIsThatOfTheLastNameWithOne) {
    Store(3);
    Files::MakeFolders(Folder(u"QvShellMapOld"_s));
    Files::MakeFolders(Folder(u"QvShellMap9e9"_s));
    SetMode(u"Random"_s);
    EXPECT_EQ(Picked(0.99F), 3);
}

TEST_F(Activation, AWriteProtectedFileInThePlaceStaysAndNothingElseStops) {
    Store(1);
    FillByHand();
    const QString kept = Write(Folder(u"ShellMap1\\kept.txt"_s));
    Protect(kept);
    SetMode(u"Load001"_s);
    ActivateShellMap(0);
    EXPECT_EQ(FilesIn(u"ShellMap1"_s), (QStringList{u"kept.txt"_s, u"QvInfos.ini"_s, u"shellmap1.map"_s}));
    SetMode({});
    ActivateShellMap(0);
    EXPECT_EQ(FilesIn(u"ShellMap1"_s), QStringList{u"kept.txt"_s});
    Protect(kept, false);
}

TEST_F(Activation, AGameThatIsNoneOrNotInstalledIsLeftAlone) {
    Store(1);
    FillByHand();
    EXPECT_NO_THROW(ActivateShellMap(-1));
    EXPECT_NO_THROW(ActivateShellMap(4));
    const QString before = QDir::currentPath();
    QDir::setCurrent(Paths::ToNative(EntryOf(0).InstallPath));
    Game[0].InstallPath.clear();
    ActivateShellMap(0); // would work on the current folder
    QDir::setCurrent(before);
    world_.Start();
    EXPECT_EQ(FilesIn(u"ShellMap1"_s), QStringList{u"mine.map"_s});
}

TEST_F(Activation, AGameWithoutAMapsFolderIsLeftAlone) {
    for (const QString& mode : {QString(), u"Random"_s, u"Load001"_s}) {
        SetMode(mode);
        ActivateShellMap(0);
        EXPECT_FALSE(Files::FolderExists(EntryOf(0).InstallPath + u"Maps"_s)) << mode.toStdString();
    }
}
