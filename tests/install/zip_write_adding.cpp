// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Which files a path or a pattern adds, in which order, and under which names.
#include "platform/Files.h"
#include "tests/install/ZipTest.h"

using namespace Qt::StringLiterals;

namespace {

class ZipAdding : public ZipTest {
protected:
    /// What is added by the names alone.
    QStringList Added(const QString& path, bool recurse = false) {
        const qint32 added = zip_.FileAdd(path, ZipClass::Relative, recurse);
        EXPECT_EQ(added, zip_.FileCount());
        return TakeNames();
    }

    QStringList TakeNames() {
        QStringList names = Names();
        while (zip_.FileDel(1)) {
        }
        return names;
    }

    QString StoredName(const QString& path, qint32 pathStorage) {
        EXPECT_EQ(zip_.FileAdd(path, pathStorage, false), 1);
        return TakeNames().value(0);
    }

    /// A small map folder with a subfolder.
    void PutMap() {
        for (const QString& name : {u"My Map\\my map.map"_s, u"My Map\\map.ini"_s, u"My Map\\sub\\b.tga"_s})
            Put(name);
    }
};

} // namespace

TEST_F(ZipAdding, TheNameIsThePathsLastPart) {
    Put(u"f\\a.ini"_s);
    for (const qint32 storage : {0, 3, -1, 65536})
        EXPECT_EQ(StoredName(At(u"f\\a.ini"_s), storage), u"a.ini"_s) << storage;
}

TEST_F(ZipAdding, TheNameIsTheWholePath) {
    Put(u"f\\a.ini"_s);
    EXPECT_EQ(StoredName(At(u"f\\a.ini"_s), 1), At(u"f\\a.ini"_s));
    EXPECT_EQ(StoredName(u"f\\g\\..\\.\\a.ini"_s, 1), At(u"f\\a.ini"_s)) << "made absolute";
}

TEST_F(ZipAdding, TheNameIsThePathBelowTheCurrentDirectory) {
    Put(u"f\\a.ini"_s);
    EXPECT_EQ(StoredName(At(u"f\\a.ini"_s), 2), u"f\\a.ini"_s);
    EXPECT_EQ(StoredName(u"f\\a.ini"_s, 2), u"f\\a.ini"_s);
    zip_.CurrentDirectory = At(u"f\\"_s); // as a folder's text less its name comes
    EXPECT_EQ(StoredName(At(u"f\\a.ini"_s), 2), u"a.ini"_s);
    zip_.CurrentDirectory = world_.Root().toUpper();
    EXPECT_EQ(StoredName(At(u"f\\a.ini"_s), 2), u"f\\a.ini"_s) << "without regard to case";
}

TEST_F(ZipAdding, TheNameIsTheWholePathOutsideTheCurrentDirectory) {
    Put(u"folder\\a.ini"_s);
    Put(u"f\\b.ini"_s);
    zip_.CurrentDirectory = At(u"f"_s);
    EXPECT_EQ(StoredName(At(u"folder\\a.ini"_s), 2), At(u"folder\\a.ini"_s)) << "a folder whose name begins alike";
}

TEST_F(ZipAdding, AFolderPatternBelowTheParentHasBackslashesBetweenFolderSubfolderAndFile) {
    PutMap();
    EXPECT_EQ(Added(At(u"My Map\\*.*"_s), true),
              (QStringList{u"My Map\\map.ini"_s, u"My Map\\my map.map"_s, u"My Map\\sub\\b.tga"_s}));
}

TEST_F(ZipAdding, WithoutRecursionSubfoldersStayOut) {
    PutMap();
    EXPECT_EQ(Added(At(u"My Map\\*.*"_s)), (QStringList{u"My Map\\map.ini"_s, u"My Map\\my map.map"_s}));
}

TEST_F(ZipAdding, AFoldersOwnFilesComeFirstThenDepthFirstThoseBelow) {
    for (const QString& name : {u"f\\z.t"_s, u"f\\a\\2.t"_s, u"f\\a\\deep\\3.t"_s, u"f\\B\\4.t"_s, u"f\\a\\1.t"_s})
        Put(name);
    EXPECT_EQ(Added(u"f\\*.t"_s, true),
              (QStringList{u"f\\z.t"_s, u"f\\a\\1.t"_s, u"f\\a\\2.t"_s, u"f\\a\\deep\\3.t"_s, u"f\\B\\4.t"_s}));
}

TEST_F(ZipAdding, ListingsAreByNameWithoutRegardToCase) {
    for (const QString& name : {u"b.t"_s, u"C.t"_s, u"a.t"_s, u"_.t"_s, u"10.t"_s, u"9.t"_s})
        Put(name);
    EXPECT_EQ(Added(u"*.t"_s), (QStringList{u"10.t"_s, u"9.t"_s, u"a.t"_s, u"b.t"_s, u"C.t"_s, u"_.t"_s}));
}

TEST_F(ZipAdding, SubfoldersAreByNameWithoutRegardToCase) {
    for (const QString& name : {u"b"_s, u"C"_s, u"a"_s, u"_"_s, u"10"_s, u"9"_s, u"D"_s, u"e"_s})
        Put(u"f\\"_s + name + u"\\x.t"_s);
    zip_.CurrentDirectory = At(u"f"_s);
    EXPECT_EQ(Added(u"*.t"_s, true), (QStringList{u"10\\x.t"_s, u"9\\x.t"_s, u"a\\x.t"_s, u"b\\x.t"_s, u"C\\x.t"_s,
                                                  u"D\\x.t"_s, u"e\\x.t"_s, u"_\\x.t"_s}));
}

TEST_F(ZipAdding, AFileWithoutADotIsLeftOutByStarDotStar) {
    Put(u"f\\readme"_s);
    Put(u"f\\read.me"_s);
    EXPECT_EQ(Added(u"f\\*.*"_s), QStringList{u"f\\read.me"_s});
    EXPECT_EQ(Added(u"f\\*"_s), QStringList{}) << "there is always a dot in what names are compared with";
    EXPECT_EQ(Added(u"f\\readme"_s), QStringList{u"f\\readme"_s});
}

TEST_F(ZipAdding, PatternsCountTheCase) {
    Put(u"f\\a.map"_s);
    Put(u"f\\B.MAP"_s);
    EXPECT_EQ(Added(u"f\\*.map"_s), QStringList{u"f\\a.map"_s});
    EXPECT_EQ(Added(u"f\\B*.*"_s), QStringList{u"f\\B.MAP"_s});
    EXPECT_EQ(Added(u"f\\b*.*"_s), QStringList{});
}

TEST_F(ZipAdding, AFileOfThatExactPathIsFoundWhateverItsCase) {
    Put(u"f\\B.MAP"_s);
    EXPECT_EQ(Added(u"f\\b.map"_s), QStringList{u"f\\b.map"_s});
}

TEST_F(ZipAdding, PatternsHaveQuestionMarksDigitsAndBrackets) {
    for (const QString& name : {u"f\\map1.tga"_s, u"f\\mapx.tga"_s, u"f\\map12.tga"_s, u"f\\[x].tga"_s})
        Put(name);
    EXPECT_EQ(Added(u"f\\map#*.tga"_s), (QStringList{u"f\\map1.tga"_s, u"f\\map12.tga"_s}));
    EXPECT_EQ(Added(u"f\\map?.t*"_s), (QStringList{u"f\\map1.tga"_s, u"f\\mapx.tga"_s}));
    EXPECT_EQ(Added(u"f\\map[a-z].*"_s), QStringList{u"f\\mapx.tga"_s});
    EXPECT_EQ(Added(u"f\\map[!a-z]*.*"_s), (QStringList{u"f\\map1.tga"_s, u"f\\map12.tga"_s}));
    EXPECT_EQ(Added(u"f\\[[]*.*"_s), QStringList{u"f\\[x].tga"_s});
}

TEST_F(ZipAdding, WithoutAStarNothingIsAPattern) {
    Put(u"f\\map1.tga"_s);
    for (const bool recurse : {false, true}) {
        EXPECT_EQ(Added(u"f\\map?.tga"_s, recurse), QStringList{});
        EXPECT_EQ(Added(u"f\\map#.tga"_s, recurse), QStringList{});
        EXPECT_EQ(Added(u"f\\map[1].tga"_s, recurse), QStringList{});
    }
    Put(u"f\\[RANK] map#1.tga"_s);
    EXPECT_EQ(Added(u"f\\[RANK] map#1.tga"_s), QStringList{u"f\\[RANK] map#1.tga"_s})
        << "these letters are a name's too";
}

TEST_F(ZipAdding, FoldersOfAPatternsPathAreNoPattern) {
    Put(u"[a] #1\\x.map"_s);
    EXPECT_EQ(Added(u"[a] #1\\*.*"_s), QStringList{u"[a] #1\\x.map"_s});
}

TEST_F(ZipAdding, TheLastDotPartsBaseAndExtension) {
    Put(u"f\\a.b.c"_s);
    Put(u"f\\.hidden"_s);
    EXPECT_EQ(Added(u"f\\*.c"_s), QStringList{u"f\\a.b.c"_s});
    EXPECT_EQ(Added(u"f\\*.b.c"_s), QStringList{u"f\\a.b.c"_s});
    EXPECT_EQ(Added(u"f\\.h*"_s), QStringList{u"f\\.hidden"_s});
}

TEST_F(ZipAdding, APatternThatIsNoneIsRaised) {
    Put(u"f\\a.t"_s);
    EXPECT_EQ(ErrorOf([&] { zip_.FileAdd(u"f\\[a*.t"_s, 0, false); }), 93);
}

TEST_F(ZipAdding, WithAPlainPathFilesOfTheNameInSubfoldersAreAddedToo) {
    for (const QString& name : {u"f\\map.ini"_s, u"f\\a\\MAP.ini"_s, u"f\\a\\other.ini"_s, u"f\\b\\c\\map.ini"_s})
        Put(name);
    EXPECT_EQ(Added(u"f\\map.ini"_s, true), (QStringList{u"f\\map.ini"_s, u"f\\a\\map.ini"_s, u"f\\b\\c\\map.ini"_s}));
}

TEST_F(ZipAdding, SubfoldersAreLookedThroughWhereTheFolderHasNoSuchFile) {
    Put(u"f\\a\\map.ini"_s);
    Put(u"f\\map.txt"_s);
    EXPECT_EQ(Added(u"f\\map.ini"_s, true), QStringList{u"f\\a\\map.ini"_s});
}

TEST_F(ZipAdding, ANameWithoutADotIsFoundInSubfoldersToo) {
    Put(u"f\\readme"_s);
    Put(u"f\\a\\readme"_s);
    Put(u"f\\a\\readme.txt"_s);
    EXPECT_EQ(Added(u"f\\readme"_s, true), (QStringList{u"f\\readme"_s, u"f\\a\\readme"_s}));
}

TEST_F(ZipAdding, WhatExistsNowhereAddsNothing) {
    Files::MakeFolder(At(u"f"_s));
    for (const bool recurse : {false, true}) {
        EXPECT_EQ(zip_.FileAdd(u"f\\gone.ini"_s, 0, recurse), 0);
        EXPECT_EQ(zip_.FileAdd(u"no\\such\\folder.ini"_s, 0, recurse), 0);
        EXPECT_EQ(zip_.FileAdd(u"f\\*.*"_s, 0, recurse), 0);
        EXPECT_EQ(zip_.FileAdd(u"f"_s, 0, false), 0) << "a folder is no file";
    }
}

TEST_F(ZipAdding, APatternInAFolderThatIsMissingIsRaised) {
    EXPECT_EQ(ErrorOf([&] { zip_.FileAdd(u"missing\\*.*"_s, 0, true); }), 76);
    EXPECT_TRUE(failure_.contains(u"missing"_s)) << failure_.toStdString();
}

TEST_F(ZipAdding, AnEmptyTextOrARootIsNotWalked) {
    Put(u"a.t"_s);
    EXPECT_EQ(zip_.FileAdd({}, 0, true), 0);
    EXPECT_EQ(zip_.FileAdd(u"\\"_s, 0, true), 0);
    EXPECT_EQ(zip_.FileAdd(u"Z:\\"_s, 0, true), 0);
    Put(u"other\\f"_s);
    Files::MakeFolder(At(u"f"_s));
    zip_.CurrentDirectory = At(u"f"_s);
    EXPECT_EQ(zip_.FileAdd({}, 0, true), 0) << "nor is what lies beside the current directory";
}

TEST_F(ZipAdding, AnEmptyFileEndsTheWalkAtOnce) {
    for (const QString& name : {u"f\\a.t"_s, u"f\\c.t"_s, u"f\\sub\\d.t"_s})
        Put(name);
    Put(u"f\\b.t"_s, "");
    EXPECT_EQ(ErrorOf([&] { zip_.FileAdd(u"f\\*.*"_s, 2, true); }), 9);
    EXPECT_TRUE(failure_.contains(u"b.t"_s)) << failure_.toStdString();
    EXPECT_EQ(Names(), QStringList{u"f\\a.t"_s}) << "neither itself nor files and subfolders not reached yet";
    EXPECT_EQ(zip_.FileAdd(u"f\\c.t"_s, 2, false), 1) << "the archive goes on";
    EXPECT_EQ(Names(), (QStringList{u"f\\a.t"_s, u"f\\c.t"_s}));
}

TEST_F(ZipAdding, AnEmptyFileInASubfolderEndsTheWholeWalk) {
    for (const QString& name : {u"f\\a.t"_s, u"f\\sub\\2.t"_s, u"f\\tub\\d.t"_s})
        Put(name);
    Put(u"f\\sub\\1.t"_s, "");
    EXPECT_EQ(ErrorOf([&] { zip_.FileAdd(u"f\\*.*"_s, 2, true); }), 9);
    EXPECT_EQ(Names(), QStringList{u"f\\a.t"_s});
}

TEST_F(ZipAdding, AnEmptyFileAloneIsRaised) {
    EXPECT_EQ(ErrorOf([&] { zip_.FileAdd(Put(u"empty.t"_s, ""), 0, false); }), 9);
    EXPECT_EQ(zip_.FileCount(), 0);
}

TEST_F(ZipAdding, AFileThatVanishesMidwayIsPassedOver) {
    for (const QString& name : {u"f\\a.t"_s, u"f\\b.t"_s, u"f\\c.t"_s})
        Put(name);
    zip_.Yield = [&] { Ignoring([&] { Files::DeleteForced(At(u"f\\b.t"_s)); }); };
    EXPECT_EQ(zip_.FileAdd(u"f\\*.*"_s, 2, true), 2);
    EXPECT_EQ(Names(), (QStringList{u"f\\a.t"_s, u"f\\c.t"_s}));
}

TEST_F(ZipAdding, TheInterfaceIsServedBehindEachFileAndEachSubfolder) {
    PutMap();
    int served = 0;
    zip_.Yield = [&] { ++served; };
    zip_.FileAdd(u"My Map\\*.*"_s, 2, true);
    EXPECT_EQ(served, 4) << "three files and a folder";
}

TEST_F(ZipAdding, TheProcessesOwnCurrentDirectoryIsTheFirstOneAndStays) {
    const QString own = Paths::Absolute(u"."_s);
    EXPECT_EQ(ZipClass().CurrentDirectory, own);
    PutMap();
    zip_.FileAdd(u"My Map\\*.*"_s, 2, true);
    EXPECT_EQ(Paths::Absolute(u"."_s), own);
}
