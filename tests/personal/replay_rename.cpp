// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/Files.h"
#include "tests/personal/replay_bytes.h"

using namespace Qt::StringLiterals;

namespace {

class ReplayRenames : public ReplayFolders {
protected:
    static bool Exists(const QString& name, GameIndex game = 0) { return Files::FileExists(Folder(game) + name); }

    int RenameFirst(const QString& text) {
        return NumberRaisedBy([&] { list_.Rename(0, text); });
    }

    [[nodiscard]] const ListRow& FirstRow() const { return list_.Rows().Row(0); }
};

} // namespace

TEST_F(ReplayRenames, TheFileTheTextAndTheKeyAreRenamed) {
    Put(u"old.rep"_s, SampleReplay());
    List();
    EXPECT_EQ(RenameFirst(u"Été (2)"_s), 0);
    EXPECT_EQ(FirstRow().Text, u"Été (2)"_s);
    EXPECT_EQ(FirstRow().Key, Folder() + u"Été (2).rep"_s);
    EXPECT_EQ(World::ReadFile(Folder() + u"Été (2).rep"_s), SampleReplay());
    EXPECT_FALSE(Exists(u"old.rep"_s));
}

TEST_F(ReplayRenames, TheLastGameHasItsOwnExtension) {
    Put(u"old.BfME2Replay"_s, SampleReplay(), 3);
    List(3);
    EXPECT_EQ(RenameFirst(u"new"_s), 0);
    EXPECT_TRUE(Exists(u"new.BfME2Replay"_s, 3));
    EXPECT_EQ(FirstRow().Key, Folder(3) + u"new.BfME2Replay"_s);
}

TEST_F(ReplayRenames, TheGameDecidesTheExtensionAndNotTheFile) {
    const QString path = Put(u"old.rep"_s, SampleReplay(), 3);
    List(3);
    EXPECT_EQ(RenameFirst(u"new"_s), 53);
    EXPECT_EQ(FirstRow().Text, u"new"_s);
    EXPECT_EQ(FirstRow().Key, path);
    EXPECT_TRUE(Files::FileExists(path));
}

TEST_F(ReplayRenames, AFileThatIsThereIsNeverOverwritten) {
    Put(u"a.rep"_s, SampleReplay());
    Put(u"b.rep"_s, SampleReplay() + "b");
    List();
    EXPECT_EQ(RenameFirst(u"b"_s), 58);
    EXPECT_EQ(FirstRow().Text, u"b"_s) << "the row keeps what was typed";
    EXPECT_EQ(FirstRow().Key, Folder() + u"a.rep"_s);
    EXPECT_EQ(World::ReadFile(Folder() + u"a.rep"_s), SampleReplay());
    EXPECT_EQ(World::ReadFile(Folder() + u"b.rep"_s), SampleReplay() + "b");
}

TEST_F(ReplayRenames, AFileThatIsThereInOtherLettersIsNotOverwrittenEither) {
    Put(u"a.rep"_s, SampleReplay());
    Put(u"B.REP"_s, SampleReplay() + "b");
    List();
    EXPECT_EQ(RenameFirst(u"b"_s), 58);
    EXPECT_EQ(World::ReadFile(Folder() + u"B.REP"_s), SampleReplay() + "b");
}

TEST_F(ReplayRenames, LettersOfTheOwnNameCanChangeTheirCase) {
    Put(u"old name.rep"_s, SampleReplay());
    List();
    EXPECT_EQ(RenameFirst(u"Old NAME"_s), 0);
    EXPECT_EQ(FirstRow().Key, Folder() + u"Old NAME.rep"_s);
    EXPECT_EQ(Files::ListFolder(Folder() + u"*"_s), QStringList{u"Old NAME.rep"_s});
}

TEST_F(ReplayRenames, ANameThatLeadsElsewhereOrThatNoFileCanHaveIsError5) {
    const QString path = Put(u"a.rep"_s, SampleReplay());
    List();
    for (const QString& text : {u"..\\b"_s, u"x/b"_s, u"\\b"_s, u"/b"_s, u"b:c"_s, u"b*"_s, u"b?"_s, u"b\""_s, u"b<"_s,
                                u"b>"_s, u"b|"_s, u"b\n"_s, u"con"_s}) {
        EXPECT_EQ(RenameFirst(text), 5) << text.toStdString();
        EXPECT_EQ(FirstRow().Text, text) << "the row keeps what was typed";
        EXPECT_EQ(FirstRow().Key, path);
        list_.Rows().SetText(0, u"a"_s);
    }
    EXPECT_EQ(RenameFirst(QString()), 5);
    EXPECT_EQ(Files::ListFolder(Folder() + u"*"_s), QStringList{u"a.rep"_s});
}

TEST_F(ReplayRenames, TheMessageNamesTheName) {
    Put(u"a.rep"_s, SampleReplay());
    List();
    EXPECT_TRUE(MessageOf([&] { list_.Rename(0, u"b?"_s); }).startsWith(u"b?.rep: "_s));
}

TEST_F(ReplayRenames, TheOwnNameIsNoEdit) {
    const QString path = Put(u"NOTES.PREP"_s, SampleReplay());
    List();
    EXPECT_EQ(RenameFirst(u"NOTES."_s), 0);
    EXPECT_EQ(FirstRow().Key, path);
}

TEST_F(ReplayRenames, AFileThatIsGoneIsError53) {
    Files::DeleteForced(Put(u"b.rep"_s, SampleReplay()));
    Put(u"a.rep"_s, SampleReplay());
    List();
    Files::DeleteForced(Folder() + u"a.rep"_s);
    EXPECT_EQ(RenameFirst(u"b"_s), 53);
}
