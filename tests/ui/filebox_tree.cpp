// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/support/Printing.h"
#include "tests/ui/ScriptedMachine.h"
#include "ui/folders/FileBoxKey.h"
#include "ui/folders/FileBoxTree.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class FileBox : public testing::Test {
protected:
    FileBox() { tree_.Refresh(); }

    [[nodiscard]] int Child(int node, int row) const {
        return FileBoxTree::NodeOf(tree_.index(row, 0, tree_.IndexOf(node)));
    }

    [[nodiscard]] int Count(int node) const { return tree_.rowCount(tree_.IndexOf(node)); }

    [[nodiscard]] QString Text(int node) const { return tree_.data(tree_.IndexOf(node), Qt::DisplayRole).toString(); }

    [[nodiscard]] QString Image(int node) const {
        return tree_.data(tree_.IndexOf(node), FileBoxTree::ImageRole).toString();
    }

    [[nodiscard]] QStringList Texts(int node) const {
        QStringList texts;
        for (int row = 0; row < Count(node); ++row)
            texts += Text(Child(node, row));
        return texts;
    }

    [[nodiscard]] QStringList Keys(int node) const {
        QStringList keys;
        for (int row = 0; row < Count(node); ++row)
            keys += tree_.Key(Child(node, row));
        return keys;
    }

    /// Opens the drive C and returns its node.
    int OpenC() {
        const int drive = tree_.TopNode(FileBoxKey::HardDrive);
        tree_.Open(drive);
        return drive;
    }

    ScriptedMachine machine_;
    FileBoxTree tree_{machine_};
    std::vector<ScriptedMachine::Entry>& c_ = machine_.Entries[u"C:\\"_s];
};

} // namespace

TEST(FileBoxKeys, ThePathStandsAfterTheLastAsterisk) {
    EXPECT_EQ(FileBoxKey::PathOf(u"*root*"_s), QString());
    EXPECT_EQ(FileBoxKey::PathOf(u"*HardDrive*C:\\"_s), u"C:\\"_s);
    EXPECT_EQ(FileBoxKey::PathOf(u"***BIDON****HardDrive*C:\\"_s), u"C:\\"_s);
}

TEST(FileBoxKeys, AnAsteriskInANameDoesNotCutThePath) {
    const QString key = FileBoxKey::Of(FileBoxKey::CloseFolder, u"\\home\\a*b\\"_s);
    EXPECT_EQ(key.count(u'*'), 2);
    EXPECT_EQ(FileBoxKey::PathOf(key), u"\\home\\a*b\\"_s);
}

TEST_F(FileBox, TheTopNodeIsTheOnlyOneAndItsPathIsEmpty) {
    EXPECT_EQ(tree_.rowCount({}), 1);
    EXPECT_EQ(tree_.Key(tree_.Root()), u"*root*"_s);
    EXPECT_EQ(tree_.Path(tree_.Root()), QString());
    EXPECT_EQ(tree_.Path(FileBoxTree::None), QString());
}

TEST_F(FileBox, BelowItAreDocumentsNetworkAndDrivesByTheirKind) {
    EXPECT_EQ(Keys(tree_.Root()),
              QStringList({u"*MyDocuments*C:\\Users\\Me\\Documents\\"_s, u"*NetHood*C:\\Users\\Me\\NetHood\\"_s,
                           u"*Floppy*A:\\"_s, u"*HardDrive*C:\\"_s, u"*CDRom*D:\\"_s, u"*LanDrive*N:\\"_s}));
    EXPECT_EQ(Texts(tree_.Root()).mid(2), QStringList({u"A:\\"_s, u"C:\\"_s, u"D:\\"_s, u"N:\\"_s}));
    for (int row = 0; row < 6; ++row)
        EXPECT_EQ(Image(Child(tree_.Root(), row)), FileBoxKey::MarkOf(tree_.Key(Child(tree_.Root(), row))));
}

TEST_F(FileBox, NamesComeFromTheRegistryElseAreTheUsualOnes) {
    EXPECT_EQ(Text(tree_.Root()), u"Poste de travail"_s);
    EXPECT_EQ(Texts(tree_.Root()).first(2), QStringList({u"Mes documents"_s, u"Favoris R\u00E9seau"_s}));
    machine_.Names = {{FileBoxSystem::ShellFolder::Machine, u"My Computer"_s},
                      {FileBoxSystem::ShellFolder::Documents, u"My Documents"_s},
                      {FileBoxSystem::ShellFolder::Network, u"My Network"_s}};
    tree_.Refresh();
    EXPECT_EQ(Text(tree_.Root()), u"My Computer"_s);
    EXPECT_EQ(Texts(tree_.Root()).first(2), QStringList({u"My Documents"_s, u"My Network"_s}));
}

TEST_F(FileBox, AHomeFolderStandsBesideTheDocuments) {
    machine_.Others = {{u"\\home\\me"_s, u"me"_s}};
    tree_.Refresh();
    EXPECT_EQ(tree_.Key(Child(tree_.Root(), 2)), u"*CloseFolder*\\home\\me\\"_s);
    EXPECT_EQ(Text(Child(tree_.Root(), 2)), u"me"_s);
}

TEST_F(FileBox, AClosedNodeHasAPlaceholderSoThatItShowsAnExpander) {
    const int drive = tree_.TopNode(FileBoxKey::HardDrive);
    ASSERT_EQ(Count(drive), 1);
    EXPECT_EQ(tree_.Key(Child(drive, 0)), u"***BIDON****HardDrive*C:\\"_s);
    EXPECT_EQ(Text(Child(drive, 0)), u"BIDON"_s);
    EXPECT_EQ(tree_.Path(Child(drive, 0)), u"C:\\"_s);
    EXPECT_TRUE(machine_.Walked.isEmpty());
}

TEST_F(FileBox, OpeningReadsOnlyThatBranch) {
    c_ = {ScriptedMachine::Folder(u"Games"_s), ScriptedMachine::Folder(u"Windows"_s)};
    const int drive = OpenC();
    EXPECT_EQ(Keys(drive), QStringList({u"*CloseFolder*C:\\Games\\"_s, u"*CloseFolder*C:\\Windows\\"_s}));
    EXPECT_EQ(tree_.Path(Child(drive, 0)), u"C:\\Games\\"_s);
    EXPECT_EQ(machine_.Walked, QStringList(u"C:\\"_s));
    EXPECT_TRUE(tree_.IsUnread(Child(drive, 0)));
}

TEST_F(FileBox, AFolderWithoutSubfoldersLosesItsExpanderWhenOpened) {
    c_ = {ScriptedMachine::Folder(u"Empty"_s)};
    const int folder = Child(OpenC(), 0);
    EXPECT_EQ(Count(folder), 1);
    tree_.Open(folder);
    EXPECT_EQ(Count(folder), 0);
}

TEST_F(FileBox, ADriveWithoutAMediumLosesItsPlaceholder) {
    const int drive = tree_.TopNode(FileBoxKey::Floppy);
    tree_.Open(drive);
    EXPECT_EQ(Count(drive), 0);
    EXPECT_TRUE(tree_.Has(drive));
}

TEST_F(FileBox, ANetworkThatTheMachineDoesNotHaveIsNotRead) {
    machine_.NetworkFolder.clear();
    tree_.Refresh();
    const int network = tree_.TopNode(FileBoxKey::Network);
    EXPECT_EQ(tree_.Path(network), QString());
    tree_.Open(network);
    EXPECT_EQ(Count(network), 0);
    EXPECT_TRUE(machine_.Walked.isEmpty());
}

TEST_F(FileBox, AnOpenedBranchKeepsWhatItReadUntilRefresh) {
    c_ = {ScriptedMachine::Folder(u"Old"_s)};
    const int drive = OpenC();
    c_.push_back(ScriptedMachine::Folder(u"Later"_s));
    tree_.Close(drive);
    tree_.Open(drive);
    EXPECT_EQ(Texts(drive), QStringList(u"Old"_s));
    EXPECT_EQ(machine_.Walked.size(), 1);
    tree_.Refresh();
    EXPECT_FALSE(tree_.Has(drive));
    EXPECT_EQ(Texts(OpenC()), QStringList({u"Old"_s, u"Later"_s}));
}

TEST_F(FileBox, ClosingSwapsTheMarkAndTheChildrenStay) {
    c_ = {ScriptedMachine::Folder(u"Games"_s)};
    machine_.Entries[u"C:\\Games\\"_s] = {ScriptedMachine::Folder(u"Maps"_s)};
    const int folder = Child(OpenC(), 0);
    EXPECT_EQ(Image(folder), u"*CloseFolder*"_s);
    tree_.Open(folder);
    EXPECT_EQ(tree_.Key(folder), u"*OpenFolder*C:\\Games\\"_s);
    EXPECT_EQ(Image(folder), u"*OpenFolder*"_s);
    EXPECT_EQ(tree_.Path(folder), u"C:\\Games\\"_s);
    tree_.Close(folder);
    EXPECT_EQ(tree_.Key(folder), u"*CloseFolder*C:\\Games\\"_s);
    EXPECT_EQ(Texts(folder), QStringList(u"Maps"_s));
}

TEST_F(FileBox, HiddenEntriesAppearOnlyWhenWanted) {
    c_ = {ScriptedMachine::Hidden(ScriptedMachine::Folder(u"Secret"_s)), ScriptedMachine::Folder(u"Seen"_s),
          ScriptedMachine::Hidden(ScriptedMachine::File(u"boot.ini"_s))};
    EXPECT_EQ(Texts(OpenC()), QStringList(u"Seen"_s));
    tree_.ShowHiddenFiles = true;
    tree_.Refresh();
    EXPECT_EQ(Texts(OpenC()), QStringList({u"Secret"_s, u"Seen"_s}));
    tree_.ShowFiles = true;
    tree_.Refresh();
    EXPECT_EQ(Texts(OpenC()), QStringList({u"Secret"_s, u"Seen"_s, u"boot.ini"_s}));
}

TEST_F(FileBox, FilesStandAfterAllFoldersAndHaveNoExpander) {
    c_ = {ScriptedMachine::File(u"a.txt"_s), ScriptedMachine::Folder(u"Z"_s), ScriptedMachine::File(u"README"_s)};
    EXPECT_EQ(Texts(OpenC()), QStringList(u"Z"_s));
    tree_.ShowFiles = true;
    tree_.Refresh();
    const int drive = OpenC();
    EXPECT_EQ(Texts(drive), QStringList({u"Z"_s, u"a.txt"_s, u"README"_s})); // an empty filter shows every file
    EXPECT_EQ(Count(Child(drive, 1)), 0);
    EXPECT_EQ(tree_.Path(Child(drive, 1)), u"C:\\a.txt"_s);
}

TEST_F(FileBox, TheFilterIsMatchedOnFourCharacters) {
    tree_.ShowFiles = true;
    tree_.Filter = u"*.big;*.jpeg"_s;
    c_ = {ScriptedMachine::File(u"a.big"_s),  ScriptedMachine::File(u"b.BIG"_s), ScriptedMachine::File(u"c.txt"_s),
          ScriptedMachine::File(u"d.jpeg"_s), ScriptedMachine::File(u"big"_s),   ScriptedMachine::File(u"e.jpg"_s)};
    EXPECT_EQ(Texts(OpenC()), QStringList({u"a.big"_s, u"d.jpeg"_s, u"big"_s}));
}

TEST_F(FileBox, AFolderShowsAtMost10001Files) {
    tree_.ShowFiles = true;
    for (int number = 0; number < 10'003; ++number)
        c_.push_back(ScriptedMachine::File(QString::number(number)));
    c_.push_back(ScriptedMachine::Folder(u"Last"_s));
    const int drive = OpenC();
    EXPECT_EQ(Count(drive), 10'002);
    EXPECT_EQ(Text(Child(drive, 0)), u"Last"_s);
    EXPECT_EQ(Text(Child(drive, 10'001)), u"10000"_s);
}

TEST_F(FileBox, AShortcutToAFolderHasTheTargetAsItsPathAndPicturesOfItsOwn) {
    c_ = {ScriptedMachine::Shortcut(u"Maps.lnk"_s, u"D:\\My Maps"_s, true)};
    const int shortcut = Child(OpenC(), 0);
    EXPECT_EQ(Text(shortcut), u"Maps"_s);
    EXPECT_EQ(tree_.Path(shortcut), u"D:\\My Maps\\"_s);
    EXPECT_EQ(Image(shortcut), u"D:\\My Maps\\Closed"_s);
    EXPECT_TRUE(tree_.IsUnread(shortcut));
    tree_.Open(shortcut);
    EXPECT_EQ(Image(shortcut), u"D:\\My Maps\\Open"_s);
    EXPECT_EQ(machine_.Walked.last(), u"D:\\My Maps\\"_s);
}

TEST_F(FileBox, AShortcutToAFileOrToNothingIsAFile) {
    c_ = {ScriptedMachine::Shortcut(u"Game.lnk"_s, u"D:\\game.exe"_s, false), ScriptedMachine::File(u"Broken.lnk"_s)};
    EXPECT_EQ(Count(OpenC()), 0);
    tree_.ShowFiles = true;
    tree_.Refresh();
    const int drive = OpenC();
    EXPECT_EQ(Texts(drive), QStringList({u"Game.lnk"_s, u"Broken.lnk"_s}));
    EXPECT_EQ(tree_.Path(Child(drive, 0)), u"C:\\Game.lnk"_s);
}

TEST_F(FileBox, UnderTheNetworkNodeAShortcutsNameIsItsTextAndItsTargetThePath) {
    machine_.Entries[u"C:\\Users\\Me\\NetHood\\"_s] = {
        ScriptedMachine::Shortcut(u"Server.lnk"_s, u"\\\\server\\share"_s, true)};
    const int network = tree_.TopNode(FileBoxKey::Network);
    tree_.Open(network);
    EXPECT_EQ(Texts(network), QStringList(u"Server"_s));
    EXPECT_EQ(tree_.Path(Child(network, 0)), u"\\\\server\\share\\"_s);
}

TEST_F(FileBox, ALinkThatLeadsInACircleIsReadOneTurnAtATime) {
    c_ = {ScriptedMachine::Link(u"Again"_s, u"C:\\"_s)};
    int node = OpenC();
    for (int turn = 0; turn < 5; ++turn) {
        node = Child(node, 0);
        EXPECT_EQ(tree_.Path(node), u"C:\\"_s);
        tree_.Open(node);
    }
    EXPECT_EQ(machine_.Walked.size(), 6);
}

TEST_F(FileBox, TheInterfaceIsServedDuringTheWalk) {
    c_ = {ScriptedMachine::Folder(u"A"_s), ScriptedMachine::Folder(u"B"_s), ScriptedMachine::Folder(u"C"_s)};
    int served = 0;
    tree_.Yield = [&] { ++served; };
    OpenC();
    EXPECT_EQ(served, 3);
}

TEST_F(FileBox, ANodeThatGoesDuringItsWalkEndsTheWalk) {
    c_ = {ScriptedMachine::Folder(u"A"_s), ScriptedMachine::Folder(u"B"_s)};
    int served = 0;
    tree_.Yield = [&] {
        ++served;
        tree_.Refresh();
    };
    const int drive = OpenC();
    EXPECT_EQ(served, 1);
    EXPECT_FALSE(tree_.Has(drive));
    EXPECT_TRUE(tree_.IsUnread(tree_.TopNode(FileBoxKey::HardDrive)));
}

TEST_F(FileBox, ANodeThatIsBeingReadIsNotReadTwice) {
    c_ = {ScriptedMachine::Folder(u"A"_s)};
    const int drive = tree_.TopNode(FileBoxKey::HardDrive);
    tree_.Yield = [&] { tree_.Open(drive); };
    tree_.Open(drive);
    EXPECT_EQ(machine_.Walked.size(), 1);
    EXPECT_EQ(Count(drive), 1);
}

TEST_F(FileBox, AFolderJustMadeStandsAfterTheOtherFolders) {
    tree_.ShowFiles = true;
    c_ = {ScriptedMachine::Folder(u"A"_s), ScriptedMachine::File(u"f.txt"_s)};
    const int drive = OpenC();
    const int made = tree_.AddFolder(drive, u"New"_s);
    EXPECT_EQ(Texts(drive), QStringList({u"A"_s, u"New"_s, u"f.txt"_s}));
    EXPECT_EQ(tree_.Path(made), u"C:\\New\\"_s);
    EXPECT_EQ(tree_.IndexOf(Child(drive, 2)).row(), 2);
    EXPECT_EQ(tree_.AddFolder(FileBoxTree::None, u"x"_s), FileBoxTree::None);
}

TEST_F(FileBox, WithoutARefreshTheTreeIsEmpty) {
    const FileBoxTree fresh(machine_);
    EXPECT_EQ(fresh.rowCount({}), 0);
    tree_.Use(machine_);
    EXPECT_EQ(tree_.rowCount({}), 0);
}
