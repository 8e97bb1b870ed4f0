// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// What an exported ZIP holds, and what the report says of the rest.
#include "tests/install/ExportTest.h"

using namespace Qt::StringLiterals;
using Outcome = ExportOutcome;

namespace {

class ExportZip : public ExportTest {
protected:
    void PutAlpine() {
        for (const QString& name :
             {u"Alpine\\Alpine.map"_s, u"Alpine\\map.ini"_s, u"Alpine\\sub\\deep.tga"_s, u"Alpine\\sub\\a\\x.txt"_s})
            Put(u"maps\\"_s + name, name.toLatin1());
    }

    void PutShellMap(const QString& folder) {
        for (const QString& name : {u"shellmap1.map"_s, u"QvInfos.ini"_s})
            Put(u"game\\Maps\\"_s + folder + u'\\' + name, folder.toLatin1() + name.toLatin1());
    }
};

} // namespace

TEST_F(ExportZip, AMapsNamesBeginWithItsFolderAndHaveBackslashes) {
    PutAlpine();
    const ExportReport report = ToZip({Map(u"Alpine"_s)});
    EXPECT_EQ(Names(), (QList<QByteArray>{"Alpine\\Alpine.map", "Alpine\\map.ini", "Alpine\\sub\\deep.tga",
                                          "Alpine\\sub\\a\\x.txt"}));
    EXPECT_EQ(With(Outcome::Done, report), (QStringList{u"Alpine.map"_s, u"map.ini"_s, u"deep.tga"_s, u"x.txt"_s}));
    EXPECT_FALSE(report.HasFailures());
    EXPECT_EQ(Content(u"Alpine/sub/deep.tga"_s), "Alpine\\sub\\deep.tga");
}

TEST_F(ExportZip, MapsOfBracketsAndUmlautsComeWhole) {
    const QString name = u"[RANK] \u00C4rger [2] #ZH v1"_s;
    Put(u"maps\\"_s + name + u'\\' + name + u".map"_s);
    Put(u"maps\\"_s + name + u"\\map.str"_s);
    EXPECT_FALSE(ToZip({Map(name)}).HasFailures());
    EXPECT_EQ(Names(), (QList<QByteArray>{"[RANK] \xC4rger [2] #ZH v1\\map.str",
                                          "[RANK] \xC4rger [2] #ZH v1\\[RANK] \xC4rger [2] #ZH v1.map"}));
}

TEST_F(ExportZip, ReplaysAndModsHaveTheirNamesAlone) {
    Put(u"replays\\a.rep"_s, "GENREP");
    Put(u"replays\\b.rep"_s);
    Put(u"game\\Contra.big"_s, "BIGF");
    Put(u"game\\Contra.ini"_s, "[Mod]\r\nName=Contra\r\n");
    EXPECT_FALSE(ToZip({Replay(u"b.rep"_s), Replay(u"a.rep"_s), Mod(u"Contra.big"_s)}).HasFailures());
    EXPECT_EQ(Names(), (QList<QByteArray>{"b.rep", "a.rep", "Contra.big"}));
    EXPECT_EQ(Content(u"a.rep"_s), "GENREP");
}

TEST_F(ExportZip, TwoOfTheSameNameMakeTwoEntries) {
    Put(u"replays\\a.rep"_s, "1");
    Put(u"game\\a.rep"_s, "2");
    EXPECT_FALSE(ToZip({Replay(u"a.rep"_s), Mod(u"a.rep"_s)}).HasFailures());
    EXPECT_EQ(Names(), (QList<QByteArray>{"a.rep", "a.rep"}));
}

TEST_F(ExportZip, AnEmptyFileEndsTheWalkAndTheNextRecordGoesOn) {
    for (const QString& name : {u"a.ini"_s, u"c.ini"_s, u"sub\\d.ini"_s})
        Put(u"maps\\Alpine\\"_s + name);
    Put(u"maps\\Alpine\\b.ini"_s, "");
    Put(u"replays\\a.rep"_s);
    const ExportReport report = ToZip({Map(u"Alpine"_s), Replay(u"a.rep"_s)});
    EXPECT_EQ(Names(), (QList<QByteArray>{"Alpine\\a.ini", "a.rep"})); // This is meant.
    EXPECT_EQ(With(Outcome::Empty, report), QStringList{u"b.ini"_s});
    EXPECT_EQ(With(Outcome::LeftOut, report), (QStringList{u"c.ini"_s, u"d.ini"_s}));
    EXPECT_EQ(With(Outcome::Done, report), (QStringList{u"a.ini"_s, u"a.rep"_s}));
}

TEST_F(ExportZip, AnEmptyReplayIsLeftOut) {
    Put(u"replays\\a.rep"_s, "");
    Put(u"replays\\b.rep"_s);
    const ExportReport report = ToZip({Replay(u"a.rep"_s), Replay(u"b.rep"_s)});
    EXPECT_EQ(Names(), QList<QByteArray>{"b.rep"});
    EXPECT_EQ(With(Outcome::Empty, report), QStringList{u"a.rep"_s});
}

TEST_F(ExportZip, ANameWithoutADotIsLeftOutAndTold) {
    Put(u"maps\\Alpine\\Alpine.map"_s);
    Put(u"maps\\Alpine\\readme"_s);
    Put(u"maps\\Alpine\\sub\\empty"_s, "");
    const ExportReport report = ToZip({Map(u"Alpine"_s)});
    EXPECT_EQ(Names(), QList<QByteArray>{"Alpine\\Alpine.map"}); // This is meant.
    EXPECT_EQ(With(Outcome::NoDot, report), (QStringList{u"readme"_s, u"empty"_s}));
    EXPECT_EQ(Failures(report), 2);
}

TEST_F(ExportZip, AShellMapsNamesBeginWithItsName) {
    PutShellMap(u"QvShellMap001"_s);
    Put(u"game\\Maps\\QvShellMap001\\inner\\a.txt"_s);
    const ExportReport report = ToZip({ShellMap(u"QvShellMap001"_s, u"Night"_s)});
    EXPECT_EQ(Names(), (QList<QByteArray>{"Night\\QvInfos.ini", "Night\\shellmap1.map"}));
    EXPECT_EQ(Content(u"Night/shellmap1.map"_s), "QvShellMap001shellmap1.map");
    EXPECT_EQ(With(Outcome::Subfolder, report), QStringList{u"inner"_s});
    EXPECT_EQ(Failures(report), 1);
    EXPECT_EQ(Scratch(), QStringList());
}

TEST_F(ExportZip, AShellMapsFilesKeepTheirTime) {
    PutShellMap(u"QvShellMap001"_s);
    SetTime(At(u"game\\Maps\\QvShellMap001\\QvInfos.ini"_s), QDateTime(QDate(2003, 8, 30), QTime(20, 55, 28)));
    ToZip({ShellMap(u"QvShellMap001"_s, u"Night"_s)});
    // 20:55:28 and the 30th of August of the year 23.
    EXPECT_EQ(World::ReadFile(Zip()).mid(10, 4), QByteArray("\xEE\xA6\x1E\x2F"));
}

TEST_F(ExportZip, AShellMapWhoseNameIsNoFolderNameIsLeftOutAndTold) {
    PutShellMap(u"QvShellMap001"_s);
    PutShellMap(u"QvShellMap002"_s);
    Put(u"program\\keep.txt"_s, "kept");
    for (const QString& name : {u".."_s, u"."_s, QString(), u"..\\..\\x"_s, u"a\\b"_s, u"a/b"_s, u"C:"_s, u"\\x"_s,
                                u"con"_s, u"LPT1.map"_s, u"a?"_s, u"a*"_s, u"ends."_s, u"ends "_s}) {
        const ExportReport report =
            ToZip({ShellMap(u"QvShellMap001"_s, name), ShellMap(u"QvShellMap002"_s, u"Good"_s)});
        EXPECT_EQ(Names(), (QList<QByteArray>{"Good\\QvInfos.ini", "Good\\shellmap1.map"})) << name.toStdString();
        ASSERT_EQ(Failures(report), 1) << name.toStdString();
        EXPECT_EQ(report.Lines[0].Outcome, Outcome::Refused);
        EXPECT_EQ(report.Lines[0].Item, name.isEmpty() ? u"QvShellMap001"_s : name);
        EXPECT_EQ(Scratch(), QStringList());
    }
    EXPECT_EQ(World::ReadFile(At(u"program\\keep.txt"_s)), "kept");
}

TEST_F(ExportZip, OfAShellMapOnlyWhatWasMadeForItIsDeletedAndPacked) {
    PutShellMap(u"QvShellMap001"_s);
    Put(u"program\\Temp\\Night\\others.txt"_s, "kept");
    ToZip({ShellMap(u"QvShellMap001"_s, u"Night"_s)});
    EXPECT_EQ(Names(), (QList<QByteArray>{"Night\\QvInfos.ini", "Night\\shellmap1.map"}));
    EXPECT_EQ(World::ReadFile(At(u"program\\Temp\\Night\\others.txt"_s)), "kept");
}

TEST_F(ExportZip, TwoShellMapsMayHaveOneNameEvenThatOfTheReadMe) {
    PutShellMap(u"QvShellMap001"_s);
    PutShellMap(u"QvShellMap002"_s);
    const ExportReport report =
        ToZip({ShellMap(u"QvShellMap001"_s, u"ReadMe.txt"_s), ShellMap(u"QvShellMap002"_s, u"ReadMe.txt"_s)},
              {.ReadMe = u"hi"_s});
    EXPECT_FALSE(report.HasFailures());
    EXPECT_EQ(Names(), (QList<QByteArray>{"ReadMe.txt", "ReadMe.txt\\QvInfos.ini", "ReadMe.txt\\shellmap1.map",
                                          "ReadMe.txt\\QvInfos.ini", "ReadMe.txt\\shellmap1.map"}));
}

TEST_F(ExportZip, TheReadMeComesFirstAndStaysBehind) {
    Put(u"replays\\a.rep"_s);
    const QString text = u"Made for my friends.\r\n\u00C4 \u20AC\r\n"_s;
    EXPECT_FALSE(ToZip({Replay(u"a.rep"_s)}, {.ReadMe = text}).HasFailures());
    EXPECT_EQ(Names(), (QList<QByteArray>{"ReadMe.txt", "a.rep"}));
    EXPECT_EQ(Content(u"ReadMe.txt"_s), "Made for my friends.\r\n\xC4 \x80\r\n");
    EXPECT_EQ(World::ReadFile(At(u"program\\Temp\\ReadMe.txt"_s)), "Made for my friends.\r\n\xC4 \x80\r\n");
    EXPECT_FALSE(ToZip({Replay(u"a.rep"_s)}, {.ReadMe = u"new"_s}).HasFailures());
    EXPECT_EQ(Content(u"ReadMe.txt"_s), "new");
}

TEST_F(ExportZip, AnEmptyReadMeIsNone) {
    Put(u"replays\\a.rep"_s);
    Put(u"program\\Temp\\ReadMe.txt"_s, "of an export before");
    const ExportReport report = ToZip({Replay(u"a.rep"_s)}, {.ReadMe = u""_s});
    EXPECT_EQ(Names(), QList<QByteArray>{"a.rep"}); // This is meant.
    EXPECT_EQ(With(Outcome::Empty, report), QStringList{u"ReadMe.txt"_s});
}

TEST_F(ExportZip, LettersOfTheReadMeThatThePageLacksAreTold) {
    Put(u"replays\\a.rep"_s);
    const ExportReport report = ToZip({Replay(u"a.rep"_s)}, {.ReadMe = u"\u4E2D!"_s});
    EXPECT_EQ(Content(u"ReadMe.txt"_s), "?!");
    EXPECT_EQ(With(Outcome::LettersLost, report), QStringList{u"ReadMe.txt"_s});
}

TEST_F(ExportZip, ARecordWithoutAPathWalksNothing) {
    const ExportReport report = ToZip({{}});
    EXPECT_EQ(World::ReadFile(Zip()), Bytes("PK\5\6\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0"));
    ASSERT_EQ(report.Lines.size(), 1U);
    EXPECT_EQ(report.Lines[0].Outcome, Outcome::NoPath);
    Put(u"replays\\a.rep"_s);
    for (const qint32 kind : {FileKind::Mod, FileKind::Replay, FileKind::ShellMap})
        ToZip({{.Path = {}, .Name = u"x"_s, .Kind = kind}, Replay(u"a.rep"_s)});
    EXPECT_EQ(Names(), QList<QByteArray>{"a.rep"});
}

TEST_F(ExportZip, WithoutARecordNothingIsWritten) {
    EXPECT_FALSE(ToZip({}, {.ReadMe = u"hi"_s}).Cancelled);
    EXPECT_FALSE(Files::FileExists(Zip()));
}

TEST_F(ExportZip, WhatIsGoneIsTold) {
    Put(u"replays\\a.rep"_s);
    const ExportReport report = ToZip({Replay(u"gone.rep"_s), Map(u"Gone"_s), Mod(u"gone.big"_s),
                                       ShellMap(u"QvShellMap009"_s, u"Gone"_s), Replay(u"a.rep"_s)});
    EXPECT_EQ(Names(), QList<QByteArray>{"a.rep"});
    EXPECT_EQ(Failures(report), 4);
    EXPECT_EQ(With(Outcome::Gone, report), (QStringList{u"gone.rep"_s, u"gone.big"_s, u"Gone"_s}));
    EXPECT_EQ(With(Outcome::Failed, report), QStringList{u"Gone"_s});
}

TEST_F(ExportZip, ASourceThatVanishesMidwayIsTold) {
    Put(u"replays\\a.rep"_s);
    const QString second = Put(u"replays\\b.rep"_s);
    Put(u"replays\\c.rep"_s);
    watch_.Yield = [&] {
        Ignoring([&] { Files::DeleteForced(second); });
        return true;
    };
    const ExportReport report = ToZip({Replay(u"a.rep"_s), Replay(u"b.rep"_s), Replay(u"c.rep"_s)});
    EXPECT_EQ(Names(), (QList<QByteArray>{"a.rep", "c.rep"}));
    EXPECT_EQ(With(Outcome::Gone, report), QStringList{u"b.rep"_s});
}

TEST_F(ExportZip, AMapsFileThatVanishesMidwayIsTold) {
    PutAlpine();
    watch_.Yield = [&] {
        Ignoring([&] { Files::DeleteForced(At(u"maps\\Alpine\\map.ini"_s)); });
        return true;
    };
    const ExportReport report = ToZip({Map(u"Alpine"_s)});
    EXPECT_EQ(Names().size(), 3);
    EXPECT_EQ(With(Outcome::Gone, report), QStringList{u"map.ini"_s});
}

TEST_F(ExportZip, TheTextOfTheReportBeginsWithWhatWasNotDone) {
    world_.UseLanguage("[LNG]\r\nNotExported=Not:\r\nExported=Done:\r\nExportDone=ok\r\nExportEmpty=empty\r\n"
                       "ExportRefused=bad\r\n");
    world_.Start();
    mMain::LanguageFileName = u"Test.lng"_s;
    ExportReport report{.Lines = {{u"a"_s}, {u"b"_s, Outcome::Empty}, {u"c"_s, Outcome::Refused, u"why"_s}}};
    EXPECT_EQ(ExportText(report), u"Not:\n  b: empty\n  c: bad (why)\n\nDone:\n  a: ok"_s);
    report.Lines = {{u"a"_s}};
    EXPECT_EQ(ExportText(report), u"Done:\n  a: ok"_s);
    report.Lines = {{u"b"_s, Outcome::Empty}};
    EXPECT_EQ(ExportText(report), u"Not:\n  b: empty"_s);
}
