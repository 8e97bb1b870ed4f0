// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The download, and the end of the program behind it.

#include "platform/Clock.h"
#include "platform/Files.h"
#include "tests/update/UpdateTest.h"

using namespace Qt::StringLiterals;

namespace {

class UpdateDownloadTest : public UpdateTest {
protected:
    static QByteArray Bytes(qsizetype size) {
        QByteArray bytes(size, 'x');
        for (qsizetype at = 0; at < size; ++at)
            bytes[at] = static_cast<char>(at % 251);
        return bytes;
    }

    /// A check that has found this patch.
    void Find(const QByteArray& patch, const QByteArray& name = "patch.exe") {
        OfferPatch(patch, name);
        Check();
        ASSERT_TRUE(view_.DownloadEnabled);
        http_.Requests.clear();
    }

    void ExpectNothingStarted() {
        EXPECT_EQ(started_, QStringList());
        EXPECT_EQ(ends_, 0);
        EXPECT_TRUE(view_.IsClosed);
        EXPECT_FALSE(view_.TimersRun);
        EXPECT_TRUE(navigator_.ToolsMenuEnabled);
    }

    /// Begins a download and presses Cancel as soon as it waits, which ends it.
    void LeaveInTheFirstWait() {
        int waits = 0;
        host_.OnWait = [&] {
            ++waits;
            client_.CancelPressed();
        };
        client_.DownloadPressed();
        EXPECT_EQ(waits, 1);
        ExpectNothingStarted();
    }
};

} // namespace

TEST_F(UpdateDownloadTest, ItsBytesAreWrittenAndStartedAndTheProgramEnds) {
    const QByteArray patch = Bytes(700 * 1024 + 5);
    Find(patch);
    client_.DownloadPressed();
    EXPECT_EQ(World::ReadFile(Downloaded(u"patch.exe"_s)), patch);
    EXPECT_EQ(started_, QStringList(Downloaded(u"patch.exe"_s)));
    EXPECT_EQ(ends_, 1);
    EXPECT_EQ(http_.Requests, QStringList(u"GET http://server/base/patch.exe"_s));
    EXPECT_EQ(Messages(), QStringList());
    EXPECT_EQ(view_.ProgressValue, 100);
    EXPECT_EQ(view_.Texts[Field::Percent], u"100%"_s);
    EXPECT_FALSE(view_.TimersRun);
    EXPECT_EQ(view_.TimerStarts, 1);
}

TEST_F(UpdateDownloadTest, ANewReleaseComesFromItsOwnAddress) {
    OfferRelease(Bytes(3000));
    Check();
    client_.DownloadPressed();
    EXPECT_EQ(http_.Requests.last(), u"GET http://other/x/setup.exe"_s);
    EXPECT_EQ(started_, QStringList(Downloaded(u"setup.exe"_s)));
}

TEST_F(UpdateDownloadTest, ThePanelTellsNameSizeAndTheTimeFromZero) {
    Find(Bytes(5 * 1024 + 1000));
    bool looked = false;
    http_.OnChunk = [&] {
        if (looked)
            return;
        looked = true;
        EXPECT_EQ(view_.Shown, Panel::Download);
        EXPECT_FALSE(view_.DownloadEnabled);
        EXPECT_EQ(view_.Texts[Field::FileName], u"patch.exe"_s);
        EXPECT_EQ(view_.Texts[Field::DownloadSize], u"Size: 5 KB"_s);
        EXPECT_EQ(view_.Texts[Field::ElapsedTime], u"Elapsed: 00:00:00"_s);
        EXPECT_TRUE(view_.TimersRun);
        EXPECT_FALSE(view_.IsClosed);
    };
    client_.DownloadPressed();
    EXPECT_TRUE(looked);
}

TEST_F(UpdateDownloadTest, TheTimersShowRateAndTimes) {
    Find(Bytes(4096));
    double now = 1000;
    client_.Session.SecondsOfDay = [&] { return now; };
    int chunks = 0;
    http_.OnChunk = [&] {
        now += 2;
        if (++chunks != 2)
            return;
        client_.Download.ShowRate();
        client_.Download.ShowTimes();
    };
    client_.DownloadPressed();
    EXPECT_EQ(view_.Texts[Field::Rate], u"Speed: 0%150 KB/s"_s.replace(u"%1"_s, QLocale().decimalPoint()));
    EXPECT_EQ(view_.Texts[Field::ElapsedTime], u"Elapsed: "_s + Clock::TimeOfDay(4));
    EXPECT_EQ(view_.Texts[Field::RemainingTime], u"Remaining: "_s + Clock::TimeOfDay(12));
}

TEST_F(UpdateDownloadTest, TheTimeBeforeTheFirstByteIsARunTimeError) {
    Find(Bytes(4096));
    int raised = 0;
    http_.OnChunk = [&] {
        if (raised == 0)
            raised = NumberRaisedBy([&] { client_.Download.ShowTimes(); });
    };
    client_.DownloadPressed();
    EXPECT_EQ(raised, 11);
}

TEST_F(UpdateDownloadTest, ALastChunkOfOneByteIsWrittenButNotCounted) {
    const QByteArray patch = Bytes(1024 * 3 + 1);
    Find(patch);
    int chunks = 0;
    http_.OnChunk = [&] { ++chunks; };
    client_.DownloadPressed();
    EXPECT_EQ(World::ReadFile(Downloaded(u"patch.exe"_s)), patch);
    EXPECT_EQ(chunks, 4) << "no round follows";
    EXPECT_EQ(view_.Texts[Field::Percent], u"99%"_s);
    EXPECT_EQ(ends_, 1);
}

TEST_F(UpdateDownloadTest, EverySizeAroundAChunkArrivesWhole) {
    for (const qsizetype size : {1, 2, 1023, 1024, 1025, 1026, 2047, 2048, 2049, 262144, 262145}) {
        view_.IsClosed = false;
        client_.Session.Closed = false;
        client_.Session.Downloading = false;
        Find(Bytes(size));
        client_.DownloadPressed();
        EXPECT_EQ(World::ReadFile(Downloaded(u"patch.exe"_s)), Bytes(size)) << size;
    }
}

TEST_F(UpdateDownloadTest, TheBarStaysFrom21474837BytesOnAndTheDownloadGoesOn) {
    const QByteArray patch = Bytes(30000000);
    Find(patch);
    client_.DownloadPressed();
    EXPECT_EQ(view_.ProgressValue, 71);
    EXPECT_EQ(view_.Texts[Field::Percent], u"71%"_s);
    EXPECT_EQ(Files::FileLength(Downloaded(u"patch.exe"_s)), 30000000);
    EXPECT_EQ(ends_, 1);
}

TEST_F(UpdateDownloadTest, ACancelAtHalfLeavesTheHalfAndFreesTheMenu) {
    const QByteArray patch = Bytes(10240);
    Find(patch);
    int chunks = 0;
    http_.OnChunk = [&] {
        if (++chunks == 6) {
            EXPECT_EQ(view_.Texts[Field::Percent], u"50%"_s);
            client_.CancelPressed();
            EXPECT_FALSE(view_.IsClosed) << "the download does the closing";
        }
    };
    client_.DownloadPressed();
    ExpectNothingStarted();
    EXPECT_EQ(World::ReadFile(Downloaded(u"patch.exe"_s)), patch.first(5120));
    EXPECT_EQ(Messages(), QStringList());
}

TEST_F(UpdateDownloadTest, AServerThatNeverAnswersCanBeLeftAtOnce) {
    Find(Bytes(4096));
    At(u"patch.exe"_s).NeverComes = true;
    LeaveInTheFirstWait();
    EXPECT_EQ(Messages(), QStringList());
}

TEST_F(UpdateDownloadTest, AServerThatStallsCanBeLeftAtOnce) {
    Find(Bytes(4096));
    At(u"patch.exe"_s).StallsAt = 2000;
    LeaveInTheFirstWait();
}

TEST_F(UpdateDownloadTest, ClosingTheWindowEndsTheDownload) {
    Find(Bytes(10240));
    int chunks = 0;
    http_.OnChunk = [&] {
        if (++chunks == 3)
            view_.CloseWindow();
    };
    client_.DownloadPressed();
    ExpectNothingStarted();
    EXPECT_LE(chunks, 4);
}

TEST_F(UpdateDownloadTest, ARefusedRequestIsToldAndStartsNothing) {
    Find(Bytes(4096));
    At(u"patch.exe"_s).IsRefused = true;
    client_.DownloadPressed();
    EXPECT_EQ(Messages(), QStringList(u"No server"_s));
    ExpectNothingStarted();
    EXPECT_FALSE(Files::FileExists(Downloaded(u"patch.exe"_s)));
}

TEST_F(UpdateDownloadTest, AnAnswerThatEndsBeforeItsLengthIsToldAndStartsNothing) {
    for (const qsizetype end : {0, 1, 1023, 1024, 1025, 2048, 2049, 4095}) {
        host_.Messages.clear();
        view_.IsClosed = false;
        client_.Session.Closed = false;
        client_.Session.Downloading = false;
        Find(Bytes(4096));
        At(u"patch.exe"_s).EndsAt = end;
        client_.DownloadPressed();
        EXPECT_EQ(Messages(), QStringList(u"No server"_s)) << end;
        ExpectNothingStarted();
        At(u"patch.exe"_s).EndsAt = -1;
    }
}

TEST_F(UpdateDownloadTest, ANameThatWantsOutOfItsFolderStartsNothing) {
    for (const char* const name : {"..\\evil.exe", "../evil.exe", "C:\\evil.exe", "\\evil.exe", "/evil.exe", "con",
                                   "a/../../evil.exe", "evil.exe.", "", "a:b", "x\x01.exe", "folder/"}) {
        host_.Messages.clear();
        view_.IsClosed = false;
        client_.Session.Closed = false;
        client_.Session.Downloading = false;
        Find(Bytes(4096), name);
        client_.DownloadPressed();
        EXPECT_EQ(Messages(), QStringList(u"Bad name"_s)) << name;
        EXPECT_EQ(http_.Requests, QStringList()) << name;
        ExpectNothingStarted();
    }
    EXPECT_FALSE(Files::FileExists(world_.ProgramFolder() + u"\\evil.exe"_s));
}

TEST_F(UpdateDownloadTest, AnAddressThatEndsInASlashOrAQueryStartsNothing) {
    for (const char* const url : {"http://other/x/", "http://other/setup.exe?version=9", "file:///etc/"}) {
        host_.Messages.clear();
        view_.IsClosed = false;
        client_.Session.Closed = false;
        client_.Session.Downloading = false;
        Tell("[LatestVersion]\r\nVersion=9.1.2\r\nURL="_ba + url + "\r\n");
        Check();
        client_.DownloadPressed();
        EXPECT_EQ(Messages(), QStringList(u"Bad name"_s)) << url;
        ExpectNothingStarted();
    }
}

TEST_F(UpdateDownloadTest, APatchInAFolderOfTheServerGetsItsFolder) {
    Find(Bytes(4096), "patches/3/p.exe");
    client_.DownloadPressed();
    EXPECT_EQ(started_, QStringList(Downloaded(u"patches\\3\\p.exe"_s)));
    EXPECT_EQ(Files::FileLength(Downloaded(u"patches\\3\\p.exe"_s)), 4096);
}

TEST_F(UpdateDownloadTest, UnsavedChangesAreAskedAboutBeforeTheFirstByte) {
    Find(Bytes(4096));
    navigator_.ProgramMayEnd = false;
    client_.DownloadPressed();
    EXPECT_EQ(http_.Requests, QStringList());
    EXPECT_EQ(view_.Shown, Panel::Found);
    EXPECT_TRUE(view_.DownloadEnabled);
    EXPECT_FALSE(view_.IsClosed);
    EXPECT_EQ(navigator_.Calls, QStringList(u"MayEndProgram"_s));
}

TEST_F(UpdateDownloadTest, WhatWasChangedMeanwhileIsAskedAboutBeforeTheEnd) {
    Find(Bytes(4096));
    http_.OnChunk = [&] { navigator_.ProgramMayEnd = false; };
    client_.DownloadPressed();
    EXPECT_EQ(navigator_.Calls, (QStringList{u"MayEndProgram"_s, u"MayEndProgram"_s}));
    ExpectNothingStarted();
}

TEST_F(UpdateDownloadTest, AnUnknownKindDoesNothingAtAll) {
    Find(Bytes(4096));
    mUpdater::UpdateKind = 2;
    client_.DownloadPressed();
    EXPECT_EQ(http_.Requests, QStringList());
    EXPECT_EQ(view_.Shown, Panel::Found);
    EXPECT_EQ(navigator_.Calls, QStringList());
}

TEST_F(UpdateDownloadTest, WhatCannotBeStartedEndsTheProgramAllTheSame) {
    startFails_ = true;
    Find(Bytes(4096));
    client_.DownloadPressed();
    EXPECT_EQ(ends_, 1);
    EXPECT_EQ(Messages(), QStringList());
}

TEST_F(UpdateDownloadTest, WhatCannotBeWrittenIsPassedOver) {
    Find(Bytes(4096));
    world_.WriteFile(u"program\\TempUpdater\\patch.exe\\in the way"_s, "a folder of its name");
    client_.DownloadPressed();
    EXPECT_EQ(started_.size(), 1);
    EXPECT_EQ(ends_, 1);
}

TEST_F(UpdateDownloadTest, AnOlderFileOfTheNameIsReplaced) {
    Find(Bytes(10));
    world_.WriteFile(u"program\\TempUpdater\\PATCH.exe"_s, QByteArray(5000, 'o'));
    client_.DownloadPressed();
    EXPECT_EQ(World::ReadFile(started_.value(0)), Bytes(10));
}

TEST_F(UpdateDownloadTest, EachChunkYieldsOnce) {
    Find(Bytes(10240));
    host_.Yields = 0;
    int chunks = 0;
    http_.OnChunk = [&] { EXPECT_EQ(host_.Yields, ++chunks); };
    client_.DownloadPressed();
    EXPECT_EQ(chunks, 11);
}
