// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// A search that goes on beside the editor, and the way to what it finds.
#include "big/document/BackgroundSearch.h"
#include "tests/big/document_fixture.h"

#include <atomic>
#include <thread>

using namespace Qt::StringLiterals;

namespace {

class SearchBeside : public EditorDocument {
protected:
    BackgroundSearch::News AllNews(BackgroundSearch& search) {
        BackgroundSearch::News all;
        while (!all.Ended) {
            while (!told_.exchange(false))
                std::this_thread::yield();
            BackgroundSearch::News news = search.Take();
            all.Found.insert(all.Found.end(), news.Found.begin(), news.Found.end());
            all.Percent = news.Percent;
            all.Unread = news.Unread;
            all.Ended = news.Ended;
        }
        return all;
    }

    std::function<void()> Telling() {
        return [this] { told_ = true; };
    }

    std::atomic<bool> told_ = false;
};

class WayToAnEntry : public EditorDocument {};

} // namespace

TEST_F(SearchBeside, TellsWhatItFindsUntilItEnds) {
    OpenArchive({{u"a.ini"_s, "a needle"}, {u"b.ini"_s, "none"}, {u"c.txt"_s, "needle"}});
    BackgroundSearch search(mBIG::Open(), u"needle"_s, Telling());
    BackgroundSearch::News news = AllNews(search);
    std::ranges::sort(news.Found);
    EXPECT_EQ(news.Found, (std::vector<int>{0, 2}));
    EXPECT_EQ(news.Percent, 100);
    EXPECT_EQ(news.Unread, 0);
}

TEST_F(SearchBeside, EndsAtOnceWithNothingToSearch) {
    OpenArchive({{u"a.dds"_s, "needle"}, {u"b.dds"_s, "needle"}});
    BackgroundSearch search(mBIG::Open(), u"needle"_s, Telling());
    EXPECT_TRUE(AllNews(search).Found.empty());
}

TEST_F(SearchBeside, CountsTextsThatCannotBeRead) {
    OpenArchive({{u"a.ini"_s, "a needle"}, {u"b.ini"_s, "none"}});
    Archive gone = mBIG::Open();
    gone.FileName.clear();
    BackgroundSearch search(gone, u"needle"_s, Telling());
    EXPECT_EQ(AllNews(search).Unread, 2);
}

TEST_F(SearchBeside, CanBeGivenUpWhileItRuns) {
    std::vector<NamedBytes> entries;
    entries.reserve(100);
    for (int i = 0; i < 100; ++i)
        entries.emplace_back(u"%1.ini"_s.arg(i), QByteArray(200000, 'x'));
    OpenArchive(entries);
    const BackgroundSearch search(mBIG::Open(), u"needle"_s, Telling());
    SUCCEED(); // it ends here, and is waited for
}

TEST_F(WayToAnEntry, ShowsItsFolderAndClicksItsRow) {
    OpenSample();
    EXPECT_TRUE(Editor.GoToEntry(1, u"Data\\INI\\Object.ini"_s));
    EXPECT_EQ(State().SelectedNode, NodeOf(u"data\\ini\\"_s));
    EXPECT_EQ(View.Revealed, 0);
    EXPECT_EQ(State().FocusPane, FocusedPane::List);
    EXPECT_TRUE(State().DetailsVisible);
    EXPECT_EQ(State().DetailsName, u"Object.ini"_s);
}

TEST_F(WayToAnEntry, FindsTheRowBehindTheFolders) {
    OpenSample();
    EXPECT_TRUE(Editor.GoToEntry(0, u"readme.txt"_s));
    EXPECT_EQ(State().SelectedNode, FolderTree::Root);
    EXPECT_EQ(View.Revealed, 1);
}

TEST_F(WayToAnEntry, TakesNoFolderOfTheSameNumberForIt) {
    OpenArchive({{u"data\\a"_s, "a"}, {u"b"_s, "b"}, {u"c"_s, "c"}});
    ASSERT_EQ(NodeOf(u"data\\"_s), 2);
    EXPECT_TRUE(Editor.GoToEntry(2, u"c"_s));
    EXPECT_EQ(View.Revealed, 2);
}

TEST_F(WayToAnEntry, GoesByTheNameWhenTheIndexIsAnothers) {
    OpenSample();
    EXPECT_TRUE(Editor.GoToEntry(0, u"data\\MAP.tga"_s));
    EXPECT_EQ(State().DetailsName, u"map.tga"_s);
    EXPECT_TRUE(Editor.GoToEntry(77, u"data\\map.tga"_s));
}

TEST_F(WayToAnEntry, BeepsForOneThatHasGone) {
    OpenSample();
    mBIG::BigEntries[2].Deleted = true;
    EXPECT_FALSE(Editor.GoToEntry(2, u"Data\\map.tga"_s));
    EXPECT_FALSE(Editor.GoToEntry(-1, u"none"_s));
    EXPECT_EQ(Speaker.Beeps, 2);
    EXPECT_EQ(State().SelectedNode, FolderTree::Root);
}

TEST_F(WayToAnEntry, ShowsTheFolderOfAnOnlyEntry) {
    OpenArchive({{u"data\\a.ini"_s, "x"}});
    EXPECT_TRUE(Editor.GoToEntry(0, u"data\\a.ini"_s));
    EXPECT_EQ(State().SelectedNode, NodeOf(u"data\\"_s));
    EXPECT_EQ(View.Revealed, -1);
}
