// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/personal/shellmap_support.h"

using namespace Qt::StringLiterals;
using mShellMaps::RemoveShellMap;

namespace {

class Removal : public ShellMapTest {
protected:
    /// What each stored map holds in its one file, from 1 on.
    static QList<QByteArray> Held() {
        QList<QByteArray> held;
        for (int number = 1; Files::FolderExists(Folder(Name(number))); ++number)
            held += Bytes(Name(number) + u"\\shellmap1.map"_s);
        return held;
    }

    void StoreUpTo(int highest) const {
        for (int number = 1; number <= highest; ++number)
            Store(number);
    }
};

} // namespace

TEST_F(Removal, TheOnlyShellMapGoesWithItsFolder) {
    Store(1);
    RemoveShellMap(1, 0);
    EXPECT_EQ(InMaps(), QStringList());
    EXPECT_EQ(GameFiles::HighestShellMapNumber(0), std::nullopt);
}

TEST_F(Removal, TheHighestGoesAndTheOthersStayWhereTheyAre) {
    StoreUpTo(3);
    Write(Folder(u"QvShellMap003\\sub\\file"_s));
    RemoveShellMap(3, 0);
    EXPECT_EQ(Held(), (QList<QByteArray>{"1", "2"}));
    EXPECT_EQ(InMaps(), (QStringList{Name(1), Name(2)}));
}

TEST_F(Removal, TheFirstOfThreeGoesAndTheOthersMoveOneNumberDown) {
    StoreUpTo(3);
    RemoveShellMap(1, 0);
    EXPECT_EQ(Held(), (QList<QByteArray>{"2", "3"}));
    EXPECT_EQ(InMaps(), (QStringList{Name(1), Name(2)})) << "and nothing is made for the number 0";
}

TEST_F(Removal, OneInTheMiddleLeavesTheLowerOnes) {
    StoreUpTo(5);
    RemoveShellMap(3, 0);
    EXPECT_EQ(Held(), (QList<QByteArray>{"1", "2", "4", "5"}));
}

TEST_F(Removal, NumbersOfTwoDigitsMoveToo) {
    StoreUpTo(11);
    RemoveShellMap(9, 0);
    EXPECT_EQ(Held(), (QList<QByteArray>{"1", "2", "3", "4", "5", "6", "7", "8", "10", "11"}));
}

TEST_F(Removal, EachGameHasItsOwnStore) {
    Store(1);
    Store(1, 1);
    RemoveShellMap(1, 1);
    EXPECT_EQ(InMaps(), QStringList{Name(1)});
    EXPECT_EQ(InMaps(1), QStringList());
}

TEST_F(Removal, AFileWithoutANamesakeInTheNextFolderStaysBehind) {
    StoreUpTo(3);
    Write(Folder(u"QvShellMap001\\a.txt"_s));
    Write(Folder(u"QvShellMap002\\b.txt"_s));
    RemoveShellMap(1, 0);
    EXPECT_EQ(FilesIn(Name(1)), (QStringList{u"b.txt"_s, u"QvInfos.ini"_s, u"shellmap1.map"_s}));
    EXPECT_EQ(FilesIn(Name(2)), (QStringList{u"b.txt"_s, u"QvInfos.ini"_s, u"shellmap1.map"_s}))
        << "the third has no such file";
}

TEST_F(Removal, WriteProtectedFilesGoByForce) {
    StoreUpTo(1);
    Protect(Folder(u"QvShellMap001\\shellmap1.map"_s));
    RemoveShellMap(1, 0);
    EXPECT_EQ(InMaps(), QStringList());
    StoreUpTo(2);
    Protect(Folder(u"QvShellMap001\\shellmap1.map"_s));
    Protect(Folder(u"QvShellMap002\\shellmap1.map"_s));
    RemoveShellMap(1, 0);
    EXPECT_EQ(Held(), QList<QByteArray>{"2"});
}

TEST_F(Removal, SubfoldersStayWhereTheyAreAndKeepTheirFolder) {
    StoreUpTo(3);
    const QString first = Write(Folder(u"QvShellMap001\\sub\\file"_s));
    const QString last = Write(Folder(u"QvShellMap003\\sub\\file"_s));
    RemoveShellMap(1, 0);
    EXPECT_TRUE(Files::FileExists(first));
    EXPECT_TRUE(Files::FileExists(last)) << "it belongs to a shell map that was not deleted";
    EXPECT_EQ(Bytes(u"QvShellMap001\\shellmap1.map"_s), QByteArray("2"));
    EXPECT_EQ(FilesIn(Name(3)), QStringList());
}

TEST_F(Removal, AFileThatCanNotBeMovedIsNotLost) {
    StoreUpTo(4);
    // Over a write-protected file nothing is copied, so each of that name stays where it is.
    const QString held = Folder(u"QvShellMap002\\shellmap1.map"_s);
    Protect(held);
    RemoveShellMap(1, 0);
    EXPECT_EQ(Bytes(u"QvShellMap001\\shellmap1.map"_s), QByteArray("2"));
    EXPECT_EQ(Bytes(u"QvShellMap002\\shellmap1.map"_s), QByteArray("2"));
    EXPECT_EQ(Bytes(u"QvShellMap003\\shellmap1.map"_s), QByteArray("3"));
    EXPECT_EQ(Bytes(u"QvShellMap004\\shellmap1.map"_s), QByteArray("4"));
    EXPECT_EQ(FilesIn(Name(4)), QStringList{u"shellmap1.map"_s}) << "the record was moved";
    Protect(held, false);
}

TEST_F(Removal, AGapInTheNumbersLosesNothing) {
    Store(1);
    Store(2);
    Store(4);
    RemoveShellMap(1, 0);
    EXPECT_EQ(Bytes(u"QvShellMap001\\shellmap1.map"_s), QByteArray("2"));
    EXPECT_EQ(Bytes(u"QvShellMap004\\shellmap1.map"_s), QByteArray("4"));
}

TEST_F(Removal, ANumberWithoutAFolderRemovesNothing) {
    StoreUpTo(2);
    const QString other = Write(Folder(u"QvShellMap0-5\\file"_s));
    RemoveShellMap(-5, 0);
    EXPECT_TRUE(Files::FileExists(other));
    for (const qint16 number : {qint16(0), qint16(-1), qint16(-32768), qint16(3), qint16(1000), qint16(32767)})
        RemoveShellMap(number, 0);
    EXPECT_EQ(Held(), (QList<QByteArray>{"1", "2"}));
    EXPECT_NO_THROW(RemoveShellMap(1, -1));
    EXPECT_NO_THROW(RemoveShellMap(1, 4));
    EXPECT_NO_THROW(RemoveShellMap(1, 1)) << "a game without any";
}

TEST_F(Removal, AFileOfAShellMapsNameIsNoShellMap) {
    StoreUpTo(2);
    const QString file = Write(Folder(u"QvShellMap003"_s));
    RemoveShellMap(1, 0);
    EXPECT_EQ(Held(), QList<QByteArray>{"2"});
    EXPECT_TRUE(Files::FileExists(file));
}

TEST_F(Removal, NamesWithoutANumberAreLeftAlone) {
    StoreUpTo(2);
    Write(Folder(u"QvShellMapOld\\shellmap1.map"_s));
    RemoveShellMap(1, 0);
    EXPECT_EQ(InMaps(), (QStringList{Name(1), u"QvShellMapOld"_s}));
    EXPECT_EQ(FilesIn(u"QvShellMapOld"_s), QStringList{u"shellmap1.map"_s});
}
