// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The notice of a replay that keeps its number, and how it is let go.

#include "platform/FileNumbers.h"
#include "platform/NumberedFiles.h"
#include "platform/Paths.h"
#include "tests/personal/document_fixture.h"

using namespace Qt::StringLiterals;

namespace {

class PersonalNotices : public PersonalDocument {
protected:
    PersonalNotices() {
        Place.UseLanguage("[LNG]\r\nReplayStaysOpen=%1 stays open.\r\nLetGoOfIt=Let go of it\r\n"
                          "CommentNotRead=Nobody reads it.\r\nKeepIt=Keep it\r\n");
        mMain::LanguageFileName = u"Test.lng"_s;
    }

    static bool IsOpen() { return NumberedFiles::IsOpen(FileNumbers::Replay); }

    /// What the notice says of a file.
    [[nodiscard]] static QString OpenText(const QString& path) { return Paths::ToNative(path) + u" stays open."_s; }
};

} // namespace

TEST_F(PersonalNotices, ABadReplayThatIsTheLastOneIsToldAndStaysOpen) {
    PutReplay(u"a.rep"_s);
    const QString bad = PutReplay(u"b.rep"_s, "no replay");
    Open(u"GenReplays"_s);
    EXPECT_TRUE(IsOpen());
    EXPECT_EQ(Names(PersonalKind::Replay), QStringList{u"a"_s});
    EXPECT_EQ(View.Told().Text, OpenText(bad));
    ASSERT_EQ(View.Told().Links.size(), 1U);
    EXPECT_EQ(View.Told().Links.front().Text, u"Let go of it"_s);
}

TEST_F(PersonalNotices, ABadReplayBeforeATrueOneIsToldBeforeTheErrorGoesUp) {
    const QString bad = PutReplay(u"a.rep"_s, "no replay");
    PutReplay(u"b.rep"_s);
    EXPECT_EQ(NumberRaisedBy([&] { Open(u"GenReplays"_s); }), ErrorNumber::FileAlreadyOpen);
    EXPECT_EQ(View.Told().Text, OpenText(bad));
}

TEST_F(PersonalNotices, TheNextListingFailsUntilTheUserLetsGo) {
    const QString bad = PutReplay(u"b.rep"_s, "no replay");
    PutReplay(u"zh.rep"_s, SampleReplay(), 1);
    Open(u"GenReplays"_s);
    const auto click = [&] { Personal.NodeClicked(u"ZHReplays"_s); };
    EXPECT_EQ(NumberRaisedBy(click), ErrorNumber::FileAlreadyOpen);
    EXPECT_EQ(View.Notices.size(), 2U) << "and says so again";
    EXPECT_EQ(View.Told().Text, OpenText(bad));
    ClickLink(u"Let go of it"_s);
    EXPECT_FALSE(IsOpen());
    EXPECT_EQ(View.Told().Text, QString());
    EXPECT_EQ(NumberRaisedBy(click), 0);
    EXPECT_EQ(Names(PersonalKind::Replay), QStringList{u"zh"_s});
}

TEST_F(PersonalNotices, AListingWithoutABadReplaySaysNothing) {
    PutReplay(u"a.rep"_s);
    Open(u"GenReplays"_s);
    EXPECT_TRUE(View.Notices.empty());
    EXPECT_FALSE(IsOpen());
}

TEST_F(PersonalNotices, ADeletesListingTellsToo) {
    PutReplay(u"a.rep"_s);
    Open(u"GenReplays"_s, 0);
    PutReplay(u"b.rep"_s, "no replay");
    Speaker.Answers.push_back(Host::Answer::Yes);
    Personal.Delete();
    EXPECT_FALSE(View.Told().Text.isEmpty());
}

TEST_F(PersonalNotices, TheNumberStaysOpenBehindTheWindowAndTheNextWindowTells) {
    const QString bad = PutReplay(u"b.rep"_s, "no replay");
    {
        RecordingPersonalView view;
        PersonalFiles closed(view);
        closed.RebuildTree();
        closed.NodeClicked(u"GenReplays"_s);
    }
    EXPECT_TRUE(IsOpen());
    Personal.RebuildTree();
    EXPECT_EQ(View.Told().Text, OpenText(bad));
    ClickLink(u"Let go of it"_s);
    EXPECT_FALSE(IsOpen());
}

TEST_F(PersonalNotices, TellOfTheNumberAndOfACommentAtOneTime) {
    const QString bad = PutReplay(u"b.rep"_s, "no replay");
    PutMod(u"m"_s);
    Open(u"GenReplays"_s);
    Personal.NodeClicked(u"GenMods"_s);
    Personal.RowSelected(0);
    Personal.CommentsTyped(u"typed"_s);
    EXPECT_EQ(View.Told().Text, OpenText(bad) + u" Nobody reads it."_s);
    EXPECT_EQ(View.Told().Links.size(), 2U);
    ClickLink(u"Let go of it"_s);
    EXPECT_EQ(View.Told().Text, u"Nobody reads it."_s);
    ClickLink(u"Keep it"_s);
    EXPECT_EQ(View.Told().Text, QString());
    EXPECT_EQ(Ini(u"Mod"_s, u"Comments"_s, Of(0).InstallPath + u"m.ini"_s), u"typed"_s);
}
