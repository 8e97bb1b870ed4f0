// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/FileNumbers.h"
#include "platform/Files.h"
#include "platform/NumberedFiles.h"
#include "tests/platform/InAFolder.h"

#include <QSet>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

class FoldersTest : public InAFolder {
protected:
    [[nodiscard]] QStringList Names(const QString& folder) const {
        QStringList names = Files::ListFolder(At(folder) + u"\\*"_s, true);
        names.sort();
        return names;
    }
};

} // namespace

TEST_F(FoldersTest, EmptyingAFolderKeepsToItsTopLevel) {
    Files::MakeFolders(At(u"Temp\\below"_s));
    Make(u"Temp\\a.txt"_s, "1");
    Make(u"Temp\\no ending"_s, "2");
    Make(u"Temp\\below\\c"_s, "3");
    Files::EmptyFolder(At(u"Temp"_s));
    EXPECT_EQ(Names(u"Temp"_s), QStringList{u"below"_s});
    EXPECT_EQ(BytesOf(u"Temp\\below\\c"_s), "3");
}

TEST_F(FoldersTest, EmptyingAFolderLeavesWhatIsToBeKept) {
    Files::MakeFolder(At(u"Temp"_s));
    Make(u"Temp\\a"_s, "1");
    Make(u"Temp\\b"_s, "2");
    Make(u"Temp\\c"_s, "3");
    Files::EmptyFolder(At(u"Temp\\"_s), {At(u"Temp\\B"_s), At(u"missing"_s)});
    EXPECT_EQ(Names(u"Temp"_s), QStringList{u"b"_s});
}

TEST_F(FoldersTest, EmptyingAFolderThatIsMissingDoesNothing) {
    EXPECT_EQ(NumberRaisedBy([&] { Files::EmptyFolder(At(u"none"_s)); }), 0);
    EXPECT_FALSE(Files::FolderExists(At(u"none"_s)));
}

TEST_F(FoldersTest, TheStrictListingFindsTheSameFiles) {
    Files::MakeFolders(At(u"top\\sub"_s));
    Make(u"top\\a"_s, "12");
    Make(u"top\\sub\\b"_s, "123");
    const auto found = Files::ListFolderFilesStrict(At(u"top\\"_s), true);
    ASSERT_EQ(found.size(), 2U);
    EXPECT_TRUE(std::ranges::all_of(found, [](const auto& file) { return file.IsPlain; }));
    EXPECT_EQ(found[1].Path, At(u"top\\sub\\b"_s));
    EXPECT_EQ(found[1].Size, 3);
    EXPECT_EQ(Files::ListFolderFilesStrict(At(u"top"_s), false).size(), 1U);
}

TEST_F(FoldersTest, TheStrictListingNamesAFolderThatCantBeListed) {
    EXPECT_EQ(NumberRaisedBy([&] { Files::ListFolderFilesStrict(At(u"nowhere"_s), true); }), 76);
    EXPECT_TRUE(MessageOf([&] { Files::ListFolderFilesStrict(At(u"nowhere"_s), true); }).contains(u"nowhere"_s));
}

TEST_F(FoldersTest, FlushingAFileSystemRaisesNothing) {
    Make(u"f"_s, "bytes");
    EXPECT_EQ(NumberRaisedBy([&] { Files::FlushSystem(At(u"f"_s)); }), 0);
    EXPECT_EQ(NumberRaisedBy([&] { Files::FlushSystem(At({})); }), 0);
}

TEST_F(FoldersTest, FoldersTellHowMuchMoreTheyTake) {
    EXPECT_GT(Files::FreeSpace(At({})), 0);
    EXPECT_EQ(NumberRaisedBy([&] { Files::FreeSpace(At(u"missing"_s)); }), ErrorNumber::PathNotFound);
}

TEST_F(FoldersTest, ANumbersFileIsAFile) {
    NumberedFiles::Open(FileNumbers::Table, Make(u"f"_s, "bytes"), NumberedFiles::Access::Read);
    EXPECT_EQ(NumberedFiles::Of(FileNumbers::Table).Read(0, 9), "bytes");
    NumberedFiles::Close(FileNumbers::Table);
    EXPECT_EQ(NumberRaisedBy([] { NumberedFiles::Of(FileNumbers::Table); }), 52);
}

TEST_F(FoldersTest, AReplayThatStaysOpenStopsNothingElse) {
    using namespace FileNumbers;
    for (const int other : {ExtractTarget, ExtractArchive, Table})
        EXPECT_NE(Replay, other);
}

TEST_F(FoldersTest, AFolderTakesFilesWhereOneCanBeMade) {
    Make(u"file"_s, "1");
    EXPECT_TRUE(Files::TakesFiles(At(u"."_s).chopped(2)));
    EXPECT_FALSE(Files::TakesFiles(At(u"none"_s)));
    EXPECT_FALSE(Files::TakesFiles(At(u"file"_s)));
    EXPECT_EQ(Names(u"."_s), QStringList{u"file"_s});
}
