// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

// HTTPS, with an authority of the tests' own.

#include "Places.h"
#include "tests/support/Printing.h"
#include "tests/update/Certificates.h"
#include "tests/update/HttpServer.h"
#include "tests/update/WaitingHost.h"
#include "update/NetworkClient.h"

#include <QSslCertificate>
#include <QSslConfiguration>
#include <QSslKey>
#include <QSslServer>
#include <QSslSocket>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// Wine's own Schannel knows no store of certificates that a program brings along.
constexpr bool TrustsNoAuthority = Places::SystemIsEmulated;

/// Answers each request of a client that has come to an understanding with it.
class SecureServer : public QSslServer {
public:
    SecureServer() {
        QSslConfiguration configuration = QSslConfiguration::defaultConfiguration();
        configuration.setLocalCertificate(QSslCertificate(Certificates::Server));
        configuration.setPrivateKey(QSslKey(Certificates::ServerKey, QSsl::Rsa));
        configuration.setPeerVerifyMode(QSslSocket::VerifyNone);
        setSslConfiguration(configuration);
        listen(QHostAddress::LocalHost);
        connect(this, &QTcpServer::pendingConnectionAvailable, this, [this] {
            QTcpSocket* const client = nextPendingConnection();
            connect(client, &QTcpSocket::readyRead, client, [this, client] {
                ++Requests;
                client->readAll();
                client->write(Answer);
            });
        });
    }

    QByteArray Answer = HttpServer::Whole("secret");
    int Requests = 0;

    [[nodiscard]] QString Address() const { return u"https://localhost:%1/file"_s.arg(serverPort()); }
};

class Https : public testing::Test {
protected:
    Https() {
        client_->StateChanged = [this](int state) { failed_ = failed_ || state == HttpClient::icError; };
    }

    ~Https() override { QSslConfiguration::setDefaultConfiguration(before_); }

    void TrustTheAuthority() {
        QSslConfiguration trusting = before_;
        trusting.addCaCertificate(QSslCertificate(Certificates::Authority));
        QSslConfiguration::setDefaultConfiguration(trusting);
    }

    QByteArray Get(const QString& url) {
        failed_ = false;
        client_->URL = url;
        client_->Execute(u"GET"_s);
        host_.WaitUntil([this] { return !client_->StillExecuting(); });
        return client_->GetChunk(1024);
    }

    QSslConfiguration before_ = QSslConfiguration::defaultConfiguration();
    WaitingHost host_;
    SecureServer server_;
    std::unique_ptr<HttpClient> client_ = NetworkClient::Make();
    bool failed_ = false;
};

} // namespace

TEST_F(Https, AServerThatIsTrustedAnswers) {
    if (TrustsNoAuthority)
        GTEST_SKIP() << "Wine";
    TrustTheAuthority();
    EXPECT_EQ(Get(server_.Address()), "secret");
    EXPECT_FALSE(failed_);
}

TEST_F(Https, AServerThatNobodyVouchesForIsAFailure) {
    EXPECT_EQ(Get(server_.Address()), "");
    EXPECT_TRUE(failed_);
    EXPECT_EQ(server_.Requests, 0);
}

TEST_F(Https, ACertificateOfAnotherNameIsAFailure) {
    if (TrustsNoAuthority)
        GTEST_SKIP() << "Wine";
    TrustTheAuthority();
    EXPECT_EQ(Get(u"https://127.0.0.2:%1/file"_s.arg(server_.serverPort())), "");
    EXPECT_TRUE(failed_);
}

TEST_F(Https, ARedirectNeverLeadsDown) {
    if (TrustsNoAuthority)
        GTEST_SKIP() << "Wine";
    TrustTheAuthority();
    HttpServer plain;
    plain.Serve = [](QTcpSocket& client, const QByteArray&) { client.write(HttpServer::Whole("plain")); };
    server_.Answer = HttpServer::Redirect(plain.Address());
    EXPECT_EQ(Get(server_.Address()), "");
    EXPECT_TRUE(failed_);
    EXPECT_EQ(plain.Requests, QStringList());
}

TEST_F(Https, ARedirectMayLeadUp) {
    if (TrustsNoAuthority)
        GTEST_SKIP() << "Wine";
    TrustTheAuthority();
    HttpServer plain;
    plain.Serve = [this](QTcpSocket& client, const QByteArray&) {
        client.write(HttpServer::Redirect(server_.Address()));
    };
    EXPECT_EQ(Get(plain.Address()), "secret");
    EXPECT_FALSE(failed_);
}
