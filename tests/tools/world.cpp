// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tools/demoworld/World.h"
#include "core/GameFiles.h"
#include "core/mMain.h"
#include "platform/Paths.h"
#include "tests/support/Printing.h"
#include "tests/tools/Reading.h"
#include "tools/demoworld/Tree.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QSet>
#include <QTemporaryDir>

using namespace Demo;
using namespace Qt::StringLiterals;

namespace {

QByteArray FileBytes(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("unreadable");
}

void Put(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
}

QStringList FilesBelow(const QString& folder) {
    QStringList files;
    QDirIterator all(folder, QDir::Files, QDirIterator::Subdirectories);
    while (all.hasNext())
        files += QDir(folder).relativeFilePath(all.next());
    files.sort();
    return files;
}

/// One small world, made once for the tests that only look at it.
class SmallWorld : public testing::Test {
protected:
    static void SetUpTestSuite() {
        made_ = std::make_unique<QTemporaryDir>();
        failure_ = MakeWorld({Root(), u"French.lng"_s, true, [](const Picture&) { return QByteArray("jpeg"); }});
        qputenv("BRINDOCK_REGISTRY", (Root() + u"/registry.reg"_s).toUtf8());
        qputenv("BRINDOCK_WINE_PREFIXES", "");
        mMain::UseRuntimes();
        mMain::DetectGames();
    }

    static void TearDownTestSuite() { made_.reset(); }

    void SetUp() override { ASSERT_EQ(failure_, QString()); }

    static QString Root() { return made_->path() + u"/world"_s; }

    static QString Installed(GameIndex game) { return Paths::ToNative(Game.at(static_cast<size_t>(game)).InstallPath); }

private:
    static inline std::unique_ptr<QTemporaryDir> made_;
    static inline QString failure_;
};

} // namespace

TEST(SampleRegistry, TextStandsAsTheSystemExportsIt) {
    const QByteArray text = RegistryText(u"\\home\\zoé\\demo"_s, u"English.lng"_s);
    EXPECT_TRUE(
        text.startsWith("REGEDIT4\r\n\r\n[HKEY_LOCAL_MACHINE\\SOFTWARE\\Electronic Arts\\EA Games\\Generals]\r\n"
                        "\"InstallPath\"=\"\\\\home\\\\zo\xE9\\\\demo\\\\Games\\\\Generals\\\\\"\r\n"));
    EXPECT_TRUE(text.contains("\r\n\"Personal\"=\"\\\\home\\\\zo\xE9\\\\demo\\\\Documents\"\r\n"));
    EXPECT_TRUE(text.contains("[HKEY_CURRENT_USER\\Software\\Halvern\\Brindock\\2005]\r\n"
                              "\"TradFileName\"=\"English.lng\"\r\n"));
}

TEST_F(SmallWorld, AllFourGamesAreFoundWithTheirFolders) {
    for (GameIndex game = 0; game < GameCount; ++game) {
        const GameEntry& entry = Game.at(static_cast<size_t>(game));
        EXPECT_TRUE(entry.InstallPath.endsWith(u'\\'));
        EXPECT_TRUE(QDir(Installed(game)).exists()) << game;
        EXPECT_TRUE(QDir(Paths::ToNative(entry.ReplayPath)).exists()) << game;
        EXPECT_TRUE(QDir(Paths::ToNative(entry.MapPath)).exists()) << game;
    }
}

TEST_F(SmallWorld, EveryGameHasItsOwnArchivesAndModsWithAndWithoutARecord) {
    for (GameIndex game = 0; game < GameCount; ++game) {
        EXPECT_GE(QDir(Installed(game)).entryList({u"*.big"_s}, QDir::Files).size(), 18);
        QStringList mods = GameFiles::Mods(game);
        ASSERT_EQ(mods.size(), 3) << game;
        EXPECT_TRUE(mods.removeOne(u"Untitled.big"_s));
        EXPECT_FALSE(QFileInfo::exists(Installed(game) + u"Untitled.ini"_s));
        for (const QString& mod : mods)
            EXPECT_TRUE(FileBytes(Installed(game) + mod.chopped(4) + u".ini"_s).startsWith("[Mod]\r\nName="));
        EXPECT_TRUE(QFileInfo::exists(Installed(game) + u"_Disabled.big"_s));
    }
}

TEST_F(SmallWorld, AllFourVariantsAreThere) {
    QSet<QByteArray> marks;
    for (const QString& file : FilesBelow(Root())) {
        const QByteArray bytes = file.endsWith(u".big"_s) ? FileBytes(Root() + u'/' + file) : QByteArray();
        for (const char* mark : {"L225", "L231", "L219", "L253\x15\x05"})
            if (bytes.contains(QByteArray(1, '\0') + mark))
                marks.insert(mark);
    }
    EXPECT_EQ(marks.size(), 4);
}

TEST_F(SmallWorld, OneArchiveHasThousandsOfEntriesUnderEveryKindOfName) {
    const QByteArray bytes = FileBytes(Installed(2) + u"Data.big"_s);
    EXPECT_GE(Big32At(bytes, 8), 5000);
    EXPECT_TRUE(bytes.contains("\xCELES DU SUD\\For\xEAt\\"));
    EXPECT_TRUE(bytes.contains("coast/harbour\\"));
}

TEST_F(SmallWorld, MapsHaveEveryChoiceOfPreviews) {
    QSet<QString> choices;
    for (GameIndex game = 0; game < GameCount; ++game) {
        const QDir maps(Paths::ToNative(Game.at(static_cast<size_t>(game)).MapPath));
        for (const QString& name : maps.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
            const QDir map(maps.filePath(name));
            choices.insert(u"%1%2%3"_s.arg(map.exists(name + u".map"_s))
                               .arg(map.exists(name + u".tga"_s))
                               .arg(map.exists(name + u"_pic.tga"_s)));
        }
    }
    EXPECT_EQ(choices, (QSet<QString>{u"000"_s, u"100"_s, u"110"_s, u"101"_s, u"111"_s}));
}

TEST_F(SmallWorld, MapsHaveNamesOfEveryKind) {
    for (GameIndex game = 0; game < GameCount; ++game) {
        const QDir maps(Paths::ToNative(Game.at(static_cast<size_t>(game)).MapPath));
        const QString names = maps.entryList(QDir::Dirs | QDir::NoDotAndDotDot).join(u'\n');
        EXPECT_TRUE(names.contains(u"[RANK] "_s)) << game;
        EXPECT_TRUE(names.contains(u"\u0440\u0435\u043A\u0438"_s)) << game;
    }
}

TEST_F(SmallWorld, ShellMapsAreNumberedFromOneWithoutGaps) {
    for (GameIndex game = 0; game < GameCount; ++game) {
        const QStringList folders = QDir(Installed(game) + u"Maps"_s).entryList({u"QvShellMap???"_s}, QDir::Dirs);
        EXPECT_EQ(folders.first(2), (QStringList{u"QvShellMap001"_s, u"QvShellMap002"_s}));
        EXPECT_TRUE(FileBytes(Installed(game) + u"Maps/QvShellMap001/QvInfos.ini"_s).startsWith("[Infos]\r\nName="));
    }
}

TEST_F(SmallWorld, ReplaysLieInTheirGamesFolders) {
    for (GameIndex game = 0; game < GameCount; ++game) {
        const QDir replays(Paths::ToNative(Game.at(static_cast<size_t>(game)).ReplayPath));
        EXPECT_EQ(replays.entryList({game == 3 ? u"*.BfME2Replay"_s : u"*.rep"_s}, QDir::Files).size(), 6) << game;
    }
}

TEST_F(SmallWorld, EveryKindOfFileIsAmongTheSamples) {
    QSet<QString> kinds;
    for (const QString& file : FilesBelow(Root() + u"/Samples"_s))
        kinds.insert(file.mid(file.lastIndexOf(u'.')));
    EXPECT_EQ(kinds, (QSet<QString>{u".bmp"_s, u".png"_s, u".jpg"_s, u".tga"_s, u".dds"_s, u".wav"_s, u".mp3"_s,
                                    u".txt"_s, u".csf"_s}));
}

TEST(WorldFolder, ACompleteWorldIsLeftAlone) {
    const QTemporaryDir folder;
    const WorldOptions options{folder.path() + u"/w"_s, u"English.lng"_s, true, {}};
    ASSERT_EQ(MakeWorld(options), QString());
    const QString registry = options.Folder + u"/registry.reg"_s;
    Put(registry, "REGEDIT4\r\n; changed by the user\r\n");
    ASSERT_EQ(MakeWorld(options), QString());
    EXPECT_EQ(FileBytes(registry), "REGEDIT4\r\n; changed by the user\r\n");
}

TEST(WorldFolder, AWorldOfOtherOptionsOrAnUnfinishedOneIsMadeAnew) {
    const QTemporaryDir folder;
    WorldOptions options{folder.path() + u"/w"_s, u"English.lng"_s, true, {}};
    ASSERT_EQ(MakeWorld(options), QString());
    options.Language = u"French.lng"_s;
    ASSERT_EQ(MakeWorld(options), QString());
    EXPECT_TRUE(FileBytes(options.Folder + u"/registry.reg"_s).contains("French.lng"));

    Put(options.Folder + u"/demoworld.stamp"_s, {});
    QFile::remove(options.Folder + u"/registry.reg"_s);
    ASSERT_EQ(MakeWorld(options), QString());
    EXPECT_TRUE(FileBytes(options.Folder + u"/registry.reg"_s).contains("French.lng"));
}

TEST(WorldFolder, AFolderWithOtherFilesIsRefusedAndKept) {
    const QTemporaryDir folder;
    Put(folder.path() + u"/letter.txt"_s, "mine");
    EXPECT_TRUE(MakeWorld({folder.path(), u"English.lng"_s, true, {}}).contains(folder.path()));
    EXPECT_EQ(FilesBelow(folder.path()), QStringList{u"letter.txt"_s});
}

TEST(WorldFolder, AFolderThatCannotBeWrittenIsToldOf) {
    const QTemporaryDir folder;
    Put(folder.path() + u"/file"_s, {});
    EXPECT_TRUE(
        MakeWorld({folder.path() + u"/file/world"_s, u"English.lng"_s, true, {}}).contains(u"can't be written"_s));
}

TEST(MeasuredTree, FilesSizesAndNamesAreAsAskedAndTheSameEachTime) {
    const QTemporaryDir folder;
    const QString first = folder.path() + u"/1"_s, second = folder.path() + u"/2"_s;
    ASSERT_EQ(MakeTree(first, 300, 12'000'000), QString());
    ASSERT_EQ(MakeTree(second, 300, 12'000'000), QString());
    const QStringList files = FilesBelow(first);
    EXPECT_EQ(files, FilesBelow(second));
    EXPECT_EQ(files.size(), 300);
    QSet<QString> names;
    qint64 sum = 0;
    int texts = 0, large = 0;
    for (const QString& file : files) {
        const QByteArray bytes = FileBytes(first + u'/' + file);
        EXPECT_EQ(bytes, FileBytes(second + u'/' + file));
        names.insert(file.toLower());
        sum += bytes.size();
        texts += bytes.contains("ModelDraw") || !bytes.contains('\0') ? 1 : 0;
        large += bytes.size() >= 1'048'576 ? 1 : 0;
    }
    EXPECT_EQ(names.size(), 300);
    EXPECT_NEAR(static_cast<double>(sum), 12e6, 1.1e6);
    EXPECT_NEAR(texts, 150, 15);
    EXPECT_GT(large, 0);
}

TEST(MeasuredTree, ATreeOfFewBytesKeepsToThem) {
    const QTemporaryDir folder;
    ASSERT_EQ(MakeTree(folder.path(), 100, 50'000), QString());
    qint64 sum = 0;
    for (const QString& file : FilesBelow(folder.path()))
        sum += QFile(folder.path() + u'/' + file).size();
    EXPECT_LE(sum, 50'000);
    EXPECT_GT(sum, 49'000);
}

TEST(MeasuredArchive, EntriesLieInOneFolderOrInMany) {
    const QTemporaryDir folder;
    const QString file = folder.path() + u"/a.big"_s;
    ASSERT_EQ(MakeTinyArchive(file, 200, false), QString());
    EXPECT_EQ(Big32At(FileBytes(file), 8), 200);
    EXPECT_EQ(FileBytes(file).count("Data\\INI\\Object\\"), 200);
    ASSERT_EQ(MakeTinyArchive(file, 2000, true), QString());
    EXPECT_EQ(Big32At(FileBytes(file), 8), 2000);
    EXPECT_TRUE(FileBytes(file).contains("Art\\Textures 12\\"));
    EXPECT_TRUE(MakeTinyArchive(folder.path() + u"/missing/a.big"_s, 1, false).contains(u"missing"_s));
}

TEST(MeasuredReplays, AFolderHasAsManyAsAsked) {
    const QTemporaryDir folder;
    ASSERT_EQ(MakeReplays(folder.path() + u"/r"_s, 50), QString());
    const QStringList files = FilesBelow(folder.path() + u"/r"_s);
    EXPECT_EQ(files.size(), 50);
    for (const QString& file : files)
        EXPECT_TRUE(file.endsWith(u".rep"_s) && FileBytes(folder.path() + u"/r/"_s + file).startsWith("GENREP"));
    Put(folder.path() + u"/file"_s, {});
    EXPECT_TRUE(MakeReplays(folder.path() + u"/file/r"_s, 1).contains(u"can't be written"_s));
}

TEST(MeasuredStrings, ATableHasAsManyRowsAsAsked) {
    const QTemporaryDir folder;
    const QString file = folder.path() + u"/many.csf"_s;
    ASSERT_EQ(MakeStrings(file, 20000), QString());
    const QByteArray table = FileBytes(file);
    EXPECT_EQ(table.first(12), " FSC" + Hex("03000000 204e0000"));
    EXPECT_EQ(table.count(" LBL"), 20000);
    EXPECT_EQ(table.count(" RTS"), 20000);
    EXPECT_TRUE(MakeStrings(folder.path() + u"/missing/a.csf"_s, 1).contains(u"missing"_s));
}
