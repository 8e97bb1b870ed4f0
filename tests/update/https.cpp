// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

// HTTPS, with an authority of the tests' own.

#include "tests/support/Printing.h"
#include "tests/update/HttpServer.h"
#include "tests/update/SecureServer.h"
#include "tests/update/TrustedAuthority.h"
#include "tests/update/WaitingHost.h"
#include "update/NetworkClient.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class Https : public testing::Test {
protected:
    Https() {
        client_->StateChanged = [this](int state) { failed_ = failed_ || state == HttpClient::icError; };
    }

    QByteArray Get(const QString& url) {
        failed_ = false;
        client_->URL = url;
        client_->Execute(u"GET"_s);
        host_.WaitUntil([this] { return !client_->StillExecuting(); });
        return client_->GetChunk(1024);
    }

    TrustedAuthority authority_;
    WaitingHost host_;
    std::unique_ptr<HttpClient> client_ = NetworkClient::Make();
    bool failed_ = false;
};

} // namespace

TEST_F(Https, AServerThatIsTrustedAnswers) {
    SecureServer server(HttpServer::Whole("secret"), {});
    EXPECT_EQ(Get(server.Address()), "secret");
    EXPECT_FALSE(failed_);
}

TEST_F(Https, AServerThatNobodyVouchesForIsAFailure) {
    SecureServer server(HttpServer::Whole("secret"),
                        {.Certificate = QByteArray(Certificates::Stranger) + Certificates::StrangerKey});
    EXPECT_EQ(Get(server.Address()), "");
    EXPECT_TRUE(failed_);
    EXPECT_EQ(server.Words(1), QByteArrayList{"came"});
}

TEST_F(Https, ACertificateOfAnotherNameIsAFailure) {
    SecureServer server(HttpServer::Whole("secret"), {.Host = u"127.0.0.2"_s});
    EXPECT_EQ(Get(server.Address(u"127.0.0.2"_s)), "");
    EXPECT_TRUE(failed_);
    EXPECT_EQ(server.Words(1), QByteArrayList{"came"});
}

TEST_F(Https, ARedirectNeverLeadsDown) {
    HttpServer plain;
    plain.Serve = [](QTcpSocket& client, const QByteArray&) { client.write(HttpServer::Whole("plain")); };
    SecureServer server(HttpServer::Redirect(plain.Address()), {});
    EXPECT_EQ(Get(server.Address()), "");
    EXPECT_TRUE(failed_);
    EXPECT_EQ(plain.Requests, QStringList());
    EXPECT_EQ(server.Words(2), (QByteArrayList{"came", "request"}));
}

TEST_F(Https, ARedirectMayLeadUp) {
    SecureServer server(HttpServer::Whole("secret"), {});
    HttpServer plain;
    plain.Serve = [&server](QTcpSocket& client, const QByteArray&) {
        client.write(HttpServer::Redirect(server.Address()));
    };
    EXPECT_EQ(Get(plain.Address()), "secret");
    EXPECT_FALSE(failed_);
}
