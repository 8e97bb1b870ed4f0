// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// What the strip under the menu bar tells of changes that closing does not ask about, and of what came in.
#include "big/document/OffsetNotices.h"
#include "platform/Files.h"
#include "tests/big/modify_fixture.h"
#include "tests/support/Printing.h"

using namespace Qt::StringLiterals;
using Answer = Host::Answer;

namespace {

class EditorNotices : public EditorModify {
protected:
    [[nodiscard]] QStringList Links() const {
        QStringList texts;
        for (const NoticeLink& link : View.Told.Links)
            texts += link.Text;
        return texts;
    }

    /// Clicks a link of the strip, which closes it.
    void ClickLink(std::size_t link) {
        ASSERT_LT(link, View.Told.Links.size());
        const auto run = View.Told.Links[link].Run;
        View.Told = {};
        run();
    }

    void MakeNew() {
        Speaker.FileNames = {Place.Root() + u"\\fresh.big"_s};
        Editor.New();
    }
};

} // namespace

TEST_F(EditorNotices, ARenameInTheTreeIsNotMarkedUntilTheUserWantsToBeAsked) {
    OpenArchive({{u"data\\a"_s, "1"}, {u"b"_s, "2"}});
    ASSERT_TRUE(Editor.RenameNode(NodeOf(u"data\\"_s), u"x"_s));
    EXPECT_EQ(View.Told.Text, u"NotMarkedAsChanged"_s);
    EXPECT_EQ(Links(), QStringList{u"AskBeforeClosing"_s});
    EXPECT_TRUE(Editor.MayClose()) << "Nothing is asked.";
    ClickLink(0);
    EXPECT_TRUE(State().Modified);
    Speaker.Answers = {Answer::Cancel};
    EXPECT_FALSE(Editor.MayClose());
}

TEST_F(EditorNotices, ARenameThatChangesNoEntryIsNotTold) {
    OpenSample();
    Editor.NewFolder();
    ASSERT_TRUE(Editor.RenameNode(State().SelectedNode, u"Maps"_s));
    EXPECT_EQ(View.Told.Text, QString());
}

TEST_F(EditorNotices, ARenameInTheListIsAChangeAndNotTold) {
    OpenSample();
    ASSERT_TRUE(Editor.RenameRow(1, u"other.txt"_s));
    EXPECT_EQ(View.Told.Text, QString());
}

TEST_F(EditorNotices, TheMenusModifyIsNotMarked) {
    OpenStrings();
    Speaker.Answers = {Answer::Yes};
    ModifyByMenu(0);
    EXPECT_EQ(View.Told.Text, u"NotMarkedAsChanged"_s);
}

TEST_F(EditorNotices, AnotherVersionIsNotMarkedAndTheSameOneIsNotTold) {
    OpenSample();
    Editor.FileVersion();
    EXPECT_EQ(View.Told.Text, QString());
    View.OnVersion = [] { mBIG::BigVersion = 3; };
    Editor.FileVersion();
    EXPECT_EQ(View.Told.Text, u"NotMarkedAsChanged"_s);
    EXPECT_FALSE(State().Modified);
}

TEST_F(EditorNotices, OtherOffsetsAreNotMarkedEither) {
    OpenSample();
    View.OnVersion = [this] { Editor.SetExactOffsets(true); };
    Editor.FileVersion();
    EXPECT_EQ(View.Told.Text, u"NotMarkedAsChanged"_s);
}

TEST_F(EditorNotices, WithUnsavedChangesClosingAsksAnyway) {
    OpenArchive({{u"data\\a"_s, "1"}, {u"b"_s, "2"}});
    Speaker.FileNames = {Place.WriteFile(u"n.txt"_s, "1")};
    Editor.Add();
    ASSERT_TRUE(Editor.RenameNode(NodeOf(u"data\\"_s), u"x"_s));
    EXPECT_EQ(View.Told.Text, QString());
}

TEST_F(EditorNotices, AddTellsWhatItReplaced) {
    Place.UseLanguage("[LNG]\r\nDropReplaced=Replaced: %1.\r\n");
    Place.Start();
    OpenSample();
    Speaker.FileNames = {Place.WriteFile(u"README.TXT"_s, "1")};
    Speaker.Answers = {Answer::Yes};
    Editor.Add();
    EXPECT_EQ(View.Told.Text, u"Replaced: README.TXT."_s);
}

TEST_F(EditorNotices, AddOfANewNameTellsNothing) {
    OpenSample();
    Speaker.FileNames = {Place.WriteFile(u"n.txt"_s, "1")};
    Editor.Add();
    EXPECT_EQ(View.Told.Text, QString());
}

TEST_F(EditorNotices, ADropTellsTheRecordThatItTookThePlaceOf) {
    Place.UseLanguage("[LNG]\r\nDropLost=Lost: %1.\r\n");
    Place.Start();
    MakeNew();
    Speaker.FileNames = {Place.WriteFile(u"a.txt"_s, "1")};
    Editor.Add();
    Editor.DropFiles({Place.WriteFile(u"b.txt"_s, "2")});
    EXPECT_EQ(View.Told.Text, u"Lost: a.txt."_s);
}

TEST_F(EditorNotices, ADropTellsWhatStaysHiddenAndHowManyItReplaced) {
    Place.UseLanguage("[LNG]\r\nDropHidden=Hidden: %1.\r\nDropReplaced=Replaced: %1.\r\n");
    Place.Start();
    OpenArchive({{u"mod\\a"_s, "1"}, {u"mod\\b"_s, "2"}, {u"mod\\c"_s, "3"}});
    Entry(0).Deleted = true;
    for (const char16_t name : {u'a', u'b', u'c'})
        Place.WriteFile(u"mod\\"_s + QChar(name), "new");
    Speaker.Answers = {Answer::Yes, Answer::Yes, Answer::Yes};
    Editor.DropFiles({Place.Root() + u"\\mod"_s});
    EXPECT_EQ(View.Told.Text, u"Hidden: mod\\a. Replaced: 2."_s);
}

TEST_F(EditorNotices, AnOnlyEntryIsShownWhenTheUserWantsToSeeIt) {
    OpenArchive({{u"only.txt"_s, "x"}});
    EXPECT_EQ(Shown(), QStringList());
    EXPECT_EQ(View.Told.Text, u"OneEntryNotShown"_s);
    EXPECT_EQ(Links(), QStringList{u"Show"_s});
    ClickLink(0);
    EXPECT_EQ(Shown(), QStringList{u"only.txt"_s});
    OpenArchive({{u"other.txt"_s, "x"}}, u"b.big"_s);
    EXPECT_EQ(Shown(), QStringList()) << "The next archive is another matter.";
}

TEST_F(EditorNotices, ASaveThatLeavesOneEntryTellsThatItIsNotShown) {
    OpenArchive({{u"a.txt"_s, "1"}, {u"b.txt"_s, "2"}});
    Entry(0).Deleted = true;
    Editor.SetExactOffsets(true);
    Editor.Save();
    EXPECT_EQ(Shown(), QStringList());
    EXPECT_EQ(View.Told.Text, u"OneEntryNotShown"_s);
    ClickLink(0);
    EXPECT_EQ(Shown(), QStringList{u"b.txt"_s});
    EXPECT_EQ(View.Told.Text, QString());
    Editor.Save();
    EXPECT_EQ(View.Told.Text, QString()) << "It is shown.";
}

TEST_F(EditorNotices, ADropThatMakesAnOnlyEntryTellsThatItIsNotShown) {
    MakeNew();
    Editor.DropFiles({Place.WriteFile(u"readme.txt"_s, "1")});
    EXPECT_EQ(Shown(), QStringList());
    EXPECT_EQ(View.Told.Text, u"OneEntryNotShown"_s);
    ClickLink(0);
    EXPECT_EQ(Shown(), QStringList{u"readme.txt"_s});
    EXPECT_EQ(View.Told.Text, QString());
    Editor.DropFiles({Place.WriteFile(u"second.txt"_s, "2")});
    EXPECT_EQ(Shown(), (QStringList{u"readme.txt"_s, u"second.txt"_s}));
    EXPECT_EQ(View.Told.Text, QString());
}

TEST_F(EditorNotices, AFreshArchiveHidesNothing) {
    OpenArchive({{u"only.txt"_s, "x"}});
    MakeNew();
    EXPECT_EQ(View.Told.Text, QString());
}

TEST_F(EditorNotices, AnOnlyEntryIsNotSavedUnlessExactly) {
    const QString path = OpenArchive({{u"only.txt"_s, "x"}});
    const QByteArray before = World::ReadFile(path);
    Editor.Save();
    EXPECT_EQ(World::ReadFile(path), before);
    EXPECT_EQ(View.Told.Text, u"OneEntryNotSaved"_s);
    EXPECT_EQ(Links(), QStringList{u"SaveExactly"_s});
    Entry(0).Name = u"renamed.txt"_s;
    ClickLink(0);
    ASSERT_TRUE(mBIG::ReadBigFile(path));
    ASSERT_EQ(mBIG::BigEntries.size(), 1U);
    EXPECT_EQ(Entry(0).Name, u"renamed.txt"_s);
    EXPECT_EQ(World::ReadFile(path).mid(Entry(0).Offset, Entry(0).Size), "x");
}

TEST_F(EditorNotices, ALinkThatIsRefusedLeavesItsNotice) {
    OpenArchive({{u"only.txt"_s, "x"}});
    Editor.Save();
    for (int round = 0; round < 2; ++round) {
        const mBIG::ArchiveLock lock;
        ClickLink(0);
        EXPECT_EQ(View.Told.Text, u"OneEntryNotSaved"_s);
        EXPECT_EQ(Links(), QStringList{u"SaveExactly"_s});
    }
    EXPECT_EQ(Speaker.Beeps, 2);
    EXPECT_FALSE(State().ExactOffsets);
    ClickLink(0);
    EXPECT_TRUE(State().ExactOffsets);
}

TEST_F(EditorNotices, YesDoesNotLeadOnAsIfAnOnlyEntryWereSaved) {
    OpenArchive({{u"data\\only.txt"_s, "x"}});
    ASSERT_TRUE(Editor.RenameRow(0, u"stuff"_s));
    Speaker.Answers = {Answer::Yes};
    EXPECT_FALSE(Editor.MayClose());
    EXPECT_EQ(Speaker.Messages.back().Text, u"OneEntryNotSaved"_s);
    EXPECT_FALSE(Speaker.ProgressShown);
    EXPECT_TRUE(State().Modified);
    Editor.SetExactOffsets(true);
    Speaker.Answers = {Answer::Yes};
    EXPECT_TRUE(Editor.MayClose()) << "This way it is saved.";
    ASSERT_TRUE(mBIG::ReadBigFile(mBIG::BigFileName));
    EXPECT_EQ(Entry(0).Name, u"stuff\\only.txt"_s);
}
