// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "install/zip/ccZip.h"
#include "tests/cli/ListCommandTest.h"

using namespace Qt::StringLiterals;

namespace {

class ExportCommand : public ListCommandTest {
protected:
    ExportCommand() : ListCommandTest(u"export"_s) {
        mMain::MakeUserFolders();
        for (const QString& name : {u"Alpine"_s, u"Rocky"_s}) {
            Put(Game[0].MapPath + name + u'\\' + name + u".map"_s, "map of " + name.toLatin1());
            Put(Game[0].MapPath + name + u"\\map.ini"_s, "ini");
        }
        Put(Game[0].ReplayPath + u"first.rep"_s, "GENREP1");
        Put(Game[0].ReplayPath + u"no replay.rep"_s, "no mark, which would end a listing");
        Install(u"Contra.big"_s, "BIGF");
        Install(u"Contra.ini"_s, "[Mod]\r\nName=Contra\r\nComments=c\r\n");
        Install(u"Maps\\QvShellMap002\\QvInfos.ini"_s, "[Infos]\r\nName=Night\r\n");
        Install(u"Maps\\QvShellMap002\\shellmap1.map"_s, "s");
    }

    void Put(const QString& path, const QByteArray& bytes) const {
        world_.WriteFile(path.sliced(world_.Root().size() + 1), bytes);
    }

    [[nodiscard]] QString At(const QString& name) const { return world_.Root() + u'\\' + name; }

    [[nodiscard]] QString Native(const QString& name) const { return Paths::ToNative(At(name)); }

    /// With "--game gen --zip out.zip" behind the arguments.
    [[nodiscard]] QStringList Zipped(const QStringList& arguments) const {
        return arguments + QStringList{u"--game"_s, u"gen"_s, u"--zip"_s, Native(u"out.zip"_s)};
    }

    [[nodiscard]] QStringList ToFolder(const QStringList& arguments) const {
        return arguments + QStringList{u"--game"_s, u"gen"_s, u"--folder"_s, Native(u"out"_s)};
    }

    /// Runs a command that must succeed in silence; the names in the archive.
    [[nodiscard]] QStringList Names(const QStringList& arguments) const {
        EXPECT_EQ(Output(Zipped(arguments)), QByteArray());
        ccZip zip;
        zip.Init(At(u"out.zip"_s));
        return zip.Col;
    }

    [[nodiscard]] bool Written() const {
        return Files::FileExists(At(u"out.zip"_s)) || Files::FolderExists(At(u"out"_s));
    }
};

} // namespace

TEST_F(ExportCommand, TakesAllFourKinds) {
    EXPECT_EQ(Names({u"--map"_s, u"Rocky"_s, u"--mod"_s, u"contra.BIG"_s, u"--replay"_s, u"first"_s, u"--replay"_s,
                     u"no replay.rep"_s, u"--shellmap"_s, u"2"_s}),
              (QStringList{u"Rocky/map.ini"_s, u"Rocky/Rocky.map"_s, u"Contra.big"_s, u"first.rep"_s,
                           u"no replay.rep"_s, u"Night/QvInfos.ini"_s, u"Night/shellmap1.map"_s}));
}

TEST_F(ExportCommand, TakesSeveralOfAKindOnceEach) {
    EXPECT_EQ(Names({u"--map"_s, u"Rocky"_s, u"--map"_s, u"Alpine"_s, u"--map"_s, u"rocky"_s, u"--replay"_s, u"first"_s,
                     u"--replay"_s, u"first.rep"_s}),
              (QStringList{u"Alpine/Alpine.map"_s, u"Alpine/map.ini"_s, u"Rocky/map.ini"_s, u"Rocky/Rocky.map"_s,
                           u"first.rep"_s}));
}

TEST_F(ExportCommand, AReadMeComesFirst) {
    Put(At(u"notes.txt"_s), "Have fun! \xC4\r\n");
    EXPECT_EQ(Names({u"--replay"_s, u"first"_s, u"--readme"_s, Native(u"notes.txt"_s)}),
              (QStringList{u"ReadMe.txt"_s, u"first.rep"_s}));
    ccZip zip;
    zip.Init(At(u"out.zip"_s));
    EXPECT_EQ(zip.Decompress(At(u"read"_s), u"ReadMe.txt"_s, false), 0);
    EXPECT_EQ(World::ReadFile(At(u"read\\ReadMe.txt"_s)), "Have fun! \xC4\r\n");
    EXPECT_TRUE(
        Failure(Zipped({u"--replay"_s, u"first"_s, u"--readme"_s, Native(u"gone.txt"_s)})).contains("gone.txt"));
}

TEST_F(ExportCommand, AModsRecordComesAlongWhereItIsWanted) {
    EXPECT_EQ(Names({u"--mod"_s, u"Contra.big"_s}), QStringList{u"Contra.big"_s});
    EXPECT_EQ(Names({u"--mod"_s, u"Contra.big"_s, u"--with-ini"_s}), (QStringList{u"Contra.big"_s, u"Contra.ini"_s}));
}

TEST_F(ExportCommand, CopiesIntoAFolder) {
    EXPECT_EQ(Output(ToFolder({u"--map"_s, u"Alpine"_s, u"--mod"_s, u"Contra.big"_s, u"--shellmap"_s, u"002"_s})),
              QByteArray());
    EXPECT_EQ(World::ReadFile(At(u"out\\Alpine\\Alpine.map"_s)), "map of Alpine");
    EXPECT_EQ(World::ReadFile(At(u"out\\Contra.big"_s)), "BIGF");
    EXPECT_EQ(World::ReadFile(At(u"out\\Night\\shellmap1.map"_s)), "s");
}

TEST_F(ExportCommand, NamesThatAreUnknownAreToldAndNothingIsWritten) {
    for (const QStringList& unknown : {QStringList{u"--map"_s, u"Gone"_s}, QStringList{u"--mod"_s, u"Gone.big"_s},
                                       QStringList{u"--mod"_s, u"INI.big"_s}, QStringList{u"--replay"_s, u"gone"_s},
                                       QStringList{u"--shellmap"_s, u"1"_s}}) {
        const QStringList arguments = QStringList{u"--map"_s, u"Alpine"_s} + unknown;
        EXPECT_TRUE(Failure(Zipped(arguments)).contains(unknown.last().toLatin1()));
        EXPECT_TRUE(Failure(ToFolder(arguments)).contains(unknown.last().toLatin1()));
        EXPECT_FALSE(Written());
    }
}

TEST_F(ExportCommand, WrongUsageEndsWithTwo) {
    for (const QStringList& arguments :
         {Zipped({}), ToFolder({}), Zipped({u"--map"_s}), Zipped({u"--shellmap"_s, u"x"_s}),
          QStringList{u"--game"_s, u"gen"_s, u"--map"_s, u"Alpine"_s},
          ToFolder({u"--map"_s, u"Alpine"_s, u"--zip"_s, Native(u"out.zip"_s)}),
          ToFolder({u"--map"_s, u"Alpine"_s, u"--readme"_s, Native(u"out.zip"_s)}),
          ToFolder({u"--map"_s, u"Alpine"_s, u"--utf8"_s}),
          QStringList{u"--map"_s, u"Alpine"_s, u"--zip"_s, Native(u"out.zip"_s)}})
        EXPECT_FALSE(Failure(arguments, 2).isEmpty()) << arguments.join(u' ').toStdString();
    EXPECT_FALSE(Written());
}

TEST_F(ExportCommand, WhatStayedOutIsToldALineAFileAndTheRestIsDone) {
    Put(Game[0].MapPath + u"Alpine\\b.ini"_s, "");
    const Outcome outcome =
        RunCommand(QStringList{u"export"_s} + Zipped({u"--map"_s, u"Alpine"_s, u"--replay"_s, u"first"_s}));
    EXPECT_EQ(outcome.Code, 1);
    EXPECT_EQ(outcome.Error.count('\n'), 2) << outcome.Error.constData();
    EXPECT_TRUE(outcome.Error.contains("b.ini: left out, a ZIP takes no empty file"));
    EXPECT_TRUE(outcome.Error.contains("map.ini: left out with the file named before"));
    ccZip zip;
    zip.Init(At(u"out.zip"_s));
    EXPECT_EQ(zip.Col, (QStringList{u"Alpine/Alpine.map"_s, u"first.rep"_s}));
}

TEST_F(ExportCommand, LettersThatThePageLacksAreToldAndMayStandInUtf8) {
    Put(Game[0].ReplayPath + u"\u4E2D.rep"_s, "GENREP");
    const Outcome outcome = RunCommand(QStringList{u"export"_s} + Zipped({u"--replay"_s, u"\u4E2D"_s}));
    EXPECT_EQ(outcome.Code, 0);
    EXPECT_EQ(outcome.Error, "a letter becomes '?'\t\xE4\xB8\xAD.rep\n");
    EXPECT_EQ(Names({u"--replay"_s, u"\u4E2D"_s, u"--utf8"_s}), QStringList{u"\u4E2D.rep"_s});
}

TEST_F(ExportCommand, AZipThatCantBeWrittenIsTold) {
    const QByteArray error =
        Failure({u"--game"_s, u"gen"_s, u"--replay"_s, u"first"_s, u"--zip"_s, Native(u"missing\\out.zip"_s)});
    EXPECT_TRUE(error.contains("out.zip: could not be written, so nothing was exported")) << error.constData();
}

TEST_F(ExportCommand, AGameThatIsNotInstalledHasNothing) {
    EXPECT_FALSE(Failure({u"--game"_s, u"bfme"_s, u"--mod"_s, u"a.big"_s, u"--zip"_s, Native(u"out.zip"_s)}).isEmpty());
    EXPECT_FALSE(Written());
}
