// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The folder tree over dot files and symbolic links.

#include "tests/platform/Scratch.h"
#include "tests/ui/ScriptedMachine.h"
#include "ui/folders/FileBoxKey.h"
#include "ui/folders/FileBoxTree.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// The disk as it is, with one drive that a test has made.
class DiskMachine : public FileBoxSystem {
public:
    explicit DiskMachine(QString drive) : drive_(std::move(drive)) {}

    [[nodiscard]] QString NameOf(ShellFolder /*folder*/) const override { return {}; }

    [[nodiscard]] std::vector<ShellFolders::Drive> Drives() const override {
        return {{drive_, drive_, ShellFolders::DriveKind::Fixed}};
    }

private:
    QString drive_;
};

class FileBoxOnDisk : public testing::Test {
protected:
    QStringList OpenedTexts() {
        tree_.Refresh();
        drive_ = tree_.TopNode(FileBoxKey::HardDrive);
        tree_.Open(drive_);
        QStringList texts;
        for (int row = 0; row < tree_.rowCount(tree_.IndexOf(drive_)); ++row)
            texts += tree_.index(row, 0, tree_.IndexOf(drive_)).data().toString();
        return texts;
    }

    Scratch scratch_;
    QString root_ = Paths::Real(scratch_.Inside(u"."_s));
    DiskMachine machine_{root_};
    FileBoxTree tree_{machine_};
    int drive_ = FileBoxTree::None;
};

} // namespace

TEST_F(FileBoxOnDisk, DotFoldersAreHidden) {
    scratch_.Write(u".git/x"_s, "x");
    scratch_.Write(u"Maps/x"_s, "x");
    EXPECT_EQ(OpenedTexts(), QStringList(u"Maps"_s));
    tree_.ShowHiddenFiles = true;
    EXPECT_EQ(OpenedTexts(), QStringList({u".git"_s, u"Maps"_s}));
}

TEST_F(FileBoxOnDisk, ALinkToAFolderHasTheTargetAsItsPathAndABrokenOneIsAFile) {
    scratch_.Write(u"Maps/x"_s, "x");
    scratch_.Write(u"file"_s, "x");
    ASSERT_TRUE(QFile::link(scratch_.Native(u"Maps"_s), scratch_.Native(u"Other"_s)));
    ASSERT_TRUE(QFile::link(scratch_.Native(u"gone"_s), scratch_.Native(u"Broken"_s)));
    ASSERT_TRUE(QFile::link(scratch_.Native(u"file"_s), scratch_.Native(u"ToFile"_s)));
    EXPECT_EQ(OpenedTexts(), QStringList({u"Maps"_s, u"Other"_s}));
    const QModelIndex other = tree_.index(1, 0, tree_.IndexOf(drive_));
    EXPECT_EQ(tree_.Path(FileBoxTree::NodeOf(other)), root_ + u"\\Maps\\"_s);
    tree_.ShowFiles = true;
    EXPECT_EQ(OpenedTexts(), QStringList({u"Maps"_s, u"Other"_s, u"Broken"_s, u"file"_s, u"ToFile"_s}));
}

TEST_F(FileBoxOnDisk, ACyclicLinkIsHarmless) {
    ASSERT_TRUE(QFile::link(scratch_.Native(u"."_s), scratch_.Native(u"circle"_s)));
    ASSERT_TRUE(QFile::link(scratch_.Native(u"itself"_s), scratch_.Native(u"itself"_s)));
    EXPECT_EQ(OpenedTexts(), QStringList(u"circle"_s));
    const int circle = FileBoxTree::NodeOf(tree_.index(0, 0, tree_.IndexOf(drive_)));
    tree_.Open(circle);
    EXPECT_EQ(tree_.rowCount(tree_.IndexOf(circle)), 1);
    EXPECT_EQ(tree_.Path(circle), root_ + u'\\');
}

TEST_F(FileBoxOnDisk, ANameWithAnAsteriskOrABlankAtItsEndKeepsItsPath) {
    scratch_.Write(u"a*b/sub/x"_s, "x");
    scratch_.Write(u"blank /sub/x"_s, "x");
    EXPECT_EQ(OpenedTexts(), QStringList({u"a*b"_s, u"blank "_s}));
    for (const int row : {0, 1}) {
        const int folder = FileBoxTree::NodeOf(tree_.index(row, 0, tree_.IndexOf(drive_)));
        tree_.Open(folder);
        EXPECT_EQ(tree_.rowCount(tree_.IndexOf(folder)), 1);
    }
}

TEST(NetworkPlaces, AreWhatTheDesktopHasMountedForTheUser) {
    const Scratch scratch;
    const Variable runtime("XDG_RUNTIME_DIR", QFile::encodeName(scratch.Native(u"."_s)));
    EXPECT_TRUE(ShellFolders::NetworkPlaces().isEmpty());
    scratch.Write(u"gvfs/smb-share/x"_s, "x");
    EXPECT_TRUE(ShellFolders::NetworkPlaces().endsWith(u"\\gvfs"));
}

TEST(NetworkPlaces, WithoutADocumentsFolderTheHomeFolderStandsForIt) {
    const Scratch scratch;
    const Variable home("HOME", QFile::encodeName(QFileInfo(scratch.Native(u"."_s)).canonicalFilePath()));
    const Variable config("XDG_CONFIG_HOME", QByteArray("/nowhere"));
    const QString inside = Paths::FromNative(QDir::homePath());
    EXPECT_EQ(ShellFolders::Documents(), inside);
    EXPECT_TRUE(ShellFolders::OtherPlaces().empty());
    scratch.Write(u"Documents/x"_s, "x");
    EXPECT_EQ(ShellFolders::Documents(), inside + u"\\Documents"_s);
    ASSERT_EQ(ShellFolders::OtherPlaces().size(), 1U);
    EXPECT_EQ(ShellFolders::OtherPlaces().front().Path, inside);
}
