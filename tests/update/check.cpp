// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

// What a check asks for, and what it shows.

#include "platform/Files.h"
#include "tests/update/UpdateTest.h"

#include <QCoreApplication>
#include <QThread>

using namespace Qt::StringLiterals;

namespace {

const QString infoRequest = u"GET http://server/base/updates_info.inf"_s;

class UpdateCheckTest : public UpdateTest {
protected:
    void ExpectMenuIsFree() { EXPECT_TRUE(navigator_.ToolsMenuEnabled); }

    void ExpectSilence() {
        EXPECT_TRUE(view_.IsClosed);
        EXPECT_EQ(view_.Shows, 0);
        EXPECT_EQ(Messages(), QStringList());
        EXPECT_EQ(host_.Beeps, 0);
        ExpectMenuIsFree();
    }

    void ExpectServerError() {
        EXPECT_EQ(Messages(), QStringList(u"No server"_s));
        EXPECT_EQ(host_.Messages.front().Sign, Host::Icon::Critical);
        EXPECT_TRUE(view_.IsClosed);
        ExpectMenuIsFree();
    }
};

} // namespace

TEST_F(UpdateCheckTest, AManualCheckShowsItsWindowAtOnce) {
    At(u"updates_info.inf"_s).NeverComes = true;
    bool shown = false;
    host_.OnWait = [&] {
        shown = view_.Visible && view_.Shown == Panel::Searching;
        client_.CancelPressed();
    };
    Check();
    EXPECT_TRUE(shown);
}

TEST_F(UpdateCheckTest, AnAutomaticCheckStaysHiddenWhileItSearches) {
    At(u"updates_info.inf"_s).NeverComes = true;
    bool shown = true;
    host_.OnWait = [&] {
        shown = view_.Visible;
        client_.CancelPressed();
    };
    Check(true);
    EXPECT_FALSE(shown);
    ExpectSilence();
}

TEST_F(UpdateCheckTest, TheFileIsAskedForTwiceAndItsSizeFirst) {
    Tell("[LatestVersion]\r\nVersion=" + Own() + "\r\n");
    int chunks = 0;
    http_.OnChunk = [&] {
        ++chunks;
        EXPECT_EQ(http_.Requests.size(), 2);
    };
    Check();
    EXPECT_EQ(http_.Requests, (QStringList{infoRequest, infoRequest}));
    EXPECT_GE(chunks, 1);
    EXPECT_GE(http_.Cancels, 1) << "the request for the size is ended behind its head";
}

TEST_F(UpdateCheckTest, WithoutAServerAManualCheckSaysSo) {
    Check();
    ExpectServerError();
    EXPECT_EQ(http_.Requests.size(), 1);
}

TEST_F(UpdateCheckTest, WithoutAServerAnAutomaticCheckIsSilent) {
    Check(true);
    ExpectSilence();
}

TEST_F(UpdateCheckTest, WithoutItsSettingsThereIsNoServer) {
    Files::Delete(world_.ProgramFolder() + u"\\updater.cfg"_s);
    Check();
    ExpectServerError();
    EXPECT_EQ(http_.Requests, QStringList(u"GET updates_info.inf"_s));
}

TEST_F(UpdateCheckTest, ALengthThatIsMissingOrNoneIsNoServer) {
    OfferPatch("x");
    for (const QString& length : {u""_s, u"0"_s, u"abc"_s, u"-5"_s, u"+5"_s, u"2147483648"_s, u"5 5"_s, u"0x10"_s}) {
        At(u"updates_info.inf"_s).Length = length;
        EXPECT_EQ(client_.Session.RemoteFileSize(u"http://server/base/updates_info.inf"_s), 0) << length.toStdString();
    }
    Check();
    ExpectServerError();
}

TEST_F(UpdateCheckTest, TheLargestLengthOf32BitsIsOne) {
    At(u"updates_info.inf"_s).Length = u"2147483647"_s;
    EXPECT_EQ(client_.Session.RemoteFileSize(u"http://server/base/updates_info.inf"_s), 2147483647);
}

TEST_F(UpdateCheckTest, TheLengthOfARefusalCountsForNothing) {
    At(u"x"_s) = {.Body = "404 Not Found", .IsRefused = true};
    EXPECT_EQ(client_.Session.RemoteFileSize(u"http://server/base/x"_s), 0);
}

TEST_F(UpdateCheckTest, ATransferThatFailsBehindTheSizeIsToldInBothModes) {
    for (const bool automatic : {false, true}) {
        host_.Messages.clear();
        view_.IsClosed = false;
        client_.Session.Closed = false;
        OfferPatch("x");
        At(u"updates_info.inf"_s).EndsAt = 20;
        Check(automatic);
        ExpectServerError();
    }
}

TEST_F(UpdateCheckTest, TheSameVersionIsNoUpdateWhateverItsSectionSays) {
    Tell("[LatestVersion]\r\nVersion=" + Own() + "\r\n[" + Own() + "]\r\nUpdateAvailable=1\r\nFilename=p.exe\r\n");
    Check();
    EXPECT_EQ(view_.Shown, Panel::NoUpdate);
    EXPECT_TRUE(view_.Visible);
    EXPECT_FALSE(view_.IsClosed);
    EXPECT_FALSE(view_.DownloadEnabled);
    client_.CancelPressed();
    EXPECT_TRUE(view_.IsClosed);
    ExpectMenuIsFree();
}

TEST_F(UpdateCheckTest, AnAutomaticCheckThatFindsNothingIsSilent) {
    Tell("[LatestVersion]\r\nVersion=" + Own() + "\r\n");
    Check(true);
    ExpectSilence();
}

TEST_F(UpdateCheckTest, NoVersionCountsAsUpToDate) {
    for (const QByteArray& info :
         {QByteArray("[LatestVersion]\r\n"), QByteArray("<html>Not an INI file</html>"), QByteArray(4, 0)}) {
        Tell(info);
        Check();
        EXPECT_EQ(view_.Shown, Panel::NoUpdate) << info.constData();
    }
}

TEST_F(UpdateCheckTest, AnOlderVersionIsOfferedAsText) {
    Tell("[LatestVersion]\r\nVersion=0.0.1\r\nURL=http://other/old.exe\r\n");
    Check();
    EXPECT_EQ(view_.Shown, Panel::Found);
    EXPECT_TRUE(view_.DownloadEnabled);
}

TEST_F(UpdateCheckTest, AnotherSpellingOfTheSameVersionIsOffered) {
    Tell("[LatestVersion]\r\nVersion=03.5.4\r\nURL=http://other/old.exe\r\n");
    Check();
    EXPECT_EQ(view_.Shown, Panel::Found);
}

TEST_F(UpdateCheckTest, APatchIsFoundInTheSectionOfThisVersion) {
    OfferPatch(QByteArray(2 * 1024 * 1024 + 1023, 'x'));
    Check();
    EXPECT_EQ(view_.Shown, Panel::Found);
    EXPECT_EQ(view_.Texts[Field::Type], u"Patch"_s);
    EXPECT_EQ(view_.Texts[Field::Version], u"Nine"_s);
    EXPECT_EQ(view_.Texts[Field::Size].remove(QLocale().groupSeparator()), u"2048 KB"_s);
    EXPECT_EQ(mUpdater::UpdateKind, 0);
    EXPECT_EQ(mUpdater::UpdateFileName, u"patch.exe"_s);
    EXPECT_EQ(mUpdater::UpdateFileSize, 2 * 1024 * 1024 + 1023);
    EXPECT_EQ(mUpdater::ServerBase, u"http://server/base/"_s);
    EXPECT_TRUE(view_.DownloadEnabled);
    EXPECT_FALSE(navigator_.ToolsMenuEnabled);
    EXPECT_GE(view_.Fronts, 1);
    EXPECT_EQ(host_.Beeps, 0);
}

TEST_F(UpdateCheckTest, WithoutASectionForThisVersionItIsANewReleaseAtItsAddress) {
    OfferRelease(QByteArray(5000, 'x'));
    Check();
    EXPECT_EQ(view_.Texts[Field::Type], u"New"_s);
    EXPECT_EQ(mUpdater::UpdateKind, 1);
    EXPECT_EQ(mUpdater::UpdateFileName, u"setup.exe"_s);
    EXPECT_EQ(mUpdater::ServerBase, u"http://other/x/"_s);
    EXPECT_EQ(mUpdater::ServerBase + mUpdater::UpdateFileName, u"http://other/x/setup.exe"_s);
    EXPECT_EQ(mUpdater::UpdateFileSize, 5000);
    EXPECT_EQ(mUpdater::LatestVersion, u"9.1.2"_s);
    EXPECT_EQ(mUpdater::CurrentVersion, QString::fromLatin1(Own()));
}

TEST_F(UpdateCheckTest, APatchThatIsNotThereYetIsANewRelease) {
    OfferRelease("x");
    At(u"updates_info.inf"_s).Body += "[" + Own() + "]\r\nUpdateAvailable=0\r\nFilename=p.exe\r\n";
    Check();
    EXPECT_EQ(mUpdater::UpdateKind, 1);
}

TEST_F(UpdateCheckTest, AnAddressWithoutASlashIsAllName) {
    Tell("[LatestVersion]\r\nVersion=9.9.9\r\nURL=setup.exe\r\n");
    Check();
    EXPECT_EQ(mUpdater::UpdateFileName, u"setup.exe"_s);
    EXPECT_EQ(mUpdater::ServerBase, QString());
}

TEST_F(UpdateCheckTest, AnAutomaticCheckThatFindsSomethingComesUpAndBeeps) {
    OfferPatch("x");
    Check(true);
    EXPECT_TRUE(view_.Visible);
    EXPECT_EQ(host_.Beeps, 1);
    EXPECT_EQ(view_.Shown, Panel::Found);
    EXPECT_FALSE(navigator_.ToolsMenuEnabled);
}

TEST_F(UpdateCheckTest, NoDateIsEverFilledIn) {
    OfferPatch("x");
    Check();
    EXPECT_EQ(view_.Texts.keys(), (QList<Field>{Field::Version, Field::Type, Field::Size}));
}

TEST_F(UpdateCheckTest, CancelWhileSearchingShowsNoError) {
    At(u"updates_info.inf"_s).NeverComes = true;
    host_.OnWait = [&] { client_.CancelPressed(); };
    Check();
    EXPECT_TRUE(view_.IsClosed);
    EXPECT_EQ(Messages(), QStringList());
    EXPECT_EQ(http_.Requests.size(), 1) << "nothing is asked for any more";
    EXPECT_FALSE(http_.IsActive());
    ExpectMenuIsFree();
}

TEST_F(UpdateCheckTest, CancelWhileTheFileComesShowsNoError) {
    OfferPatch("x");
    At(u"updates_info.inf"_s).StallsAt = 10;
    host_.OnWait = [&] { client_.CancelPressed(); };
    Check();
    EXPECT_TRUE(view_.IsClosed);
    EXPECT_EQ(Messages(), QStringList());
    EXPECT_NE(view_.Shown, Panel::Found);
}

TEST_F(UpdateCheckTest, CancelWhileTheSizeOfTheUpdateIsAskedForEndsTheCheck) {
    OfferPatch("x");
    At(u"patch.exe"_s).NeverComes = true;
    host_.OnWait = [&] { client_.CancelPressed(); };
    Check();
    EXPECT_TRUE(view_.IsClosed);
    EXPECT_FALSE(view_.DownloadEnabled);
    ExpectMenuIsFree();
}

TEST_F(UpdateCheckTest, AnAutomaticCheckGivesUpOnAServerThatNeverAnswers) {
    At(u"updates_info.inf"_s).NeverComes = true;
    host_.OnWait = [] {
        QThread::msleep(1);
        QCoreApplication::processEvents();
    };
    Check(true);
    ExpectSilence();
    EXPECT_FALSE(http_.IsActive());
}

TEST_F(UpdateCheckTest, AnAutomaticCheckGivesUpOnAFileThatDoesNotEnd) {
    OfferPatch("x");
    At(u"updates_info.inf"_s).StallsAt = 10;
    host_.OnWait = [] {
        QThread::msleep(1);
        QCoreApplication::processEvents();
    };
    Check(true);
    ExpectSilence();
}

TEST_F(UpdateCheckTest, AnAutomaticCheckGivesUpOnTheSizeAndOffersTheUpdateAllTheSame) {
    OfferPatch("x");
    At(u"patch.exe"_s).NeverComes = true;
    host_.OnWait = [] {
        QThread::msleep(1);
        QCoreApplication::processEvents();
    };
    Check(true);
    EXPECT_TRUE(view_.DownloadEnabled);
    EXPECT_EQ(view_.Texts[Field::Size], u"0 KB"_s);
    EXPECT_FALSE(client_.Session.GivenUp) << "the download may take its time";
}

TEST_F(UpdateCheckTest, AManualCheckWaitsForAsLongAsTheUserDoes) {
    At(u"updates_info.inf"_s).NeverComes = true;
    int waits = 0;
    host_.OnWait = [&] {
        QThread::msleep(1);
        QCoreApplication::processEvents();
        if (++waits == 60)
            client_.CancelPressed();
    };
    Check();
    EXPECT_EQ(waits, 60);
}

TEST_F(UpdateCheckTest, FiveSecondsAreThePatienceOfTheProgram) {
    EXPECT_EQ(UpdateCheck::Patience, std::chrono::seconds(5));
}

TEST_F(UpdateCheckTest, NothingSurvivesFromTheCheckBefore) {
    world_.WriteFile(u"program\\TempUpdater\\sub\\old.exe"_s, "old");
    world_.WriteFile(u"program\\TempUpdater\\updates_info.inf"_s, "[LatestVersion]\r\nVersion=8.8.8\r\n");
    Tell("[Nothing]\r\n");
    Check();
    EXPECT_FALSE(Files::FileExists(Downloaded(u"sub\\old.exe"_s)));
    EXPECT_EQ(view_.Shown, Panel::NoUpdate);
}

TEST_F(UpdateCheckTest, TheFileStandsInTheDownloadFolderAsItCame) {
    const QByteArray info = "[LatestVersion]\r\nVersion=" + Own() + "\r\n;" + QByteArray(3000, '\xE9') + "\n\x01";
    Tell(info);
    Check();
    EXPECT_EQ(World::ReadFile(Downloaded(u"updates_info.inf"_s)), info);
}

TEST_F(UpdateCheckTest, AFileOfAHundredMegabytesIsReadInItsFirstOnly) {
    Tell("[LatestVersion]\r\nVersion=9.9.9\r\nURL=http://other/s.exe\r\n" + QByteArray(100 << 20, 'x'));
    Check();
    EXPECT_EQ(view_.Shown, Panel::Found);
    EXPECT_LE(Files::FileLength(Downloaded(u"updates_info.inf"_s)), (1 << 20) + 1024);
}

TEST_F(UpdateCheckTest, ZerosInTheFileOfferNothingDangerous) {
    Tell("[LatestVersion]\r\nVersion=9.9"_ba + QByteArray(1, '\0') + ".9\r\nVersionName=A"_ba + QByteArray(3, '\0') +
         "B\r\nURL=http://other/s\0.exe\r\n"_ba);
    Check();
    EXPECT_EQ(mUpdater::LatestVersion, u"9.9"_s) << "a value ends there";
    EXPECT_EQ(mUpdater::UpdateFileName, u"s"_s);
    EXPECT_EQ(view_.Texts[Field::Version], u"A"_s);
    EXPECT_EQ(Messages(), QStringList());
}

TEST_F(UpdateCheckTest, ValuesHave254Characters) {
    const QByteArray url = "http://other/" + QByteArray(4096, 'u') + "/setup.exe";
    Tell("[LatestVersion]\r\nVersion=9.9.9\r\nURL=" + url + "\r\n");
    Check();
    EXPECT_EQ(http_.Requests.last(), u"GET "_s + QString::fromLatin1(url.first(254)));
    EXPECT_EQ(mUpdater::UpdateFileName.size(), 254 - 13);
}

TEST_F(UpdateCheckTest, AFolderThatTakesNoFileIsSaidOnlyToTheUserWhoAsked) {
    world_.WriteFile(u"program\\TempUpdater"_s, "a file in its place");
    OfferPatch("x");
    Check(true);
    ExpectSilence();
    view_.IsClosed = false;
    client_.Session.Closed = false;
    Check();
    EXPECT_EQ(host_.Messages.size(), 1U);
    EXPECT_TRUE(view_.IsClosed);
}

TEST_F(UpdateCheckTest, TheMenuIsLockedForAsLongAsTheWindowIsLoaded) {
    OfferPatch("x");
    Check(true);
    navigator_.ToolsMenuEnabled = true; // the menu has come up behind the window
    const int fronts = view_.Fronts;
    client_.KeepInFront();
    EXPECT_FALSE(navigator_.ToolsMenuEnabled);
    EXPECT_EQ(view_.Fronts, fronts + 1);
    client_.CancelPressed();
    ExpectMenuIsFree();
}

TEST(Updater, TheFlagIsStoredAndFailuresArePassedOver) {
    for (const bool automatic : {true, false}) {
        mUpdater::LoadWindow = [] { throw RuntimeError(ErrorNumber::InvalidCall, u"no window"_s); };
        mUpdater::CheckForUpdates(automatic);
        EXPECT_EQ(mUpdater::AutoUpdateCheck, automatic);
        mUpdater::LoadWindow = nullptr;
        mUpdater::CheckForUpdates(automatic);
    }
}

TEST_F(UpdateTest, WhereAPackageManagerBringsTheUpdatesNobodyIsAsked) {
    world_.WriteFile(u"program\\updater.cfg"_s, "[BrindockUpdater]\r\nPackageManager=1\r\n");
    int loaded = 0;
    mUpdater::LoadWindow = [&loaded] { ++loaded; };
    mUpdater::CheckForUpdates(true);
    EXPECT_TRUE(host_.Messages.empty());
    mUpdater::CheckForUpdates(false);
    ASSERT_EQ(host_.Messages.size(), 1U);
    EXPECT_EQ(host_.Messages.front().Text, u"UpdatesByPackages"_s);
    EXPECT_EQ(loaded, 0);
    mUpdater::LoadWindow = nullptr;
}
