// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/big/rescue_fixture.h"

using namespace Qt::StringLiterals;

namespace {

class EditorLeftBeside : public EditorRescue {};

} // namespace

TEST_F(EditorLeftBeside, TheWholeArchiveThatASaveLeftIsOffered) {
    const QByteArray old = ArchiveOf({{u"old.txt"_s, "old"}, {u"b.txt"_s, "b"}});
    Place.WriteFile(u"a.big.tmp"_s, old);
    const QString path = OpenSample();
    EXPECT_EQ(View.Told.Text, u"LeftBeside"_s);
    ASSERT_EQ(View.Told.Links.size(), 3U);
    ClickLink(View, 2);
    EXPECT_EQ(View.Folder, Place.Root() + u'\\');
    ClickLink(View, 0);
    EXPECT_EQ(World::ReadFile(path), old);
    EXPECT_EQ(mBIG::BigEntries.front().Name, u"old.txt"_s) << "it is opened anew";
    EXPECT_EQ(Archives::Read(At(u"a (2).big"_s)).Entries.front().Name, u"readme.txt"_s);
    EXPECT_FALSE(Files::FileExists(path + u".tmp"_s));
}

TEST_F(EditorLeftBeside, NoSaveTakesATmpOfSomebodyElses) {
    const QByteArray half = ArchiveOf({{u"old.txt"_s, "cut off"}}).chopped(3);
    Place.WriteFile(u"a.big.tmp"_s, half);
    const QString path = OpenSample();
    EXPECT_EQ(View.Told.Text, QString()) << "it is not whole";
    AddTo(Editor, u"n.txt"_s, "n");
    Editor.Save();
    EXPECT_EQ(World::ReadFile(path + u".tmp"_s), half);
    EXPECT_EQ(BytesOf(path, u"n.txt"_s), "n");
}

TEST_F(EditorLeftBeside, TheNextStartKnowsWhatASaveLeftBesideARescuedArchive) {
    LeaveChanged();
    Place.WriteFile(u"t.big.tmp"_s, ArchiveOf({{u"old.txt"_s, "old"}, {u"b.txt"_s, "b"}}));
    next_->TellLeft();
    ClickLink(nextView_, 1);
    EXPECT_EQ(nextView_.Told.Text, u"LeftBeside"_s);
    ClickLink(nextView_, 1);
    EXPECT_EQ(nextView_.Told.Text, u"KeptAs"_s);
    EXPECT_EQ(Archives::Read(At(u"t (2).big"_s)).Entries.front().Name, u"old.txt"_s);
    EXPECT_EQ(Archives::Read(At(u"t.big"_s)).Entries.front().Name, u"readme.txt"_s);
}

TEST_F(EditorLeftBeside, WhatASaveLeftIsOfferedThoughItsArchiveCanNotBeOpened) {
    const QByteArray old = ArchiveOf({{u"old.txt"_s, "old"}, {u"b.txt"_s, "b"}});
    for (const bool isThere : {true, false}) {
        Place.WriteFile(u"a.big.tmp"_s, old);
        if (isThere)
            Place.WriteFile(u"a.big"_s, "half");
        View.Shown = 0;
        Editor.OpenBigFile(At(u"a.big"_s));
        EXPECT_EQ(View.Told.Text, u"LeftBeside"_s);
        EXPECT_EQ(View.Shown, 1);
        ClickLink(View, 0);
        EXPECT_EQ(mBIG::BigFileName, At(u"a.big"_s)) << "it is opened";
        EXPECT_EQ(World::ReadFile(At(u"a.big"_s)), old);
        mBIG::Close(); // what is open lasts as long on Windows
        Files::DeleteForced(At(u"a.big"_s));
    }
    View.Shown = 0;
    Editor.OpenBigFile(At(u"a.big"_s));
    EXPECT_EQ(View.Shown, 0) << "there is nothing to be offered";
}
