// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

// From the server to a program that runs: all of it but the end of this process.

#include "core/mMain.h"
#include "platform/Files.h"
#include "platform/Paths.h"
#include "tests/support/Printing.h"
#include "tests/update/HttpServer.h"
#include "tests/update/UpdateTest.h"
#include "tests/update/WaitingHost.h"
#include "update/NetworkClient.h"

#include <QElapsedTimer>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace {

class WholeRoad : public testing::Test {
protected:
    WholeRoad() {
        world_.WriteFile(u"program\\updater.cfg"_s,
                         "[BrindockUpdater]\r\nUpdateServer=" + server_.Address(u"/base/"_s).toLatin1() + "\r\n");
        world_.UseLanguage("[LNG]\r\nServerError=No server\r\n");
        world_.Start();
        mUpdater::AutoUpdateCheck = true;
        view_.OnClose = [this] { client_.WindowClosed(); };
        client_.Download.End = [this] { ended_ = true; };
        server_.Serve = [this](QTcpSocket& client, const QByteArray& head) { Answer(client, head); };
    }

    void Answer(QTcpSocket& client, const QByteArray& head) {
        const QByteArray info = "[LatestVersion]\r\nVersion=9.9.9\r\n[" + mMain::VersionText().toLatin1() +
                                "]\r\nUpdateAvailable=1\r\nFilename=patch.run\r\n";
        client.write(head.contains("updates_info.inf") ? HttpServer::Whole(info) : patch_);
    }

    /// A small program that leaves a mark, with much behind its end.
    [[nodiscard]] QByteArray Program() const {
        return "#!/bin/sh\necho \"$0\" > '" + Mark().toUtf8() + "'\nexit 0\n" + QByteArray(100000, '#');
    }

    [[nodiscard]] QString Mark() const { return Paths::ToNative(world_.Root()) + u"/mark"_s; }

    bool MarkComes() const {
        QElapsedTimer time;
        time.start();
        while (time.elapsed() < 5000) {
            if (QFileInfo(Mark()).size() > 0)
                return true;
            QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
        }
        return false;
    }

    World world_;
    WaitingHost host_;
    ScriptedNavigator navigator_;
    HttpServer server_;
    QByteArray patch_;
    std::unique_ptr<HttpClient> http_ = NetworkClient::Make();
    RecordedView view_;
    UpdateClient client_{*http_, view_};
    bool ended_ = false;
};

} // namespace

TEST_F(WholeRoad, AReleaseIsFoundDownloadedMadeExecutableAndStarted) {
    patch_ = HttpServer::Whole(Program());
    client_.Load();
    ASSERT_TRUE(view_.DownloadEnabled);
    client_.DownloadPressed();
    EXPECT_TRUE(ended_);
    EXPECT_TRUE(MarkComes());
    EXPECT_EQ(server_.Requests,
              (QStringList{u"GET /base/updates_info.inf HTTP/1.1"_s, u"GET /base/updates_info.inf HTTP/1.1"_s,
                           u"GET /base/patch.run HTTP/1.1"_s, u"GET /base/patch.run HTTP/1.1"_s}));
}

TEST_F(WholeRoad, AChunkedReleaseGoesTheSameWay) {
    const QByteArray program = Program();
    patch_ = "HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n" + QByteArray::number(program.size(), 16) + "\r\n" +
             program + "\r\n0\r\n\r\n";
    client_.Load();
    ASSERT_TRUE(view_.DownloadEnabled);
    EXPECT_EQ(mUpdater::UpdateFileSize, 0);
    client_.DownloadPressed();
    EXPECT_TRUE(ended_);
    EXPECT_TRUE(MarkComes());
}

TEST_F(WholeRoad, ASlowReleaseGoesTheSameWay) {
    const QByteArray whole = HttpServer::Whole(Program());
    server_.Serve = [this, whole](QTcpSocket& client, const QByteArray& head) {
        if (head.contains("updates_info.inf"))
            Answer(client, head);
        else
            HttpServer::SendSlowly(client, whole, 1000);
    };
    client_.Load();
    client_.DownloadPressed();
    EXPECT_TRUE(ended_);
    EXPECT_TRUE(MarkComes());
}

TEST_F(WholeRoad, AReleaseWithoutALengthGoesTheSameWay) {
    const QByteArray program = Program();
    server_.Serve = [this, program](QTcpSocket& client, const QByteArray& head) {
        if (head.contains("updates_info.inf"))
            Answer(client, head);
        else
            HttpServer::SendAndClose(client, "HTTP/1.1 200 OK\r\n\r\n" + program);
    };
    client_.Load();
    EXPECT_EQ(mUpdater::UpdateFileSize, 0);
    client_.DownloadPressed();
    EXPECT_TRUE(ended_);
    EXPECT_TRUE(MarkComes());
}

TEST_F(WholeRoad, ACutReleaseIsNotStarted) {
    const QByteArray whole = HttpServer::Whole(Program());
    server_.Serve = [this, whole](QTcpSocket& client, const QByteArray& head) {
        if (head.contains("updates_info.inf"))
            Answer(client, head);
        else
            HttpServer::SendAndClose(client, whole.chopped(1));
    };
    client_.Load();
    client_.DownloadPressed();
    EXPECT_FALSE(ended_);
    EXPECT_EQ(host_.Messages.size(), 1U);
    EXPECT_FALSE(QFileInfo::exists(Mark()));
}

TEST_F(WholeRoad, AServerThatAnswersWithSomethingElseStartsNothing) {
    const QByteArray page = "#!/bin/sh\ntouch '" + Mark().toUtf8() + "'\n";
    for (const QByteArray& answer :
         {HttpServer::Whole(page, "404 Not Found"), HttpServer::Whole(page, "500 Internal Server Error"),
          HttpServer::Whole(page, "206 Partial Content"),
          HttpServer::Redirect(server_.Address(u"/base/patch.run"_s))}) {
        UpdateClient client{*http_, view_};
        client.Download.End = [this] { ended_ = true; };
        host_.Messages.clear();
        patch_ = answer;
        client.Load();
        client.DownloadPressed();
        EXPECT_EQ(host_.Messages.size(), 1U) << answer.constData();
        EXPECT_FALSE(ended_);
        EXPECT_FALSE(QFileInfo::exists(Mark()));
    }
}

TEST_F(WholeRoad, AnInfoFileWithoutALengthIsNoServerAndAnAutomaticCheckIsSilent) {
    server_.Serve = [](QTcpSocket& client, const QByteArray&) {
        HttpServer::SendAndClose(client, "HTTP/1.1 200 OK\r\n\r\n[LatestVersion]\r\nVersion=9.9.9\r\n");
    };
    client_.Load();
    EXPECT_TRUE(view_.IsClosed);
    EXPECT_EQ(host_.Messages.size(), 0U);
}
