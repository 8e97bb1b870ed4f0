// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "big/document/FileList.h"
#include "tests/big/document_support.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// A folder of a table, shown.
class Shown {
public:
    Shown(std::vector<BigEntry> table, const QString& folderKey) : table_(std::move(table)) {
        tree_.CreateDirs(u"a.big"_s, table_);
        Show(folderKey);
    }

    Shown(const QStringList& names, const QString& folderKey) : Shown(TableOf(names), folderKey) {}

    void Show(const QString& folderKey) {
        List.ShowFolder(tree_, tree_.Find(folderKey), folderKey, table_, u"Folder"_s);
    }

    [[nodiscard]] QStringList Texts() const { return ::Texts(List); }

    FileList List;

private:
    std::vector<BigEntry> table_;
    FolderTree tree_;
};

std::vector<BigEntry> Sized(const std::vector<std::pair<QString, qint32>>& entries) {
    std::vector<BigEntry> table;
    table.reserve(entries.size());
    for (const auto& [name, size] : entries)
        table.push_back(EntryOf(name, size));
    return table;
}

} // namespace

TEST(FileList, FoldersComeFirstThenFilesInTableOrder) {
    const Shown shown({u"z.txt"_s, u"dir\\inside.txt"_s, u"a.txt"_s, u"abc\\inside.txt"_s}, {});
    EXPECT_EQ(shown.Texts(), QStringList({u"dir"_s, u"abc"_s, u"z.txt"_s, u"a.txt"_s}));
}

TEST(FileList, KeysPointBackIntoTreeAndTable) {
    const Shown shown({u"z.txt"_s, u"dir\\inside.txt"_s, u"a.txt"_s}, {});
    EXPECT_EQ(shown.List.Key(0), u"DIR:2"_s);
    EXPECT_EQ(shown.List.Key(1), u"BIG:0"_s);
    EXPECT_EQ(shown.List.Key(2), u"BIG:2"_s);
    EXPECT_EQ(shown.List.Row(0).Index, 2);
    EXPECT_TRUE(shown.List.Row(0).IsFolder);
}

TEST(FileList, AFolderIsShownInLowerCaseAndItsFilesAsStored) {
    const QStringList names{u"Data\\X.ini"_s, u"other"_s};
    const Shown inside(names, u"data\\"_s);
    EXPECT_EQ(inside.Texts(), QStringList({u"X.ini"_s}));
    const Shown root(names, {});
    EXPECT_EQ(root.Texts(), QStringList({u"data"_s, u"other"_s}));
}

TEST(FileList, ColumnsHoldTypeAndSize) {
    const Shown shown(Sized({{u"a.b.INI"_s, 12345}, {u"readme"_s, 0}, {u"d\\x"_s, 1}}), {});
    EXPECT_EQ(shown.List.Type(0), u"Folder"_s);
    EXPECT_EQ(shown.List.SizeText(0), QString());
    EXPECT_EQ(shown.List.Type(1), u"INI"_s);
    EXPECT_EQ(shown.List.SizeText(1), u"12345"_s);
    EXPECT_EQ(shown.List.Type(2), u"readme"_s) << "A name without a full stop is its own type.";
    EXPECT_EQ(shown.List.SizeText(2), u"0"_s);
}

TEST(FileList, TheTypeFollowsTheLastFullStopOfTheWholeName) {
    const Shown shown({u"v1.2\\readme"_s, u"dir\\file"_s}, u"v1.2\\"_s);
    EXPECT_EQ(shown.Texts(), QStringList({u"readme"_s}));
    EXPECT_EQ(shown.List.Type(0), u"2\\readme"_s);
    const Shown plain({u"v1.2\\readme"_s, u"dir\\file"_s}, u"dir\\"_s);
    EXPECT_EQ(plain.List.Type(0), u"dir\\file"_s);
}

TEST(FileList, ANewEntrysRowIsMarked) {
    std::vector<BigEntry> table = TableOf({u"a"_s, u"b"_s});
    table[1].IsNew = true;
    const Shown shown(table, {});
    EXPECT_FALSE(shown.List.Row(0).IsNew);
    EXPECT_TRUE(shown.List.Row(1).IsNew);
}

TEST(FileList, ATableOfOneRecordShowsItsFoldersAndNoFiles) {
    const Shown file({u"only.txt"_s}, {});
    EXPECT_EQ(file.List.Count(), 0);
    const Shown folder({u"data\\only.txt"_s}, {});
    EXPECT_EQ(folder.Texts(), QStringList({u"data"_s}));
    const Shown inside({u"data\\only.txt"_s}, u"data\\"_s);
    EXPECT_EQ(inside.List.Count(), 0);
}

TEST(FileList, AnEmptyTableShowsNothing) {
    const Shown shown(QStringList(), {});
    EXPECT_EQ(shown.List.Count(), 0);
}

TEST(FileList, AnEmptyNameNeverShows) {
    const QStringList names{{}, u"a.txt"_s, u"d\\b.txt"_s};
    EXPECT_EQ(Shown(names, {}).Texts(), QStringList({u"d"_s, u"a.txt"_s}));
    EXPECT_EQ(Shown(names, u"d\\"_s).Texts(), QStringList({u"b.txt"_s}));
}

TEST(FileList, DeletedRecordsAreLeftOut) {
    std::vector<BigEntry> table = TableOf({u"a"_s, u"b"_s, u"c"_s});
    table[1].Deleted = true;
    EXPECT_EQ(Shown(table, {}).Texts(), QStringList({u"a"_s, u"c"_s}));
}

TEST(FileList, ANameThatEndsInABackslashHasEmptyTextInItsFolder) {
    const Shown shown({u"dir\\"_s, u"x"_s}, u"dir\\"_s);
    ASSERT_EQ(shown.List.Count(), 1);
    EXPECT_EQ(shown.List.Text(0), QString());
    EXPECT_EQ(shown.List.Key(0), u"BIG:0"_s);
}

TEST(FileList, ABackslashAtTheFirstCharacterIsNoFolderOfTheRoot) {
    const Shown shown({u"\\odd"_s, u"a\\deep"_s}, {});
    EXPECT_EQ(shown.Texts(), QStringList({{}, u"a"_s, u"\\odd"_s}));
}

TEST(FileList, ABackslashRightBehindTheKeyDoesNotCount) {
    const Shown shown({u"a\\\\b"_s, u"a\\c\\d"_s, u"a\\e"_s}, u"a\\"_s);
    EXPECT_EQ(shown.Texts(), QStringList({{}, u"c"_s, u"\\b"_s, u"e"_s}));
}

// The key "b\" stands at the second character of "ab\x": the backslash lies at the third, where the key's own length
// still allows it, and the text is cut by length.
TEST(FileList, TheKeyCountsAnywhereInTheNameAndTheTextIsCutByLength) {
    const Shown shown({u"ab\\x"_s, u"b\\y"_s}, u"b\\"_s);
    EXPECT_EQ(shown.Texts(), QStringList({u"\\x"_s, u"y"_s}));
}

TEST(FileList, ABackslashTooFarBehindKeepsANameOutThoughItHoldsTheKey) {
    const Shown shown({u"abc\\b\\x"_s, u"b\\y"_s}, u"b\\"_s);
    EXPECT_EQ(shown.Texts(), QStringList({u"y"_s}));
}

TEST(FileList, TheKeyIsFoundWithoutRegardToCase) {
    const Shown shown({u"\u00C9TE\\x"_s, u"DaTa\\y"_s}, u"\u00E9te\\"_s);
    EXPECT_EQ(shown.Texts(), QStringList({u"x"_s}));
}

TEST(FileList, AMissingNodeShowsNoFolders) {
    FileList list;
    list.ShowFolder(FolderTree(), FolderTree::None, {}, TableOf({u"a"_s, u"b"_s}), u"Folder"_s);
    EXPECT_EQ(Texts(list), QStringList({u"a"_s, u"b"_s}));
}

TEST(FileList, AHeaderGoesFromNoOrderToAscendingAndThenBackAndForth) {
    Shown shown({u"b"_s, u"C"_s, u"a"_s}, {});
    EXPECT_EQ(shown.List.OrderOf(FileList::Filename), FileList::Order::None);
    shown.List.SortBy(FileList::Filename);
    EXPECT_EQ(shown.List.OrderOf(FileList::Filename), FileList::Order::Ascending);
    EXPECT_EQ(shown.Texts(), QStringList({u"a"_s, u"b"_s, u"C"_s}));
    shown.List.SortBy(FileList::Filename);
    EXPECT_EQ(shown.List.OrderOf(FileList::Filename), FileList::Order::Descending);
    EXPECT_EQ(shown.Texts(), QStringList({u"C"_s, u"b"_s, u"a"_s}));
    shown.List.SortBy(FileList::Filename);
    EXPECT_EQ(shown.List.OrderOf(FileList::Filename), FileList::Order::Ascending);
}

TEST(FileList, SortingByAColumnTakesTheMarkFromTheOthers) {
    Shown shown({u"b"_s, u"a"_s}, {});
    shown.List.SortBy(FileList::Filename);
    shown.List.SortBy(FileList::Size);
    EXPECT_EQ(shown.List.OrderOf(FileList::Filename), FileList::Order::None);
    EXPECT_EQ(shown.List.OrderOf(FileList::Size), FileList::Order::Ascending);
    shown.List.SortBy(FileList::Filename);
    EXPECT_EQ(shown.List.OrderOf(FileList::Filename), FileList::Order::Ascending) << "It starts anew.";
}

TEST(FileList, SizeSortsAsNumbers) {
    Shown shown(Sized({{u"hundred"_s, 100}, {u"nine"_s, 9}, {u"twenty"_s, 20}}), {});
    shown.List.SortBy(FileList::Size);
    EXPECT_EQ(shown.Texts(), QStringList({u"nine"_s, u"twenty"_s, u"hundred"_s}));
    shown.List.SortBy(FileList::Size);
    EXPECT_EQ(shown.Texts(), QStringList({u"hundred"_s, u"twenty"_s, u"nine"_s}));
}

TEST(FileList, TypeSortsAsTextAndEqualRowsKeepTheirOrder) {
    Shown shown({u"1.txt"_s, u"2.ini"_s, u"3.TXT"_s, u"4.INI"_s}, {});
    shown.List.SortBy(FileList::Filetype);
    EXPECT_EQ(shown.Texts(), QStringList({u"2.ini"_s, u"4.INI"_s, u"1.txt"_s, u"3.TXT"_s}));
    shown.List.SortBy(FileList::Filetype);
    EXPECT_EQ(shown.Texts(), QStringList({u"1.txt"_s, u"3.TXT"_s, u"2.ini"_s, u"4.INI"_s}));
}

TEST(FileList, KeysFollowTheirRowsThroughASort) {
    Shown shown({u"b"_s, u"a"_s}, {});
    EXPECT_EQ(shown.List.SortBy(FileList::Filename), (std::vector<int>{1, 0}));
    EXPECT_EQ(shown.List.Key(0), u"BIG:1"_s);
}

TEST(FileList, ASortedColumnOrdersTheNextFolderToo) {
    Shown shown({u"d\\b"_s, u"d\\a"_s, u"z"_s, u"c"_s}, {});
    shown.List.SortBy(FileList::Filename);
    shown.Show(u"d\\"_s);
    EXPECT_EQ(shown.Texts(), QStringList({u"a"_s, u"b"_s}));
    shown.List.SortBy(FileList::Filename);
    EXPECT_EQ(shown.Texts(), QStringList({u"b"_s, u"a"_s}));
}

TEST(FileList, RowsStandOnWhenTheTableIsReplaced) {
    std::vector<BigEntry> table = TableOf({u"first.txt"_s, u"second.txt"_s});
    FolderTree tree;
    tree.CreateDirs(u"a.big"_s, table);
    FileList list;
    list.ShowFolder(tree, 1, {}, table, u"Folder"_s);
    table.clear();
    EXPECT_EQ(Texts(list), QStringList({u"first.txt"_s, u"second.txt"_s}));
}
