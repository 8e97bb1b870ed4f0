// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/cli/ListCommandTest.h"

using namespace Qt::StringLiterals;

namespace {

class MapCommands : public ListCommandTest {
protected:
    MapCommands() : ListCommandTest(u"maps"_s) {}

    /// A map's folder with another file in it.
    QString Put(const QString& name, const QString& other = {}, const QByteArray& bytes = {}) const {
        const QString folder = Game[0].MapPath.sliced(world_.Root().size() + 1) + name;
        world_.WriteFile(folder + u'\\' + name + u".map"_s, "x");
        if (!other.isEmpty())
            world_.WriteFile(folder + u'\\' + other, bytes);
        return Game[0].MapPath + name;
    }

    /// One pixel as a TGA file.
    static QByteArray Picture(const QByteArray& blueGreenRed) {
        return QByteArray("\0\0\2\0\0\0\0\0\0\0\0\0\1\0\1\0\x18\0", 18) + blueGreenRed;
    }

    [[nodiscard]] QString Target() const { return Paths::ToNative(world_.Root() + u"\\out.bmp"_s); }

    [[nodiscard]] QByteArray Pixel() const { return World::ReadFile(world_.Root() + u"\\out.bmp"_s).last(4); }
};

} // namespace

TEST_F(MapCommands, ListPrintsANameALineAndMakesTheUsersFolders) {
    EXPECT_EQ(Output({u"list"_s, u"gen"_s}), QByteArray());
    EXPECT_TRUE(Files::FolderExists(Game[0].MapPath));
    EXPECT_TRUE(Files::FolderExists(Game[0].ReplayPath));
    Put(u"beach"_s);
    Put(u"Alpine"_s);
    Put(u"[RANK] \u0413\u043E\u0440\u044B"_s);
    Files::MakeFolders(Game[0].MapPath + u"Drafts"_s);
    EXPECT_EQ(Output({u"list"_s, u"gen"_s}), "Alpine\nbeach\n" + u"[RANK] \u0413\u043E\u0440\u044B\n"_s.toUtf8());
    EXPECT_FALSE(Files::FileExists(world_.ProgramFolder() + u"\\localization.log"_s));
}

TEST_F(MapCommands, ListAsJSONHasThePathToo) {
    const QString folder = Put(u"Alpine"_s);
    const QJsonArray maps = Json({u"list"_s, u"gen"_s});
    ASSERT_EQ(maps.size(), 1);
    EXPECT_EQ(maps[0].toObject()[u"name"_s].toString(), u"Alpine"_s);
    EXPECT_EQ(maps[0].toObject()[u"path"_s].toString(), Paths::ToNative(folder));
    EXPECT_EQ(Json({u"list"_s, u"zh"_s}), QJsonArray());
}

TEST_F(MapCommands, DeleteTakesTheMapsThatAreNamed) {
    const QString first = Put(u"Alpine"_s);
    const QString second = Put(u"Beach"_s);
    const QString third = Put(u"Coast"_s);
    EXPECT_EQ(Output({u"delete"_s, u"gen"_s, u"Alpine"_s, u"COAST"_s, u"coast"_s, u"--yes"_s}), QByteArray());
    EXPECT_FALSE(Files::FolderExists(first));
    EXPECT_TRUE(Files::FolderExists(second));
    EXPECT_FALSE(Files::FolderExists(third));
}

TEST_F(MapCommands, DeleteWantsAYes) {
    const QString folder = Put(u"Alpine"_s);
    EXPECT_TRUE(Failure({u"delete"_s, u"gen"_s, u"Alpine"_s}, 2).contains("--yes"));
    EXPECT_TRUE(Files::FolderExists(folder));
}

TEST_F(MapCommands, DeleteTakesNothingWhereANameIsUnknown) {
    const QString folder = Put(u"Alpine"_s);
    EXPECT_TRUE(Failure({u"delete"_s, u"gen"_s, u"Alpine"_s, u"Other"_s, u"--yes"_s}).contains("Other"));
    EXPECT_TRUE(Failure({u"delete"_s, u"zh"_s, u"Alpine"_s, u"--yes"_s}).contains("Alpine"));
    EXPECT_TRUE(Files::FolderExists(folder));
}

TEST_F(MapCommands, AMapThatStaysIsNamed) {
    const QString folder = Put(u"Alpine"_s, u"sub\\file"_s);
    EXPECT_TRUE(Failure({u"delete"_s, u"gen"_s, u"Alpine"_s, u"--yes"_s}).contains(Paths::ToNative(folder).toUtf8()));
    EXPECT_TRUE(Files::FolderExists(folder));
}

TEST_F(MapCommands, PreviewWritesTheMapsPictureAsABitmap) {
    Put(u"Alpine"_s, u"Alpine_pic.tga"_s, Picture(QByteArray("\xFF\0\0", 3)));
    EXPECT_EQ(Output({u"preview"_s, u"gen"_s, u"alpine"_s, Target()}), QByteArray());
    EXPECT_EQ(Pixel(), QByteArray("\xFF\0\0\xFF", 4));
    Put(u"Alpine"_s, u"Alpine.tga"_s, Picture(QByteArray("\0\xFF\0", 3)));
    EXPECT_EQ(Output({u"preview"_s, u"gen"_s, u"Alpine"_s, Target()}), QByteArray());
    EXPECT_EQ(Pixel(), QByteArray("\0\xFF\0\xFF", 4)) << "of both, the one of the map's name";
}

TEST_F(MapCommands, PreviewFailsInOneLineWithoutAPictureThatCanBeRead) {
    Put(u"Alpine"_s);
    EXPECT_TRUE(Failure({u"preview"_s, u"gen"_s, u"Alpine"_s, Target()}).contains("Alpine"));
    EXPECT_TRUE(Failure({u"preview"_s, u"gen"_s, u"Other"_s, Target()}).contains("Other"));
    Put(u"Beach"_s, u"Beach.tga"_s, "no picture");
    EXPECT_TRUE(Failure({u"preview"_s, u"gen"_s, u"Beach"_s, Target()}).contains("Beach.tga"));
    EXPECT_FALSE(Files::FileExists(world_.Root() + u"\\out.bmp"_s));
}

TEST_F(MapCommands, WrongUsageEndsWith2) {
    for (const QStringList& arguments :
         {QStringList{}, QStringList{u"list"_s}, QStringList{u"list"_s, u"quake"_s},
          QStringList{u"delete"_s, u"gen"_s, u"--yes"_s}, QStringList{u"preview"_s, u"gen"_s, u"Alpine"_s}})
        EXPECT_FALSE(Failure(arguments, 2).isEmpty());
}
