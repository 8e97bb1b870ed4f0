// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

// What an uninstallation takes away, leaves and puts back.

#include "install/journal/UninstallTexts.h"
#include "tests/install/journal_fixture.h"

using namespace Qt::StringLiterals;

namespace {

class Uninstalling : public JournalTest {
protected:
    [[nodiscard]] static QString ShellMap(int number) {
        return GameFiles::ShellMapFolder(0, GameFiles::ShellMapName(QString::number(number)));
    }
};

} // namespace

TEST_F(Uninstalling, TakesAwayWhatCame) {
    InstallFiles({{InGame(u"Mod.big"_s), "a"}, {InMaps(u"A\\A.map"_s), "m"}, {InMaps(u"A\\A.tga"_s), "t"}});
    const UninstallPlan plan = PlanOf(1);
    EXPECT_EQ(plan.Source, u"Pack.zip"_s);
    EXPECT_EQ(plan.Paths(Fate::Goes),
              (QStringList{InGame(u"Mod.big"_s), InMaps(u"A\\A.map"_s), InMaps(u"A\\A.tga"_s)}));
    EXPECT_EQ(plan.Folders, QStringList{InMaps(u"A"_s)});
    EXPECT_TRUE(Files::FileExists(InGame(u"Mod.big"_s))) << "a plan does nothing";
    EXPECT_EQ(Uninstall::Run(plan), QStringList());
    EXPECT_FALSE(Files::FileExists(InGame(u"Mod.big"_s)));
    EXPECT_FALSE(Files::FolderExists(InMaps(u"A"_s)));
    EXPECT_TRUE(Files::FolderExists(Game[0].MapPath.chopped(1)));
    EXPECT_FALSE(IsKnown(1));
}

TEST_F(Uninstalling, LeavesOtherInstalls) {
    InstallFiles({{InGame(u"A.big"_s), "a"}});
    InstallFiles({{InGame(u"B.big"_s), "a"}});
    EXPECT_EQ(UninstallIt(1), QStringList());
    EXPECT_TRUE(Files::FileExists(InGame(u"B.big"_s)));
    EXPECT_TRUE(IsKnown(2));
}

TEST_F(Uninstalling, AChangedFileStays) {
    InstallFiles({{InGame(u"Same.big"_s), "abc"}, {InGame(u"Longer.big"_s), "abc"}, {InGame(u"Other.big"_s), "abc"}});
    Write(InGame(u"Longer.big"_s), "abcd");
    Write(InGame(u"Other.big"_s), "abd");
    const UninstallPlan plan = PlanOf(1);
    EXPECT_EQ(plan.Paths(Fate::Changed), (QStringList{InGame(u"Longer.big"_s), InGame(u"Other.big"_s)}));
    EXPECT_EQ(Uninstall::Run(plan), QStringList());
    EXPECT_FALSE(Files::FileExists(InGame(u"Same.big"_s)));
    EXPECT_EQ(Bytes(InGame(u"Longer.big"_s)), "abcd");
    EXPECT_EQ(Bytes(InGame(u"Other.big"_s)), "abd");
    EXPECT_FALSE(IsKnown(1)) << "what was changed is the user's own by now";
}

TEST_F(Uninstalling, WhatWasReplacedComesBack) {
    const QString path = Install(u"Mod.big"_s, "old");
    InstallFiles({{path, "new"}});
    EXPECT_EQ(PlanOf(1).Paths(Fate::ComesBack), QStringList{path});
    EXPECT_EQ(UninstallIt(1), QStringList());
    EXPECT_EQ(Bytes(path), "old");
    EXPECT_FALSE(IsKnown(1));
    EXPECT_EQ(Aside(), QStringList());
}

TEST_F(Uninstalling, WhatWasReplacedComesBackWithItsTime) {
    const QString path = Install(u"Mod.big"_s, "old");
    const QDateTime time = QDateTime::currentDateTime().addDays(-100);
    {
        QFile file(Paths::ToNative(path));
        ASSERT_TRUE(file.open(QIODevice::ReadWrite) && file.setFileTime(time, QFileDevice::FileModificationTime));
    }
    InstallFiles({{path, "new"}});
    EXPECT_EQ(UninstallIt(1), QStringList());
    EXPECT_EQ(Bytes(path), "old");
    EXPECT_EQ(Files::ModifiedTime(path).toSecsSinceEpoch(), time.toSecsSinceEpoch());
}

TEST_F(Uninstalling, WhatWasReplacedComesBackAlsoWhereTheNewFileIsGone) {
    const QString path = Write(InMaps(u"A\\A.map"_s), "old");
    InstallFiles({{path, "new"}});
    Files::DeleteFolder(InMaps(u"A"_s));
    EXPECT_EQ(UninstallIt(1), QStringList());
    EXPECT_EQ(Bytes(path), "old");
}

TEST_F(Uninstalling, WhatAChangedFileHadReplacedIsNotLost) {
    const QString path = Install(u"Mod.big"_s, "old");
    InstallFiles({{path, "new"}, {InGame(u"B.big"_s), "b"}});
    Write(path, "mine");
    EXPECT_EQ(UninstallIt(1), QStringList());
    EXPECT_EQ(Bytes(path), "mine");
    EXPECT_EQ(PathsOf(1), QStringList{path});
    EXPECT_EQ(Bytes(InstallJournal::KeptPath(Entry(1).Files.at(0).Kept)), "old");
    Files::Delete(path);
    EXPECT_EQ(UninstallIt(1), QStringList());
    EXPECT_EQ(Bytes(path), "old");
    EXPECT_FALSE(IsKnown(1));
}

TEST_F(Uninstalling, AFileThatIsWriteProtectedGoesAndComesBack) {
    const QString path = Install(u"Mod.big"_s, "old");
    InstallFiles({{path, "new"}, {InGame(u"B.big"_s), "b"}});
    Protect(path);
    Protect(InGame(u"B.big"_s));
    EXPECT_EQ(UninstallIt(1), QStringList());
    EXPECT_EQ(Bytes(path), "old");
    EXPECT_FALSE(Files::FileExists(InGame(u"B.big"_s)));
}

TEST_F(Uninstalling, AFileThatIsGoneIsNoFailure) {
    InstallFiles({{InGame(u"A.big"_s), "a"}, {InGame(u"B.big"_s), "b"}});
    Files::Delete(InGame(u"A.big"_s));
    const UninstallPlan plan = PlanOf(1);
    EXPECT_EQ(plan.Paths(Fate::Gone), QStringList{InGame(u"A.big"_s)});
    EXPECT_EQ(Uninstall::Run(plan), QStringList());
    EXPECT_FALSE(IsKnown(1));
}

TEST_F(Uninstalling, AFolderWithSomethingElseInItStays) {
    InstallFiles({{InMaps(u"A\\A.map"_s), "m"}, {InMaps(u"B\\B.map"_s), "m"}, {InMaps(u"B\\Sub\\C.map"_s), "m"}});
    Write(InMaps(u"A\\notes.txt"_s));
    EXPECT_EQ(PlanOf(1).Folders, (QStringList{InMaps(u"B\\Sub"_s), InMaps(u"B"_s)}));
    EXPECT_EQ(UninstallIt(1), QStringList());
    EXPECT_EQ(Files::ListFolder(InMaps(u"A\\"_s)), QStringList{u"notes.txt"_s});
    EXPECT_FALSE(Files::FolderExists(InMaps(u"B"_s)));
    EXPECT_FALSE(IsKnown(1));
}

TEST_F(Uninstalling, WhatAProcessThatDiedLeftAsideKeepsNoFolder) {
    const QString name = u"\\~brindock-0123456789abcdef0123456789abcdef"_s;
    BreakOff(Source(), [&](JournalRun& run) {
        for (const QString& folder : {u"A"_s, u"B"_s, u"C"_s, u"D"_s})
            Step(run, InMaps(folder + u'\\' + folder + u".map"_s), "m");
    });
    const QStringList leftovers{InMaps(u"A"_s) + name, InMaps(u"A"_s) + name + u"17"_s, InMaps(u"B"_s) + name};
    for (const QString& path : leftovers)
        Write(path, "half");
    Write(InMaps(u"B\\notes.txt"_s));
    Write(InMaps(u"C\\~brindock-notes.txt"_s));
    Write(InMaps(u"D"_s) + name + u".renamed"_s, "a user's");
    const UninstallPlan plan = PlanOf(1);
    EXPECT_EQ(plan.Folders, QStringList{InMaps(u"A"_s)});
    EXPECT_EQ(Uninstall::Run(plan), QStringList());
    EXPECT_FALSE(Files::FolderExists(InMaps(u"A"_s)));
    EXPECT_TRUE(Files::FileExists(leftovers.back())) << "its folder stays anyhow";
    EXPECT_TRUE(Files::FileExists(InMaps(u"C\\~brindock-notes.txt"_s)));
    EXPECT_TRUE(Files::FileExists(InMaps(u"D"_s) + name + u".renamed"_s));
    EXPECT_FALSE(IsKnown(1));
}

TEST_F(Uninstalling, WhatIsWrittenAsideBehindThePlanStays) {
    InstallFiles({{InMaps(u"A\\A.map"_s), "m"}});
    const QString aside = Write(InMaps(u"A\\~brindock-0123456789abcdef0123456789abcdef"_s), "half");
    const UninstallPlan plan = PlanOf(1);
    Write(aside, "another half");
    EXPECT_EQ(Uninstall::Run(plan), QStringList());
    EXPECT_EQ(Bytes(aside), "another half");
}

TEST_F(Uninstalling, AFolderThatStoodBeforeStaysEmpty) {
    Write(InMaps(u"A\\notes.txt"_s));
    InstallFiles({{InMaps(u"A\\A.map"_s), "m"}});
    Files::Delete(InMaps(u"A\\notes.txt"_s));
    EXPECT_EQ(UninstallIt(1), QStringList());
    EXPECT_TRUE(Files::FolderExists(InMaps(u"A"_s)));
}

TEST_F(Uninstalling, AFileThatIsWrittenBehindThePlanStaysAndSoDoesItsEntry) {
    const QString old = Install(u"Old.big"_s, "old");
    InstallFiles({{InGame(u"A.big"_s), "abc"}, {InGame(u"B.big"_s), "b"}, {old, "new"}});
    const UninstallPlan plan = PlanOf(1);
    Write(InGame(u"A.big"_s), "abcd");
    Write(old, "newer");
    const QStringList failures = Uninstall::Run(plan);
    ASSERT_EQ(failures.size(), 2);
    EXPECT_TRUE(failures.at(0).startsWith(Paths::ToNative(InGame(u"A.big"_s))));
    EXPECT_EQ(Bytes(InGame(u"A.big"_s)), "abcd");
    EXPECT_EQ(Bytes(old), "newer");
    EXPECT_FALSE(Files::FileExists(InGame(u"B.big"_s)));
    EXPECT_EQ(PathsOf(1), (QStringList{InGame(u"A.big"_s), old}));
}

TEST_F(Uninstalling, WhatWasPutAsideAndIsGoneIsAFailureThatLosesNothing) {
    const QString path = Install(u"Mod.big"_s, "old");
    InstallFiles({{path, "new"}});
    Files::Delete(InstallJournal::KeptPath(u"1\\1"_s));
    EXPECT_EQ(UninstallIt(1).size(), 1);
    EXPECT_EQ(Bytes(path), "new");
    EXPECT_TRUE(IsKnown(1));
}

TEST_F(Uninstalling, TheLaterOfTwoInstallsPutsTheEarlierOnesFileBack) {
    const QString path = Install(u"Mod.big"_s, "before");
    InstallFiles({{path, "first"}});
    InstallFiles({{path, "second"}});
    EXPECT_EQ(UninstallIt(2), QStringList());
    EXPECT_EQ(Bytes(path), "first");
    EXPECT_EQ(UninstallIt(1), QStringList());
    EXPECT_EQ(Bytes(path), "before");
    EXPECT_EQ(Aside(), QStringList());
}

TEST_F(Uninstalling, OfTheEarlierOfTwoInstallsNothingComesBackWithTheLaterOne) {
    const QString path = Install(u"Mod.big"_s, "before");
    InstallFiles({{path, "first"}, {InGame(u"B.big"_s), "b"}});
    InstallFiles({{path, "second"}});
    EXPECT_EQ(PlanOf(1).Paths(Fate::Superseded), QStringList{path});
    EXPECT_EQ(UninstallIt(1), QStringList());
    EXPECT_EQ(Bytes(path), "second");
    EXPECT_FALSE(IsKnown(1));
    EXPECT_EQ(UninstallIt(2), QStringList());
    EXPECT_EQ(Bytes(path), "before");
    EXPECT_EQ(Aside(), QStringList());
}

TEST_F(Uninstalling, TheSameInstalledTwiceGoesWithTheLastOfThem) {
    InstallFiles({{InGame(u"Mod.big"_s), "same"}});
    InstallFiles({{InGame(u"Mod.big"_s), "same"}});
    EXPECT_EQ(UninstallIt(1), QStringList());
    EXPECT_TRUE(Files::FileExists(InGame(u"Mod.big"_s)));
    EXPECT_EQ(UninstallIt(2), QStringList());
    EXPECT_FALSE(Files::FileExists(InGame(u"Mod.big"_s)));
}

TEST_F(Uninstalling, WhatTheUserChangedBetweenTwoInstallsIsKept) {
    InstallFiles({{InGame(u"Mod.big"_s), "first"}});
    Write(InGame(u"Mod.big"_s), "mine");
    InstallFiles({{InGame(u"Mod.big"_s), "second"}});
    EXPECT_EQ(PlanOf(1).Paths(Fate::Changed), QStringList{InGame(u"Mod.big"_s)});
    EXPECT_EQ(UninstallIt(1), QStringList());
    EXPECT_EQ(UninstallIt(2), QStringList());
    EXPECT_EQ(Bytes(InGame(u"Mod.big"_s)), "mine");
}

TEST_F(Uninstalling, ClosesTheGapThatAShellMapLeaves) {
    Write(ShellMap(1) + u"\\shellmap1.map"_s, "1");
    InstallFiles({{ShellMap(2) + u"\\shellmap1.map"_s, "2"}, {ShellMap(3) + u"\\shellmap1.map"_s, "3"}});
    Write(ShellMap(4) + u"\\shellmap1.map"_s, "4");
    EXPECT_EQ(PlanOf(1).Folders, (QStringList{ShellMap(2), ShellMap(3)}));
    EXPECT_EQ(UninstallIt(1), QStringList());
    EXPECT_EQ(Bytes(ShellMap(1) + u"\\shellmap1.map"_s), "1");
    EXPECT_EQ(Bytes(ShellMap(2) + u"\\shellmap1.map"_s), "4");
    EXPECT_FALSE(Files::FolderExists(ShellMap(3)));
    EXPECT_FALSE(IsKnown(1));
}

TEST_F(Uninstalling, AShellMapWithSomethingElseInItKeepsItsNumber) {
    InstallFiles({{ShellMap(1) + u"\\shellmap1.map"_s, "1"}});
    Write(ShellMap(1) + u"\\mine.txt"_s, "mine");
    Write(ShellMap(2) + u"\\shellmap1.map"_s, "2");
    EXPECT_EQ(UninstallIt(1), QStringList());
    EXPECT_EQ(Files::ListFolder(ShellMap(1) + u'\\'), QStringList{u"mine.txt"_s});
    EXPECT_EQ(Bytes(ShellMap(2) + u"\\shellmap1.map"_s), "2");
}

TEST_F(Uninstalling, WhatIsForgottenStaysOnTheDisk) {
    const QString path = Install(u"Mod.big"_s, "old");
    InstallFiles({{path, "new"}});
    Uninstall::Forget(1);
    EXPECT_EQ(Bytes(path), "new");
    EXPECT_FALSE(IsKnown(1));
    EXPECT_EQ(Aside(), QStringList());
}

TEST_F(Uninstalling, AnInstallThatIsNotThereIsRefused) {
    EXPECT_EQ(NumberRaisedBy([] { static_cast<void>(PlanOf(7)); }), ErrorNumber::InvalidCall);
    EXPECT_EQ(NumberRaisedBy([] { Uninstall::Forget(7); }), ErrorNumber::InvalidCall);
}

TEST_F(Uninstalling, IsToldInListsThatAreCut) {
    QList<std::pair<QString, QByteArray>> files;
    for (int number = 0; number < 9; ++number)
        files.emplaceBack(InMaps(u"A\\%1.map"_s.arg(number)), "m");
    InstallFiles(files);
    Write(InMaps(u"A\\8.map"_s), "mine");
    world_.UseLanguage("[LNG]\r\nUninstallAsk=%1 of %2\r\nUninstallGoes=Go (%1)\r\nUninstallChanged=Stay (%1)\r\n"
                       "AndMore=and %1\r\n");
    mMain::LanguageFileName = u"Test.lng"_s;
    const QStringList lines = UninstallTexts::Question(PlanOf(1)).split(u"\r\n"_s);
    ASSERT_EQ(lines.size(), 13);
    EXPECT_TRUE(lines.at(0).startsWith(u"Pack.zip of "));
    EXPECT_EQ(lines.mid(1, 3), (QStringList{QString(), u"Go (8)"_s, Paths::ToNative(u"Maps\\A\\0.map"_s)}));
    EXPECT_EQ(lines.mid(9), (QStringList{u"and 2"_s, QString(), u"Stay (1)"_s, Paths::ToNative(u"Maps\\A\\8.map"_s)}));
}

TEST_F(Uninstalling, OfWhatIsNoLongerThereSaysSo) {
    InstallFiles({{InGame(u"A.big"_s), "a"}});
    Files::Delete(InGame(u"A.big"_s));
    EXPECT_TRUE(UninstallTexts::Question(PlanOf(1)).endsWith(u"UninstallNothing"_s));
}
