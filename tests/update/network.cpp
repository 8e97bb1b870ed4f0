// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/update/NetworkTest.h"
#include "update/WebClient.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

QByteArray Bytes(qsizetype size) {
    QByteArray bytes(size, 'x');
    for (qsizetype at = 0; at < size; ++at)
        bytes[at] = static_cast<char>(at % 251);
    return bytes;
}

/// A head with so many fields more, of 400 bytes each, and not its end.
QByteArray HeadOf(int fields) {
    QByteArray head = "HTTP/1.1 200 OK\r\nContent-Length: 1\r\n";
    for (int field = 0; field < fields; ++field)
        head += "X-" + QByteArray::number(field) + ": " + QByteArray(400, 'h') + "\r\n";
    return head;
}

} // namespace

TEST_F(NetworkTest, AnAnswerComesInChunksOf1024Bytes) {
    const QByteArray body = Bytes(2500);
    answer_ = HttpServer::Whole(body);
    Get(server_.Address());
    EXPECT_EQ(client_->GetHeader(u"Content-length"_s), u"2500"_s);
    EXPECT_EQ(client_->GetHeader(u"X-Missing"_s), QString());
    EXPECT_EQ(TakeAll(), body);
    EXPECT_EQ(sizes_, (QList<qsizetype>{1024, 1024, 452, 0}));
    EXPECT_FALSE(Failed());
    EXPECT_EQ(server_.Requests, QStringList(u"GET /file HTTP/1.1"_s));
}

TEST_F(NetworkTest, TheRequestWantsTheBytesAsTheyAre) {
    answer_ = HttpServer::Whole("x");
    Get(server_.Address());
    EXPECT_EQ(server_.LastHead.toLower().count("accept-encoding:"), 1);
    EXPECT_TRUE(server_.LastHead.toLower().contains("accept-encoding: identity\r\n"));
}

TEST_F(NetworkTest, BytesThatAreCompressedAllTheSameStayAsTheyAre) {
    const QByteArray body = QByteArray::fromHex("1f8b08000000000000034b04004") + QByteArray(40, 'z');
    answer_ = "HTTP/1.1 200 OK\r\nContent-Encoding: gzip\r\nContent-Length: " + QByteArray::number(body.size()) +
              "\r\n\r\n" + body;
    Get(server_.Address());
    EXPECT_EQ(TakeAll(), body);
}

TEST_F(NetworkTest, TheHeadEndsTheExecutionBeforeTheBodyComes) {
    answer_ = "HTTP/1.1 200 OK\r\nContent-Length: 5000\r\n\r\n";
    Get(server_.Address());
    EXPECT_FALSE(client_->StillExecuting());
    EXPECT_EQ(client_->GetHeader(u"content-LENGTH"_s), u"5000"_s);
    client_->Cancel();
    EXPECT_EQ(TakeAll(), QByteArray());
    EXPECT_FALSE(Failed()) << "who cancels knows it";
}

TEST_F(NetworkTest, ACancelledRequestHangsUp) {
    QPointer<QTcpSocket> line;
    server_.Serve = [&](QTcpSocket& client, const QByteArray&) {
        line = &client;
        client.write("HTTP/1.1 200 OK\r\nContent-Length: 50000000\r\n\r\n");
    };
    Get(server_.Address());
    client_->Cancel();
    QElapsedTimer time;
    time.start();
    while (line != nullptr && time.elapsed() < 5000)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 50);
    EXPECT_TRUE(line == nullptr);
}

TEST_F(NetworkTest, APacketOfOneByteEndsNothing) {
    const QByteArray body = Bytes(3 * 1024 + 1);
    server_.Serve = [&](QTcpSocket& client, const QByteArray&) {
        client.write("HTTP/1.1 200 OK\r\nContent-Length: " + QByteArray::number(body.size()) + "\r\n\r\n");
        HttpServer::SendSlowly(client, body, 1 + body.size() / 100);
    };
    Get(server_.Address());
    EXPECT_EQ(client_->GetChunk(1024), body.first(1024));
    EXPECT_EQ(client_->GetChunk(1024).size(), 1024);
    EXPECT_EQ(client_->GetChunk(1024).size(), 1024);
    EXPECT_EQ(client_->GetChunk(1024).size(), 1);
    EXPECT_EQ(client_->GetChunk(1024).size(), 0);
    EXPECT_FALSE(Failed());
}

TEST_F(NetworkTest, AHeadThatComesByteByByteIsOne) {
    const QByteArray answer = HttpServer::Whole("slow");
    server_.Serve = [&](QTcpSocket& client, const QByteArray&) { HttpServer::SendSlowly(client, answer, 1); };
    Get(server_.Address());
    EXPECT_EQ(TakeAll(), "slow");
}

TEST_F(NetworkTest, AChunkedAnswerHasNoLengthAndArrivesWhole) {
    answer_ = "HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n5\r\nHello\r\n6;x=y\r\n World\r\n0\r\n\r\n";
    Get(server_.Address());
    EXPECT_EQ(client_->GetHeader(u"Content-length"_s), QString());
    EXPECT_EQ(TakeAll(), "Hello World");
    EXPECT_FALSE(Failed());
}

TEST_F(NetworkTest, WithoutALengthTheEndIsTheEndOfTheConnection) {
    server_.Serve = [](QTcpSocket& client, const QByteArray&) {
        HttpServer::SendAndClose(client, "HTTP/1.1 200 OK\r\n\r\nall there is");
    };
    Get(server_.Address());
    EXPECT_EQ(TakeAll(), "all there is");
    EXPECT_FALSE(Failed());
}

TEST_F(NetworkTest, ClosedAtEveryByteOfHeadAndBodyIsAFailure) {
    const QByteArray whole = HttpServer::Whole("0123456789");
    for (qsizetype end = 0; end < whole.size(); ++end) {
        server_.Serve = [&](QTcpSocket& client, const QByteArray&) {
            HttpServer::SendAndClose(client, whole.first(end));
        };
        Get(server_.Address());
        const QByteArray came = TakeAll();
        EXPECT_TRUE(Failed()) << end << ' ' << came.constData();
    }
}

// Where no length was told, the library does not notice each cut; for some it would wait forever.
TEST_F(NetworkTest, AChunkedAnswerThatIsCutEnds) {
    const QByteArray whole =
        "HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n5\r\nHello\r\n6\r\n World\r\n0\r\n\r\n";
    client_ = MakeWebClient([this](const auto& condition) { return host_.WaitUntil(condition); }, 200ms);
    for (qsizetype end = whole.indexOf("\r\n\r\n") + 4; end < whole.size(); ++end) {
        server_.Serve = [&](QTcpSocket& client, const QByteArray&) {
            HttpServer::SendAndClose(client, whole.first(end));
        };
        Get(server_.Address());
        const QByteArray came = TakeAll();
        EXPECT_TRUE(QByteArray("Hello World").startsWith(came)) << end << ' ' << came.constData();
    }
}

TEST_F(NetworkTest, AServerThatFallsSilentHasFailed) {
    client_ = MakeWebClient([this](const auto& condition) { return host_.WaitUntil(condition); }, 200ms);
    client_->StateChanged = [this](int state) { states_ << state; };
    server_.Serve = [](QTcpSocket& client, const QByteArray&) { client.write(HttpServer::Whole("all").chopped(1)); };
    Get(server_.Address());
    EXPECT_EQ(TakeAll(), QByteArray());
    EXPECT_TRUE(Failed());
}

TEST_F(NetworkTest, AnAnswerThatEndsBehindManyChunksHasFailed) {
    server_.Serve = [](QTcpSocket& client, const QByteArray&) {
        HttpServer::SendAndClose(client, "HTTP/1.1 200 OK\r\nContent-Length: 3000000\r\n\r\n" + Bytes(2999999));
    };
    Get(server_.Address());
    TakeAll();
    EXPECT_TRUE(Failed());
}

TEST_F(NetworkTest, AnswersOf4xxAnd5xxHaveFailed) {
    for (const char* const status : {"400 Bad Request", "401 Unauthorized", "403 Forbidden", "404 Not Found",
                                     "407 Proxy", "410 Gone", "500 Internal Server Error", "503 Busy", "599 What"}) {
        answer_ = HttpServer::Whole("an error page", status);
        Get(server_.Address());
        EXPECT_TRUE(Failed()) << status;
        EXPECT_EQ(TakeAll(), QByteArray()) << status;
    }
}

TEST_F(NetworkTest, ABlankInANameIsAskedFor) {
    answer_ = HttpServer::Whole("it");
    Get(server_.Address(u"/my patch.exe"_s));
    EXPECT_EQ(TakeAll(), "it");
    EXPECT_EQ(server_.Requests, QStringList(u"GET /my%20patch.exe HTTP/1.1"_s));
}

TEST_F(NetworkTest, OnlyTheWebIsAskedAtAll) {
    QTemporaryDir folder;
    QFile file(folder.filePath(u"secret"_s));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write("secret") == 6);
    file.close();
    for (const QString& url : {u""_s, u"updates_info.inf"_s, u"file://"_s + file.fileName(), file.fileName(),
                               u"data:,x"_s, u"ftp://127.0.0.1/x"_s, u"qrc:/x"_s, u"http://"_s, u"http:// bad host/"_s,
                               u"javascript:x"_s, u"http://127.0.0.1:1"_s + QChar(0) + u"/"_s}) {
        Get(url);
        EXPECT_TRUE(Failed()) << url.toStdString();
        EXPECT_EQ(TakeAll(), QByteArray()) << url.toStdString();
    }
}

TEST_F(NetworkTest, AnAddressOfFourKilobytesIsAsked) {
    answer_ = HttpServer::Whole("x");
    Get(server_.Address(u'/' + QString(4096, u'u')));
    EXPECT_EQ(TakeAll(), "x");
    EXPECT_GT(server_.Requests.value(0).size(), 4096);
}

TEST_F(NetworkTest, NobodyAtThePortIsAFailure) {
    const QString address = server_.Address();
    server_.close();
    Get(address);
    EXPECT_TRUE(Failed());
}

TEST_F(NetworkTest, AServerThatNeverAnswersCanBeLeftAtOnce) {
    server_.Serve = [](QTcpSocket&, const QByteArray&) {};
    QTimer::singleShot(50, [this] { client_->Cancel(); });
    QElapsedTimer time;
    time.start();
    Get(server_.Address());
    EXPECT_LT(time.elapsed(), 2000);
    EXPECT_FALSE(Failed());
}

TEST_F(NetworkTest, ABodyThatStallsCanBeLeftAtOnce) {
    answer_ = "HTTP/1.1 200 OK\r\nContent-Length: 5000\r\n\r\nabc";
    Get(server_.Address());
    QTimer::singleShot(50, [this] { client_->Cancel(); });
    QElapsedTimer time;
    time.start();
    EXPECT_EQ(client_->GetChunk(1024), QByteArray());
    EXPECT_LT(time.elapsed(), 2000);
    EXPECT_FALSE(Failed());
}

TEST_F(NetworkTest, ALargeHeadIsRead) {
    answer_ = HeadOf(50) + "\r\nx";
    Get(server_.Address());
    EXPECT_EQ(TakeAll(), "x");
}

// The library neither takes a head of more fields than a hundred nor gives it up.
TEST_F(NetworkTest, AHugeHeadCanBeLeftAtOnce) {
    answer_ = HeadOf(2000) + "\r\nx";
    QTimer::singleShot(50, [this] { client_->Cancel(); });
    QElapsedTimer time;
    time.start();
    Get(server_.Address());
    TakeAll();
    EXPECT_LT(time.elapsed(), 5000);
}

TEST_F(NetworkTest, GarbageIsAFailure) {
    for (const QByteArray& garbage : {"SSH-2.0-OpenSSH\r\n"_ba, QByteArray(5000, '\0'), "HTTP/9.9 abc\r\n\r\n"_ba,
                                      "<html>\r\n\r\n"_ba, "HTTP/1.1\r\n\r\n"_ba}) {
        server_.Serve = [&](QTcpSocket& client, const QByteArray&) { HttpServer::SendAndClose(client, garbage); };
        Get(server_.Address());
        const QByteArray came = TakeAll();
        EXPECT_TRUE(Failed()) << garbage.constData() << came.constData();
    }
}

TEST_F(NetworkTest, WhatIsSentFasterThanItIsTakenWaitsAtTheServer) {
    static constexpr qsizetype piece = 1 << 20;
    static constexpr qsizetype pieces = 64;
    qint64 sent = 0;
    server_.Serve = [&](QTcpSocket& client, const QByteArray&) {
        client.write("HTTP/1.1 200 OK\r\nContent-Length: " + QByteArray::number(piece * pieces) + "\r\n\r\n");
        const auto more = [&client, &sent] {
            while (client.bytesToWrite() < piece && sent < piece * pieces)
                sent += client.write(QByteArray(piece, 'x'));
        };
        QObject::connect(&client, &QTcpSocket::bytesWritten, &client, more);
        more();
    };
    Get(server_.Address());
    QElapsedTimer time;
    time.start();
    while (time.elapsed() < 500)
        QCoreApplication::processEvents(QEventLoop::AllEvents, 50);
    EXPECT_LT(sent, 24 * piece) << "the system's buffers, and the client's own";
    EXPECT_EQ(TakeAll().size(), piece * pieces);
    EXPECT_FALSE(Failed());
}

TEST_F(NetworkTest, TheNextRequestTakesThePlaceOfTheOneBefore) {
    answer_ = "HTTP/1.1 200 OK\r\nContent-Length: 9\r\n\r\nfirst";
    Get(server_.Address());
    answer_ = HttpServer::Whole("second");
    Get(server_.Address());
    EXPECT_EQ(TakeAll(), "second");
    EXPECT_FALSE(Failed());
}

TEST_F(NetworkTest, AnEventLoopThatIsLeftIsAFailure) {
    answer_ = "HTTP/1.1 200 OK\r\nContent-Length: 5000\r\n\r\nabc";
    Get(server_.Address());
    QTimer::singleShot(20, [] { QCoreApplication::exit(); });
    client_->GetChunk(1024);
    EXPECT_TRUE(Failed()) << "what is not whole must not be started";
    QTimer::singleShot(0, [] { QCoreApplication::exit(); });
    QCoreApplication::exec(); // the loops of later tests are not to be left
}
