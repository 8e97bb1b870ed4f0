// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// HTTP and HTTPS by the toolkit's network library: the system's proxy and, on Windows, the system's own TLS.
#pragma once

#include "update/HttpClient.h"

#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QPointer>

/// What a server sends faster than it is taken waits at the server. Redirects are followed at most five times, and never
/// from HTTPS down to HTTP. An answer of 4xx or 5xx has failed, and so has one that ends before its Content-length.
class NetworkClient : public HttpClient {
public:
    NetworkClient();
    ~NetworkClient() override;

    void Execute(const QString& verb) override;
    [[nodiscard]] bool StillExecuting() const override;
    void Cancel() override;
    [[nodiscard]] QString GetHeader(const QString& name) const override;
    QByteArray GetChunk(qsizetype size) override;

private:
    void HeadCame();
    void Ended();
    void Fail();
    void Drop();
    void TakeWhatCame(qsizetype wanted);
    [[nodiscard]] bool IsShort() const;

    QNetworkAccessManager manager_;
    QPointer<QNetworkReply> reply_; ///< none when the transfer is over and all of it was taken, failed or cancelled
    bool headCame_ = false;
    bool ended_ = false;
    QByteArray came_; ///< what is there to be taken, from taken_ on
    qsizetype taken_ = 0;
    qint64 received_ = 0; ///< bytes of the body
};
