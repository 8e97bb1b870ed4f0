// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Answers that are not the file itself.

#include "tests/update/NetworkTest.h"

#include <QFile>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

TEST_F(NetworkTest, RedirectsAreFollowedAtMostFiveTimes) {
    for (const int redirects : {1, 5, 6}) {
        server_.Requests.clear();
        server_.Serve = [&](QTcpSocket& client, const QByteArray&) {
            const bool done = server_.Requests.size() > redirects;
            client.write(done ? HttpServer::Whole("arrived") : HttpServer::Redirect(server_.Address(u"/next"_s)));
        };
        Get(server_.Address());
        EXPECT_EQ(client_->GetHeader(u"Content-length"_s), redirects <= 5 ? u"7"_s : QString());
        EXPECT_EQ(TakeAll(), redirects <= 5 ? "arrived" : "");
        EXPECT_EQ(Failed(), redirects > 5);
        EXPECT_LE(server_.Requests.size(), 6);
    }
}

TEST_F(NetworkTest, ARedirectOfAnyKindMayBeRelative) {
    for (const QByteArray& status : {"301 Moved Permanently"_ba, "302 Found"_ba, "303 See Other"_ba,
                                     "307 Temporary Redirect"_ba, "308 Permanent Redirect"_ba}) {
        server_.Requests.clear();
        server_.Serve = [&](QTcpSocket& client, const QByteArray&) {
            const bool done = server_.Requests.size() > 1;
            client.write(done ? HttpServer::Whole("arrived")
                              : "HTTP/1.1 " + status + "\r\nLocation: other?x=1\r\nContent-Length: 0\r\n\r\n");
        };
        Get(server_.Address(u"/base/file"_s));
        EXPECT_EQ(TakeAll(), "arrived") << status.constData();
        EXPECT_EQ(server_.Requests.last(), u"GET /base/other?x=1 HTTP/1.1"_s);
    }
}

TEST_F(NetworkTest, WhatIsNotTheWholeFileHasFailed) {
    for (const QByteArray& status :
         {"201 Created"_ba, "202 Accepted"_ba, "204 No Content"_ba, "205 Reset Content"_ba, "206 Partial Content"_ba,
          "300 Multiple Choices"_ba, "302 Found"_ba, "304 Not Modified"_ba, "305 Use Proxy"_ba, "399 What"_ba}) {
        answer_ = "HTTP/1.1 " + status + "\r\nContent-Length: 0\r\n\r\n";
        Get(server_.Address());
        EXPECT_TRUE(Failed()) << status.constData();
        answer_ = HttpServer::Whole("part", status);
        Get(server_.Address());
        EXPECT_EQ(TakeAll(), QByteArray()) << status.constData();
        EXPECT_TRUE(Failed()) << status.constData();
    }
}

TEST_F(NetworkTest, ARedirectInACircleEnds) {
    server_.Serve = [&](QTcpSocket& client, const QByteArray&) {
        client.write(HttpServer::Redirect(server_.Address()));
    };
    Get(server_.Address());
    EXPECT_TRUE(Failed());
    EXPECT_LE(server_.Requests.size(), 6);
}

TEST_F(NetworkTest, ARedirectToAnotherKindOfAddressIsNotFollowed) {
    QTemporaryDir folder;
    QFile file(folder.filePath(u"secret"_s));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write("secret") == 6);
    file.close();
    for (const QString& to : {u"file://"_s + file.fileName(), u"data:,secret"_s, u"ftp://127.0.0.1/x"_s, u"qrc:/x"_s}) {
        answer_ = HttpServer::Redirect(to);
        Get(server_.Address());
        const QByteArray came = TakeAll();
        EXPECT_FALSE(came.contains("secret")) << to.toStdString();
        EXPECT_TRUE(Failed()) << to.toStdString();
    }
}
