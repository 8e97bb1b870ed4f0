// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The client against a real server, whatever that does.
#pragma once

#include "tests/support/Printing.h"
#include "tests/update/HttpServer.h"
#include "tests/update/WaitingHost.h"
#include "update/NetworkClient.h"

#include <gtest/gtest.h>

class NetworkTest : public testing::Test {
protected:
    NetworkTest() {
        client_->StateChanged = [this](int state) { states_ << state; };
        server_.Serve = [this](QTcpSocket& client, const QByteArray&) { client.write(answer_); };
    }

    /// As a request of the program: up to the head.
    void Get(const QString& url) {
        states_.clear();
        client_->URL = url;
        client_->Execute(QStringLiteral("GET"));
        host_.WaitUntil([this] { return !client_->StillExecuting(); });
    }

    QByteArray TakeAll() {
        QByteArray all;
        for (;;) {
            const QByteArray chunk = client_->GetChunk(1024);
            all += chunk;
            sizes_ << chunk.size();
            if (chunk.isEmpty())
                return all;
        }
    }

    [[nodiscard]] bool Failed() const {
        EXPECT_LE(states_.size(), 1);
        return states_ == QList<int>{HttpClient::icError};
    }

    WaitingHost host_;
    HttpServer server_;
    std::unique_ptr<HttpClient> client_ = NetworkClient::Make();
    QList<int> states_;
    QList<qsizetype> sizes_;
    QByteArray answer_;
};
