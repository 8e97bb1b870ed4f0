// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Releases that must be signed, as updater.cfg holds a key. The key here is one of the test's own making.

#include "platform/Files.h"
#include "tests/update/SigningKey.h"
#include "tests/update/UpdateTest.h"

using namespace Qt::StringLiterals;

namespace {

QByteArray Signed(const QByteArray& bytes, const QByteArray& version, const QByteArray& file,
                  const SigningKey& key = SigningKey()) {
    return key.Sign(bytes, "version:" + version + "\tfile:" + file);
}

class SignedReleases : public UpdateTest {
protected:
    SignedReleases() {
        Configure("PublicKey=" + SigningKey().PublicText().toLatin1() + "\r\n");
        OfferPatch("patch bytes");
        Sign();
    }

    void Sign() {
        const QByteArray info = At(u"updates_info.inf"_s).Body;
        At(u"updates_info.inf.minisig"_s) = {.Body = Signed(info, "9.1.2", "updates_info.inf")};
        At(u"patch.exe.minisig"_s) = {.Body = Signed(At(u"patch.exe"_s).Body, "9.1.2", "patch.exe")};
    }

    void ExpectInfoIsRefused(bool automatic = false) {
        host_.Messages.clear();
        view_.IsClosed = false;
        view_.Shown = Panel::Searching;
        client_.Session.Closed = false;
        Check(automatic);
        EXPECT_EQ(Messages(), QStringList(u"Not signed"_s));
        EXPECT_TRUE(view_.IsClosed);
        EXPECT_EQ(view_.Shown, Panel::Searching);
        EXPECT_FALSE(Files::FileExists(Downloaded(u"updates_info.inf"_s)));
        EXPECT_TRUE(navigator_.ToolsMenuEnabled);
    }

    void ExpectUpdateIsRefused() {
        host_.Messages.clear();
        view_.IsClosed = false;
        client_.Session.Closed = false;
        client_.Session.Downloading = false;
        Check();
        ASSERT_TRUE(view_.DownloadEnabled);
        client_.DownloadPressed();
        EXPECT_EQ(Messages(), QStringList(u"Not signed"_s));
        EXPECT_TRUE(view_.IsClosed);
        EXPECT_FALSE(Files::FileExists(Downloaded(u"patch.exe"_s))) << "the file is deleted";
        EXPECT_EQ(started_, QStringList());
        EXPECT_EQ(ends_, 0);
    }
};

} // namespace

TEST_F(SignedReleases, BothSignaturesAreAskedForAndTheUpdateIsStarted) {
    Check();
    EXPECT_EQ(view_.Shown, Panel::Found);
    client_.DownloadPressed();
    EXPECT_EQ(started_, QStringList(Downloaded(u"patch.exe"_s)));
    EXPECT_EQ(ends_, 1);
    EXPECT_TRUE(http_.Requests.contains(u"GET http://server/base/updates_info.inf.minisig"_s));
    EXPECT_EQ(http_.Requests.last(), u"GET http://server/base/patch.exe.minisig"_s);
    EXPECT_EQ(Messages(), QStringList());
}

TEST_F(SignedReleases, ANewReleaseHasItsSignatureAtItsOwnAddress) {
    OfferRelease("release bytes");
    Sign();
    At(u"http://other/x/setup.exe.minisig"_s) = {.Body = Signed("release bytes", "9.1.2", "setup.exe")};
    Check();
    client_.DownloadPressed();
    EXPECT_EQ(started_, QStringList(Downloaded(u"setup.exe"_s)));
}

TEST_F(SignedReleases, WhoCancelsWhileTheSignatureComesStartsNothing) {
    Check();
    int asked = 0;
    http_.OnChunk = [&] {
        if (http_.URL.endsWith(u"patch.exe.minisig"_s) && ++asked == 2)
            client_.CancelPressed(); // all of it is there by then
    };
    client_.DownloadPressed();
    EXPECT_EQ(asked, 2);
    EXPECT_TRUE(view_.IsClosed);
    EXPECT_EQ(started_, QStringList());
    EXPECT_EQ(ends_, 0);
    EXPECT_EQ(Messages(), QStringList());
}

TEST_F(SignedReleases, WhoCancelsWhileTheFilesSignatureComesIsShownNothing) {
    int asked = 0;
    http_.OnChunk = [&] {
        if (http_.URL.endsWith(u"updates_info.inf.minisig"_s) && ++asked == 2)
            client_.CancelPressed();
    };
    Check();
    EXPECT_EQ(asked, 2);
    EXPECT_TRUE(view_.IsClosed);
    EXPECT_EQ(view_.Shows, 1) << "as it was opened";
    EXPECT_FALSE(view_.DownloadEnabled);
    EXPECT_FALSE(http_.Requests.last().endsWith(u"patch.exe"_s));
}

TEST_F(SignedReleases, WhatTakesTheFilesPlaceWhileAQuestionStandsOpenIsNotStarted) {
    Check();
    int questions = 0;
    navigator_.OnCall = [&](const QString& call) {
        if (call == u"MayEndProgram"_s && ++questions == 2)
            world_.WriteFile(u"program\\TempUpdater\\patch.exe"_s, "other bytes");
    };
    client_.DownloadPressed();
    EXPECT_EQ(questions, 2);
    EXPECT_EQ(Messages(), QStringList(u"Not signed"_s));
    EXPECT_EQ(started_, QStringList());
}

TEST_F(SignedReleases, TheKeyOfTheCheckHoldsForTheDownload) {
    Check();
    Configure();
    At(u"patch.exe.minisig"_s) = {.Body = "none"};
    client_.DownloadPressed();
    EXPECT_EQ(Messages(), QStringList(u"Not signed"_s));
    EXPECT_EQ(started_, QStringList());
}

TEST_F(SignedReleases, WithoutAKeyNoSignatureIsAskedFor) {
    Configure();
    Check();
    client_.DownloadPressed();
    EXPECT_EQ(http_.Requests.filter(u"minisig"_s), QStringList());
    EXPECT_EQ(ends_, 1);
}

TEST_F(SignedReleases, AnInfoFileWithoutItsSignatureIsRefusedInBothModes) {
    http_.Answers.remove(u"http://server/base/updates_info.inf.minisig"_s);
    ExpectInfoIsRefused();
    ExpectInfoIsRefused(true);
    At(u"updates_info.inf.minisig"_s).Body.clear();
    ExpectInfoIsRefused();
}

TEST_F(SignedReleases, AnInfoFileOfAnotherKeyOrWithAnotherByteIsRefused) {
    const QByteArray info = At(u"updates_info.inf"_s).Body;
    At(u"updates_info.inf.minisig"_s).Body = Signed(info, "9.1.2", "updates_info.inf", SigningKey('o'));
    ExpectInfoIsRefused();
    At(u"updates_info.inf.minisig"_s).Body = Signed(info + ' ', "9.1.2", "updates_info.inf");
    ExpectInfoIsRefused();
}

TEST_F(SignedReleases, AnInfoFileWhoseCommentIsOfAnotherFileOrVersionIsRefused) {
    const QByteArray info = At(u"updates_info.inf"_s).Body;
    for (const auto& [version, file] : {std::pair{"9.1.2", "patch.exe"},
                                        {"9.1.3", "updates_info.inf"},
                                        {"09.1.2", "updates_info.inf"},
                                        {"", ""},
                                        {"9.1.2", "Updates_info.inf"}}) {
        At(u"updates_info.inf.minisig"_s).Body = Signed(info, version, file);
        ExpectInfoIsRefused();
    }
}

TEST_F(SignedReleases, ACutSignatureIsRefused) {
    const QByteArray whole = At(u"updates_info.inf.minisig"_s).Body;
    for (qsizetype size = 0; size < whole.size(); size += 7) {
        At(u"updates_info.inf.minisig"_s).Body = whole.first(size);
        ExpectInfoIsRefused();
    }
    At(u"updates_info.inf.minisig"_s).Body = whole;
    At(u"updates_info.inf.minisig"_s).EndsAt = whole.size() - 1;
    ExpectInfoIsRefused();
}

TEST_F(SignedReleases, OfAHugeSignatureOnlyTheFirstIsRead) {
    At(u"updates_info.inf.minisig"_s).Body += QByteArray(50 << 20, '\n');
    int chunks = 0;
    http_.OnChunk = [&] { ++chunks; };
    ExpectInfoIsRefused();
    EXPECT_LE(chunks, 30);
}

TEST_F(SignedReleases, AVersionThatIsNoneIsRefused) {
    Tell("[LatestVersion]\r\nVersion=newest\r\nURL=http://other/x/setup.exe\r\n");
    At(u"updates_info.inf.minisig"_s).Body = Signed(At(u"updates_info.inf"_s).Body, "newest", "updates_info.inf");
    ExpectInfoIsRefused();
}

TEST_F(SignedReleases, AnOlderReleaseIsNotOffered) {
    for (const QByteArray& version : {"0.0.1"_ba, "3.5.3"_ba, "3.05.4"_ba, "2.99.99"_ba}) {
        Tell("[LatestVersion]\r\nVersion=" + version + "\r\nURL=http://other/x/setup.exe\r\n");
        At(u"updates_info.inf.minisig"_s).Body = Signed(At(u"updates_info.inf"_s).Body, version, "updates_info.inf");
        Check();
        EXPECT_EQ(view_.Shown, Panel::NoUpdate) << version.constData();
        EXPECT_FALSE(view_.DownloadEnabled);
    }
}

TEST_F(SignedReleases, AnUpdateWithoutItsSignatureIsDeletedAndNotStarted) {
    http_.Answers.remove(u"http://server/base/patch.exe.minisig"_s);
    ExpectUpdateIsRefused();
}

TEST_F(SignedReleases, AnUpdateOfAnotherKeyOrWithAnotherByteIsDeletedAndNotStarted) {
    At(u"patch.exe.minisig"_s).Body = Signed("patch bytes", "9.1.2", "patch.exe", SigningKey('o'));
    ExpectUpdateIsRefused();
    At(u"patch.exe.minisig"_s).Body = Signed("patch bytez", "9.1.2", "patch.exe");
    ExpectUpdateIsRefused();
}

TEST_F(SignedReleases, ASignatureOfAnotherFileOrAnOlderVersionIsRefused) {
    for (const auto& [version, file] : {std::pair{"9.1.1", "patch.exe"},
                                        {"3.5.4", "patch.exe"},
                                        {"9.1.2", "setup.exe"},
                                        {"9.1.2", "Patch.exe"},
                                        {"9.1.2", ""},
                                        {"", "patch.exe"}}) {
        At(u"patch.exe.minisig"_s).Body = Signed("patch bytes", version, file);
        ExpectUpdateIsRefused();
    }
}

TEST_F(SignedReleases, SwappedSignaturesAreRefused) {
    std::swap(At(u"patch.exe.minisig"_s), At(u"updates_info.inf.minisig"_s));
    ExpectInfoIsRefused();
}

TEST_F(SignedReleases, AKeyThatIsNoneRefusesEverything) {
    Configure("PublicKey=RWQ-key\r\n");
    ExpectInfoIsRefused();
}

TEST_F(SignedReleases, CancelWhileASignatureComesShowsNoError) {
    At(u"updates_info.inf.minisig"_s).NeverComes = true;
    host_.OnWait = [&] { client_.CancelPressed(); };
    Check();
    EXPECT_EQ(Messages(), QStringList());
    EXPECT_TRUE(view_.IsClosed);
}

TEST_F(SignedReleases, CancelWhileTheUpdatesSignatureComesStartsNothing) {
    At(u"patch.exe.minisig"_s).NeverComes = true;
    Check();
    host_.OnWait = [&] { client_.CancelPressed(); };
    client_.DownloadPressed();
    EXPECT_EQ(Messages(), QStringList());
    EXPECT_TRUE(view_.IsClosed);
    EXPECT_EQ(started_, QStringList());
    EXPECT_EQ(ends_, 0);
}
