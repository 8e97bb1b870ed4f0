// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The two boxes: what they write, when, and what the notice strip says of it.

#include "tests/personal/document_fixture.h"

using namespace Qt::StringLiterals;

namespace {

class PersonalBoxes : public PersonalDocument {
protected:
    [[nodiscard]] static QString IniOf(const QString& mod) { return Of(0).InstallPath + mod + u".ini"_s; }

    [[nodiscard]] static QString ModText(const QString& mod, const QString& key) {
        return Ini(u"Mod"_s, key, IniOf(mod));
    }

    [[nodiscard]] QString ModCell(int place, int column) { return Rows(PersonalKind::Mod).Text(place, column); }
};

} // namespace

/// Some systems write a whole file anew, without blanks around the signs.
static QByteArray Plain(QByteArray text) {
    return text.replace(" = ", "=");
}

TEST_F(PersonalBoxes, ANameThatIsTypedIsTheModsAtOnceWithItsCell) {
    PutMod(u"A"_s, "[Mod]\r\nName=old\r\n");
    Open(u"GenMods"_s, 0);
    Personal.NameTyped(u"new"_s);
    EXPECT_EQ(ModText(u"A"_s, u"Name"_s), u"new"_s);
    EXPECT_EQ(ModCell(0, ModList::Name), u"new"_s);
    EXPECT_EQ(ModCell(0, ModList::FileName), u"A.big"_s);
    EXPECT_EQ(View.Rows.back(), 0);
    EXPECT_EQ(State().NameText, u"new"_s);
    EXPECT_EQ(State().ModFile, u"A.big"_s);
}

TEST_F(PersonalBoxes, ANameThatIsTypedIsTheShellMapsAtOnceWithItsText) {
    const QString folder = PutShellMap(1, "[Infos]\r\nName=old\r\n");
    Open(u"GenShellMaps"_s, 0);
    Personal.NameTyped(u"new"_s);
    EXPECT_EQ(Ini(u"Infos"_s, u"Name"_s, folder + u"\\QvInfos.ini"_s), u"new"_s);
    EXPECT_EQ(Names(PersonalKind::ShellMap), QStringList{u"new"_s});
    EXPECT_EQ(State().ModFile, u"old"_s) << "the label waits for the next selection";
}

TEST_F(PersonalBoxes, AModsCommentIsWrittenUnderAKeyThatNoReaderAsksFor) {
    PutMod(u"A"_s, "[Mod]\r\nComments=old\r\n");
    Open(u"GenMods"_s, 0);
    Personal.CommentsTyped(u"new"_s);
    EXPECT_EQ(ModText(u"A"_s, u"Commentse"_s), u"new"_s);
    EXPECT_EQ(ModText(u"A"_s, u"Comments"_s), u"old"_s);
    EXPECT_EQ(ModCell(0, ModList::Comments), u"old"_s);
    Open(u"GenMods"_s, 0);
    EXPECT_EQ(State().CommentsText, u"old"_s) << "an edited comment isn't seen again";
}

TEST_F(PersonalBoxes, AShellMapsCommentIsWrittenAndItsCellWaits) {
    const QString folder = PutShellMap(1, "[Infos]\r\nComments=old\r\n");
    Open(u"GenShellMaps"_s, 0);
    Personal.CommentsTyped(u"new"_s);
    EXPECT_EQ(Ini(u"Infos"_s, u"Comments"_s, folder + u"\\QvInfos.ini"_s), u"new"_s);
    EXPECT_EQ(Rows(PersonalKind::ShellMap).Text(0, ShellMapList::Comments), u"old"_s);
    EXPECT_TRUE(View.Notices.empty());
}

TEST_F(PersonalBoxes, ASelectionWhoseCommentDiffersFromTheBoxWritesItUnderTheOddKey) {
    PutMod(u"A"_s, "[Mod]\r\nName=A\r\nComments=of A\r\n");
    PutMod(u"B"_s, "[Mod]\r\nName=B\r\nComments=of B\r\n");
    Open(u"GenMods"_s, 0);
    EXPECT_EQ(ModText(u"A"_s, u"Commentse"_s), u"of A"_s);
    Personal.RowSelected(1);
    EXPECT_EQ(ModText(u"B"_s, u"Commentse"_s), u"of B"_s);
    EXPECT_TRUE(View.Notices.empty()) << "nothing was typed, nothing is lost";
}

TEST_F(PersonalBoxes, ASelectionWithTheTextsThatStandInTheBoxesWritesNothing) {
    const QByteArray same = "[Mod]\r\nName = \"same\"\r\nComments = same too\r\n";
    PutMod(u"A"_s, same);
    PutMod(u"B"_s, same);
    Open(u"GenMods"_s, 0);
    Personal.RowSelected(1);
    EXPECT_EQ(World::ReadFile(IniOf(u"B"_s)), same);
    const QByteArray first = World::ReadFile(IniOf(u"A"_s));
    EXPECT_TRUE(Plain(first).contains("Name=same\r\n") && first.contains("Commentse")) << first.toStdString();
}

TEST_F(PersonalBoxes, ASelectedModWithoutARecordGetsAnEmptyOneBehindBoxesThatHeldText) {
    PutMod(u"A"_s, "[Mod]\r\nName=A\r\nComments=of A\r\n");
    PutMod(u"Bare"_s);
    Open(u"GenMods"_s, 0);
    Personal.RowSelected(1);
    EXPECT_EQ(State().NameText, QString());
    EXPECT_EQ(State().CommentsText, QString());
    const QByteArray made = World::ReadFile(IniOf(u"Bare"_s));
    EXPECT_TRUE(made.contains("Name=") && made.contains("Commentse=")) << made.toStdString();
    EXPECT_EQ(ModText(u"Bare"_s, u"Name"_s), QString());
    EXPECT_TRUE(View.Notices.empty());
}

TEST_F(PersonalBoxes, ANewModPathIsSetBeforeTheBoxesAreFilled) {
    PutMod(u"A"_s, "[Mod]\r\nName=A\r\n");
    PutMod(u"B"_s, "[Mod]\r\nName=B\r\n");
    Open(u"GenMods"_s, 0);
    Personal.RowSelected(1);
    EXPECT_EQ(ModText(u"A"_s, u"Name"_s), u"A"_s);
    EXPECT_EQ(ModText(u"B"_s, u"Name"_s), u"B"_s);
    EXPECT_EQ(ModCell(0, ModList::Name), u"A"_s);
}

TEST_F(PersonalBoxes, TextsGoOverFromAModToAShellMapAsAChange) {
    PutMod(u"A"_s, "[Mod]\r\nName=A\r\nComments=same\r\n");
    const QString folder = PutShellMap(1, "[Infos]\r\nName = \"S\"\r\nComments = \"same\"\r\n");
    Open(u"GenMods"_s, 0);
    Open(u"GenShellMaps"_s, 0);
    EXPECT_EQ(ModText(u"A"_s, u"Name"_s), u"A"_s) << "the mod keeps its own";
    const QByteArray written = World::ReadFile(folder + u"\\QvInfos.ini"_s);
    EXPECT_TRUE(Plain(written).contains("Name=S\r\n")) << "the name is another one and is written";
    EXPECT_TRUE(Plain(written).contains("Comments=\"same\"\r\n") || Plain(written).contains("Comments=same\r\n"))
        << "the same comment is no change";
}

TEST_F(PersonalBoxes, OfMapsAndReplaysWriteNothing) {
    PutMod(u"A"_s, "[Mod]\r\nName=A\r\n");
    PutMap(u"M"_s);
    PutReplay(u"r.rep"_s);
    Open(u"GenMods"_s, 0);
    const QByteArray before = World::ReadFile(IniOf(u"A"_s));
    for (const QString& node : {u"GenMaps"_s, u"GenReplays"_s}) {
        Open(node, 0);
        Personal.NameTyped(u"typed "_s + node);
        Personal.CommentsTyped(u"typed "_s + node);
        EXPECT_EQ(World::ReadFile(IniOf(u"A"_s)), before);
    }
    EXPECT_EQ(Names(PersonalKind::Map), QStringList{u"M"_s});
    EXPECT_EQ(Names(PersonalKind::Replay), QStringList{u"r"_s});
}

TEST_F(PersonalBoxes, TheModsPathStaysBehindAClickOnAGame) {
    PutMod(u"A"_s, "[Mod]\r\nName=A\r\n");
    Open(u"GenMods"_s, 0);
    Personal.NodeClicked(u"ZH"_s);
    Personal.NameTyped(u"late"_s);
    EXPECT_EQ(ModText(u"A"_s, u"Name"_s), u"late"_s);
}

TEST_F(PersonalBoxes, OfAShellMapThatIsSelectedNoMoreWriteNothing) {
    const QString folder = PutShellMap(1, "[Infos]\r\nName=S\r\n");
    Open(u"GenShellMaps"_s, 0);
    Personal.NodeClicked(u"GenShellMaps"_s);
    Personal.NameTyped(u"late"_s);
    EXPECT_EQ(Ini(u"Infos"_s, u"Name"_s, folder + u"\\QvInfos.ini"_s), u"S"_s);
}

TEST_F(PersonalBoxes, ATypedModCommentIsToldOnceAndKeptByTheLink) {
    PutMod(u"A"_s, "[Mod]\r\nComments=old\r\n");
    Open(u"GenMods"_s, 0);
    Personal.CommentsTyped(u"n"_s);
    Personal.CommentsTyped(u"new"_s);
    ASSERT_EQ(View.Notices.size(), 1U) << "not at each key";
    EXPECT_EQ(View.Told().Text, u"CommentNotRead"_s);
    View.Rows.clear();
    ClickLink(u"KeepIt"_s);
    EXPECT_EQ(ModText(u"A"_s, u"Comments"_s), u"new"_s);
    EXPECT_EQ(ModText(u"A"_s, u"Commentse"_s), u"new"_s);
    EXPECT_EQ(ModCell(0, ModList::Comments), u"new"_s);
    EXPECT_EQ(View.Rows, std::vector{0});
    EXPECT_EQ(View.Told().Text, QString()) << "there is nothing to tell any more";
    Personal.RowSelected(0);
    EXPECT_EQ(State().CommentsText, u"new"_s);
}

TEST_F(PersonalBoxes, CommentsOfSeveralModsAreAllKept) {
    PutMod(u"A"_s);
    PutMod(u"B"_s);
    Open(u"GenMods"_s, 0);
    Personal.CommentsTyped(u"of A"_s);
    Personal.RowSelected(1);
    Personal.CommentsTyped(u"of B"_s);
    EXPECT_EQ(View.Notices.size(), 2U);
    ClickLink(u"KeepIt"_s);
    EXPECT_EQ(ModText(u"A"_s, u"Comments"_s), u"of A"_s);
    EXPECT_EQ(ModText(u"B"_s, u"Comments"_s), u"of B"_s);
    EXPECT_EQ(ModCell(0, ModList::Comments), u"of A"_s);
}

TEST_F(PersonalBoxes, ACommentTypedBackIsNothingToTellOf) {
    PutMod(u"A"_s, "[Mod]\r\nComments=old\r\n");
    Open(u"GenMods"_s, 0);
    Personal.CommentsTyped(u"older"_s);
    Personal.CommentsTyped(u"old"_s);
    EXPECT_EQ(View.Told().Text, QString());
    Personal.CommentsTyped(u"oldest"_s);
    EXPECT_EQ(View.Told().Text, u"CommentNotRead"_s) << "and is told again when it differs again";
}

TEST_F(PersonalBoxes, ACommentTypedSomeTimeAgoIsToldWhenASelectionWritesOverIt) {
    PutMod(u"A"_s, "[Mod]\r\nComments=old\r\nCommentse=typed last week\r\n");
    Open(u"GenMods"_s, 0);
    EXPECT_EQ(ModText(u"A"_s, u"Commentse"_s), u"old"_s);
    EXPECT_EQ(View.Told().Text, u"CommentNotRead"_s);
    ClickLink(u"KeepIt"_s);
    EXPECT_EQ(ModText(u"A"_s, u"Comments"_s), u"typed last week"_s);
}

TEST_F(PersonalBoxes, ADeletedModsCommentIsNotKept) {
    PutMod(u"A"_s, "[Mod]\r\nComments=old\r\n");
    Open(u"GenMods"_s, 0);
    Personal.CommentsTyped(u"new"_s);
    Speaker.Answers.push_back(Host::Answer::Yes);
    Personal.Delete();
    EXPECT_EQ(View.Told().Text, QString());
    EXPECT_EQ(ModText(u"A"_s, u"Commentse"_s), u"new"_s) << "the record stays behind";
}

TEST_F(PersonalBoxes, AKeptCommentThatCanNotBeWrittenStaysToBeKept) {
    PutMod(u"A"_s);
    Open(u"GenMods"_s, 0);
    Personal.CommentsTyped(u"new"_s);
    Files::Delete(IniOf(u"A"_s));
    Files::MakeFolder(IniOf(u"A"_s));
    ClickLink(u"KeepIt"_s);
    EXPECT_EQ(View.Told().Text, u"CommentNotRead TypedNotWritten"_s);
    Files::RemoveFolder(IniOf(u"A"_s));
    ClickLink(u"KeepIt"_s);
    EXPECT_EQ(ModText(u"A"_s, u"Comments"_s), u"new"_s);
}

TEST_F(PersonalBoxes, WhatCanNotBeWrittenIsToldWhenItIsTyped) {
    PutMod(u"A"_s);
    PutMod(u"B"_s, "[Mod]\r\nName=B\r\n");
    Files::MakeFolder(IniOf(u"A"_s));
    Open(u"GenMods"_s, 1);
    Personal.RowSelected(0);
    EXPECT_TRUE(View.Notices.empty()) << "a selection is silent";
    Personal.NameTyped(u"n"_s);
    Personal.NameTyped(u"new"_s);
    ASSERT_EQ(View.Notices.size(), 1U);
    EXPECT_EQ(View.Told().Text, u"TypedNotWritten"_s);
    EXPECT_TRUE(View.Told().Links.empty());
    EXPECT_EQ(ModCell(0, ModList::Name), u"new"_s);
}

TEST_F(PersonalBoxes, ALongNameIsCutByItsSelectionAndPutBackByTheLink) {
    const QString whole = QString(254, u'n') + u" and the rest"_s;
    PutMod(u"A"_s, "[Mod]\r\nName=" + whole.toLatin1() + "\r\nComments=c\r\n");
    Open(u"GenMods"_s, 0);
    EXPECT_EQ(State().NameText, whole.first(254));
    EXPECT_FALSE(World::ReadFile(IniOf(u"A"_s)).contains("and the rest"));
    EXPECT_EQ(View.Told().Text, u"TextWasCut"_s);
    ClickLink(u"KeepIt"_s);
    EXPECT_TRUE(World::ReadFile(IniOf(u"A"_s)).contains("Name=" + whole.toLatin1() + "\r\n"));
    EXPECT_EQ(View.Told().Text, QString());
    EXPECT_EQ(ModCell(0, ModList::Comments), u"c"_s);
}

TEST_F(PersonalBoxes, ALongCommentOfAShellMapIsCutAndPutBackAndThatOfAModIsNot) {
    const QByteArray whole = QByteArray(254, 'c') + " and the rest";
    const QString infos = PutShellMap(1, "[Infos]\r\nComments=" + whole + "\r\n") + u"\\QvInfos.ini"_s;
    PutMod(u"A"_s, "[Mod]\r\nComments=x" + whole + "\r\n");
    Open(u"GenMods"_s, 0);
    EXPECT_TRUE(View.Notices.empty());
    EXPECT_TRUE(World::ReadFile(IniOf(u"A"_s)).contains(whole));
    Open(u"GenShellMaps"_s, 0);
    EXPECT_FALSE(World::ReadFile(infos).contains("and the rest"));
    EXPECT_EQ(View.Told().Text, u"TextWasCut"_s);
    ClickLink(u"KeepIt"_s);
    EXPECT_TRUE(World::ReadFile(infos).contains(whole));
}

TEST_F(PersonalBoxes, ALongNameInQuotesIsPutBackWithoutThem) {
    const QByteArray whole = QByteArray(254, 'n') + " and the rest";
    const QString infos = PutShellMap(1, "[Infos]\r\nName=\"" + whole + "\"\r\n") + u"\\QvInfos.ini"_s;
    Open(u"GenShellMaps"_s, 0);
    ClickLink(u"KeepIt"_s);
    EXPECT_TRUE(World::ReadFile(infos).contains("Name=" + whole + "\r\n"));
}

TEST_F(PersonalBoxes, ATextOfExactlyTheLongestLengthIsNotCut) {
    PutShellMap(1, "[Infos]\r\nName=" + QByteArray(254, 'n') + "\r\n");
    Open(u"GenShellMaps"_s, 0);
    EXPECT_TRUE(View.Notices.empty());
}

TEST_F(PersonalBoxes, ACutTextIsNothingToKeepOnceTheUserChangedIt) {
    PutShellMap(1, "[Infos]\r\nName=" + QByteArray(300, 'n') + "\r\n");
    Open(u"GenShellMaps"_s, 0);
    Personal.NameTyped(u"short"_s);
    EXPECT_EQ(View.Told().Text, QString());
}

TEST_F(PersonalBoxes, ACutTextOfAShellMapIsForgottenWhenTheNumbersShift) {
    PutShellMap(1, "[Infos]\r\nName=one\r\n");
    PutShellMap(2, "[Infos]\r\nName=" + QByteArray(300, 'n') + "\r\n");
    Open(u"GenShellMaps"_s, 1);
    ASSERT_EQ(View.Told().Text, u"TextWasCut"_s);
    Personal.RowSelected(0);
    Speaker.Answers.push_back(Host::Answer::Yes);
    Personal.Delete();
    EXPECT_EQ(View.Told().Text, QString());
}
