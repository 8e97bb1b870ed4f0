// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The tree of what was found, without any control.
#include "tests/install/WizardTest.h"

#include "install/wizard/FilesTree.h"

using namespace Qt::StringLiterals;

namespace {

class FilesTreeTest : public WizardTest {
protected:
    FilesTree& Tree(const QString& path) {
        Analyse(path);
        tree_ = std::make_unique<FilesTree>(AddFiles::Source, zip_);
        return *tree_;
    }

    FilesTree& ZipTree(const std::vector<Part>& parts) { return Tree(PutZip(parts)); }

    [[nodiscard]] const FilesNode& Node(const QString& key) const {
        return tree_->Nodes().at(static_cast<std::size_t>(tree_->PlaceOf(key)));
    }

    [[nodiscard]] QStringList Keys() const {
        QStringList keys;
        for (const FilesNode& node : tree_->Nodes())
            keys += node.Key;
        return keys;
    }

    static const InstallRecord& Record(std::size_t number) { return AddFiles::Source.InstallRecords.at(number); }

    std::unique_ptr<FilesTree> tree_;
};

} // namespace

TEST_F(FilesTreeTest, ASingleMapStandsInAnOpenGroupWithoutACount) {
    Tree(Put(u"a.map"_s));
    EXPECT_EQ(Keys(), (QStringList{u"Maps"_s, u"Single"_s}));
    EXPECT_EQ(Node(u"Maps"_s).Text, u"Maps"_s);
    EXPECT_EQ(Node(u"Maps"_s).Image, FilesNode::GroupImage);
    EXPECT_EQ(Node(u"Maps"_s).OpenImage, FilesNode::OpenGroupImage);
    EXPECT_TRUE(Node(u"Maps"_s).Open);
    EXPECT_FALSE(Node(u"Maps"_s).Greyed);
    EXPECT_EQ(Node(u"Single"_s).Text, u"a.map"_s);
    EXPECT_EQ(Node(u"Single"_s).Image, FilesNode::FileImage);
    EXPECT_EQ(Node(u"Single"_s).Parent, u"Maps"_s);
    EXPECT_FALSE(Node(u"Single"_s).Checked);
}

TEST_F(FilesTreeTest, ASingleModsGroupHasNoPictureForOpen) {
    Tree(Put(u"a.big"_s));
    EXPECT_EQ(Keys(), (QStringList{u"Mods"_s, u"Single"_s}));
    EXPECT_EQ(Node(u"Mods"_s).OpenImage, 0);
    EXPECT_TRUE(Node(u"Mods"_s).Open);
    Tree(Put(u"a.rep"_s));
    EXPECT_EQ(Keys(), (QStringList{u"Replays"_s, u"Single"_s}));
    EXPECT_EQ(Node(u"Replays"_s).OpenImage, 0);
    Tree(Put(u"shellmap1.map"_s));
    EXPECT_EQ(Keys(), (QStringList{u"Shellmaps"_s, u"Single"_s}));
    EXPECT_EQ(Node(u"Shellmaps"_s).OpenImage, FilesNode::OpenGroupImage);
}

TEST_F(FilesTreeTest, AFileOfAnotherEndingLeavesTheTreeEmpty) {
    EXPECT_TRUE(Tree(Put(u"a.txt"_s)).Nodes().empty());
    EXPECT_EQ(tree_->Details(u"Single"_s).File, u"-"_s);
}

TEST_F(FilesTreeTest, AnArchivesGroupsStandInOrderWithTheirCounts) {
    ZipTree({{.Name = "d/a.rep"}, {.Name = "m/m.map"}, {.Name = "readme.txt"}, {.Name = "b.rep"}});
    EXPECT_EQ(Keys(), (QStringList{u"Maps"_s, u"Mods"_s, u"Replays"_s, u"Shellmaps"_s, u"ZIP:0"_s, u"ZIP:1"_s,
                                   u"ZIP:2"_s, u"PassedOver"_s, u"Over:0"_s}));
    EXPECT_EQ(Node(u"Maps"_s).Text, u"Maps (1)"_s);
    EXPECT_EQ(Node(u"Mods"_s).Text, u"Mods (0)"_s);
    EXPECT_EQ(Node(u"Replays"_s).Text, u"Replays (2)"_s);
    EXPECT_EQ(Node(u"Shellmaps"_s).Text, u"Shellmaps (0)"_s);
    for (const QString& key : {u"Maps"_s, u"Mods"_s, u"Replays"_s, u"Shellmaps"_s}) {
        EXPECT_EQ(Node(key).Greyed, Node(key).Children.empty()) << key.toStdString();
        EXPECT_TRUE(Node(key).Open && Node(key).HasCheckBox && !Node(key).Checked);
        EXPECT_EQ(Node(key).OpenImage, FilesNode::OpenGroupImage);
    }
    EXPECT_EQ(Node(u"ZIP:0"_s).Text, u"a.rep"_s);
    EXPECT_EQ(Node(u"ZIP:0"_s).Parent, u"Replays"_s);
    EXPECT_EQ(Node(u"ZIP:1"_s).Parent, u"Maps"_s);
    EXPECT_EQ(Node(u"ZIP:2"_s).Row, 1);
    EXPECT_EQ(Node(u"Replays"_s).Row, 2);
    EXPECT_EQ(Node(u"Replays"_s).Children, (std::vector{4, 6}));
}

TEST_F(FilesTreeTest, AShellMapWithItsRecordIsOneShellMap) {
    ZipTree({{.Name = "S/shellmap1.map"}, {.Name = "S/QvInfos.ini", .Content = "[Infos]\nName=Bay\n"}});
    EXPECT_EQ(Node(u"Shellmaps"_s).Text, u"Shellmaps (1)"_s);
    const FilesDetails details = tree_->Details(u"ZIP:0"_s);
    EXPECT_EQ(details.Name, u"Bay"_s);
    EXPECT_TRUE(details.BoxesVisible && details.LabelsVisible);
}

TEST_F(FilesTreeTest, TextsAreTheLanguages) {
    world_.UseLanguage("[LNG]\r\nMaps=Cartes\r\nShellMaps=Menus\r\nPassedOver=Rest\r\nPassedOverToRead=To read\r\n");
    world_.Start();
    ZipTree({{.Name = "m.map"}, {.Name = "d/readme.txt"}});
    EXPECT_EQ(Node(u"Maps"_s).Text, u"Cartes (1)"_s);
    EXPECT_EQ(Node(u"Shellmaps"_s).Text, u"Menus (0)"_s);
    EXPECT_EQ(Node(u"PassedOver"_s).Text, u"Rest (1)"_s);
}

TEST_F(FilesTreeTest, WhatIsPassedOverStandsInAClosedGreyGroupWithoutCheckBoxes) {
    world_.UseLanguage("[LNG]\r\nPassedOverToRead=To read\r\n");
    world_.Start();
    const QString zip = PutZip({{.Name = "a.rep"}, {.Name = "d/x.txt"}, {.Name = "d/y.txt"}});
    Tree(zip);
    EXPECT_EQ(Node(u"PassedOver"_s).Text, u"PassedOver (2)"_s);
    EXPECT_FALSE(Node(u"PassedOver"_s).Open);
    EXPECT_EQ(Node(u"PassedOver"_s).Row, 4);
    for (const QString& key : {u"PassedOver"_s, u"Over:0"_s, u"Over:1"_s})
        EXPECT_TRUE(Node(key).Greyed && !Node(key).HasCheckBox) << key.toStdString();
    EXPECT_EQ(Node(u"Over:1"_s).Text, u"d/y.txt"_s);
    EXPECT_EQ(Node(u"Over:1"_s).Reason, u"To read"_s);
    const FilesDetails details = tree_->Select(u"Over:1"_s);
    EXPECT_EQ(details.Reason, u"To read"_s);
    EXPECT_EQ(details.File, Paths::ToNative(zip) + u"/d/y.txt"_s);
    EXPECT_FALSE(details.BoxesVisible || details.LabelsVisible);
    tree_->Tick(u"PassedOver"_s, true);
    tree_->Tick(u"Over:0"_s, true);
    EXPECT_FALSE(Node(u"PassedOver"_s).Checked || Node(u"Over:0"_s).Checked);
}

TEST_F(FilesTreeTest, NothingIsPassedOverWithoutSuchAGroup) {
    ZipTree({{.Name = "a.rep"}});
    EXPECT_EQ(tree_->PlaceOf(u"PassedOver"_s), -1);
}

TEST_F(FilesTreeTest, AGroupsTickGoesToItsFilesAlone) {
    ZipTree({{.Name = "a.rep"}, {.Name = "m.map"}, {.Name = "b.rep"}});
    tree_->Tick(u"Replays"_s, true);
    EXPECT_TRUE(Node(u"Replays"_s).Checked && Node(u"ZIP:0"_s).Checked && Node(u"ZIP:2"_s).Checked);
    EXPECT_TRUE(Record(0).Selected && Record(2).Selected);
    EXPECT_FALSE(Node(u"ZIP:1"_s).Checked || Record(1).Selected);
    tree_->Tick(u"ZIP:2"_s, false);
    EXPECT_TRUE(Node(u"Replays"_s).Checked);
    EXPECT_FALSE(Record(2).Selected);
    tree_->Tick(u"Replays"_s, false);
    EXPECT_FALSE(Record(0).Selected || Node(u"ZIP:0"_s).Checked);
}

TEST_F(FilesTreeTest, AFilesTickIsItsRecords) {
    ZipTree({{.Name = "a.rep"}, {.Name = "m.map"}});
    tree_->Tick(u"ZIP:1"_s, true);
    EXPECT_FALSE(Record(0).Selected);
    EXPECT_TRUE(Record(1).Selected && Node(u"ZIP:1"_s).Checked);
    EXPECT_FALSE(Node(u"Maps"_s).Checked);
}

TEST_F(FilesTreeTest, AnEmptyGroupKeepsItsTick) {
    ZipTree({{.Name = "a.rep"}});
    tree_->Tick(u"Maps"_s, true);
    EXPECT_TRUE(Node(u"Maps"_s).Checked);
    EXPECT_FALSE(Record(0).Selected || Node(u"Replays"_s).Checked);
}

TEST_F(FilesTreeTest, ASingleFilesTickIsStoredByItsGroupAlone) {
    Tree(Put(u"a.map"_s));
    tree_->Tick(u"Single"_s, true);
    EXPECT_TRUE(Node(u"Single"_s).Checked);
    EXPECT_FALSE(AddFiles::Source.SingleFile.Selected);
    tree_->Tick(u"Maps"_s, true);
    EXPECT_TRUE(AddFiles::Source.SingleFile.Selected);
}

TEST_F(FilesTreeTest, AKeyThatNoNodeHasDoesNothing) {
    ZipTree({{.Name = "a.rep"}});
    for (const QString& key : {u"ZIP:1"_s, u"ZIP:-1"_s, u"ZIP:x"_s, u"Single"_s, u""_s}) {
        tree_->Tick(key, true);
        EXPECT_EQ(tree_->Select(key).File, u"-"_s) << key.toStdString();
        EXPECT_EQ(tree_->PreviewFile(key).File, QString());
    }
    EXPECT_FALSE(Record(0).Selected);
}

TEST_F(FilesTreeTest, AGroupsDetailsAreADash) {
    ZipTree({{.Name = "a.big"}});
    const FilesDetails details = tree_->Select(u"Mods"_s);
    EXPECT_EQ(details.File, u"-"_s);
    EXPECT_FALSE(details.BoxesVisible || details.LabelsVisible);
}

TEST_F(FilesTreeTest, AModsBoxesHaveNoLabels) {
    Put(u"a.ini"_s, "[Mod]\r\nName=n\r\nComments=c\r\n");
    const QString path = Put(u"a.big"_s);
    Tree(path);
    const FilesDetails details = tree_->Select(u"Single"_s);
    EXPECT_EQ(details.File, Paths::ToNative(path));
    EXPECT_TRUE(details.BoxesVisible);
    EXPECT_FALSE(details.LabelsVisible);
    EXPECT_EQ(details.Name, u"n"_s);
    EXPECT_EQ(details.Comments, u"c"_s);
}

TEST_F(FilesTreeTest, BoxesAreShownByTheNodesText) {
    ZipTree({{.Name = "S/my shellmap1.map"},
             {.Name = "S/ShellMapMD.map"},
             {.Name = "S/x.map"},
             {.Name = "x.rep"},
             {.Name = "BIG"}});
    EXPECT_FALSE(tree_->Details(u"ZIP:0"_s).BoxesVisible);
    EXPECT_TRUE(tree_->Details(u"ZIP:1"_s).BoxesVisible && tree_->Details(u"ZIP:1"_s).LabelsVisible);
    EXPECT_FALSE(tree_->Details(u"ZIP:2"_s).BoxesVisible);
    EXPECT_FALSE(tree_->Details(u"ZIP:3"_s).BoxesVisible);
    EXPECT_TRUE(tree_->Details(u"ZIP:4"_s).BoxesVisible && !tree_->Details(u"ZIP:4"_s).LabelsVisible);
    EXPECT_EQ(tree_->Details(u"ZIP:2"_s).File, Paths::ToNative(zip_.Name) + u"/S/x.map"_s);
}

TEST_F(FilesTreeTest, WhatIsTypedGoesToTheSelectedRecord) {
    ZipTree({{.Name = "a.big"}, {.Name = "b.big"}});
    tree_->Select(u"ZIP:1"_s);
    tree_->NameTyped(u"N"_s);
    tree_->CommentsTyped(u"C"_s);
    EXPECT_EQ(Record(1).DisplayName, u"N"_s);
    EXPECT_EQ(Record(1).Comments, u"C"_s);
    EXPECT_EQ(Record(0).DisplayName, QString());
    EXPECT_EQ(tree_->Details(u"ZIP:1"_s).Name, u"N"_s);
}

TEST_F(FilesTreeTest, WhatIsTypedForASingleFileIsNotKept) {
    Put(u"a.ini"_s, "[Mod]\r\nName=n\r\nComments=c\r\n");
    Tree(Put(u"a.big"_s));
    EXPECT_EQ(ErrorOf([&] { tree_->NameTyped(u"N"_s); }), ErrorNumber::TypeMismatch);
    tree_->Select(u"Single"_s);
    EXPECT_EQ(ErrorOf([&] { tree_->NameTyped(u"N"_s); }), ErrorNumber::TypeMismatch);
    EXPECT_EQ(ErrorOf([&] { tree_->CommentsTyped(u"C"_s); }), ErrorNumber::TypeMismatch);
    EXPECT_EQ(AddFiles::Source.SingleFile.DisplayName, u"n"_s);
    EXPECT_EQ(AddFiles::Source.SingleFile.Comments, u"c"_s);
}

TEST_F(FilesTreeTest, ASingleMapsPictureStandsBesideIt) {
    const QString picture = Put(u"a.tga"_s);
    Tree(Put(u"a.map"_s));
    EXPECT_EQ(tree_->PreviewFile(u"Single"_s).File, picture);
    EXPECT_FALSE(tree_->PreviewFile(u"Single"_s).IsExtracted);
    EXPECT_EQ(tree_->PreviewFile(u"Maps"_s).File, QString());
    Tree(Put(u"b.map"_s));
    EXPECT_EQ(tree_->PreviewFile(u"Single"_s).File, QString());
}

TEST_F(FilesTreeTest, AnEntrysPictureIsExtracted) {
    ZipTree({{.Name = "A/a.map"},
             {.Name = "A/a.tga", .Content = "picture"},
             {.Name = "b.map"},
             {.Name = "S/shellmap1.map"},
             {.Name = "S/shellmap1.tga"},
             {.Name = "c.map"},
             {.Name = "c.TGA"},
             {.Name = "a.rep"},
             {.Name = "a.tga"}});
    const FilesTree::Preview preview = tree_->PreviewFile(u"ZIP:0"_s);
    EXPECT_EQ(preview.File, ProgramFolders::ScratchFolder() + u"\\a.tga"_s);
    EXPECT_TRUE(preview.IsExtracted);
    EXPECT_EQ(World::ReadFile(preview.File), "picture");
    EXPECT_EQ(tree_->PreviewFile(u"ZIP:1"_s).File, QString());
    EXPECT_EQ(tree_->PreviewFile(u"ZIP:2"_s).File, ProgramFolders::ScratchFolder() + u"\\shellmap1.tga"_s);
    EXPECT_EQ(tree_->PreviewFile(u"ZIP:3"_s).File, QString());
    EXPECT_EQ(tree_->PreviewFile(u"ZIP:4"_s).File, QString());
}

TEST_F(FilesTreeTest, APictureOfAHostileNameStaysInTheScratchFolder) {
    ZipTree({{.Name = "x/..\\a.map", .Host = 3},
             {.Name = "x/..\\a.tga", .Host = 3},
             {.Name = "x/...map"},
             {.Name = "x/...tga"},
             {.Name = "map"},
             {.Name = "tga"}});
    EXPECT_EQ(tree_->PreviewFile(u"ZIP:0"_s).File, ProgramFolders::ScratchFolder() + u"\\a.tga"_s);
    EXPECT_EQ(tree_->PreviewFile(u"ZIP:2"_s).File, ProgramFolders::ScratchFolder() + u"\\tga"_s);
    EXPECT_FALSE(Files::FileExists(world_.ProgramFolder() + u"\\a.tga"_s));
}

TEST_F(FilesTreeTest, AGroupTicksItsTenThousandFiles) {
    std::vector<Part> parts;
    parts.reserve(10000);
    for (int number = 0; number < 10000; ++number)
        parts.push_back({.Name = QByteArray::number(number) + ".rep"});
    ZipTree(parts);
    EXPECT_EQ(Node(u"Replays"_s).Text, u"Replays (10000)"_s);
    tree_->Tick(u"Replays"_s, true);
    for (const InstallRecord& record : AddFiles::Source.InstallRecords)
        ASSERT_TRUE(record.Selected);
}
