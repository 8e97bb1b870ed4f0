// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "update/NetworkClient.h"

#include "core/Host.h"

#include <QNetworkProxyFactory>
#include <QNetworkRequest>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace {

constexpr int mostRedirects = 5;
/// What may have come and not been taken; the system's own buffers come on top.
constexpr qint64 readAhead = 1 << 20;
constexpr int firstError = 400;

class SystemProxies : public QNetworkProxyFactory {
public:
    QList<QNetworkProxy> queryProxy(const QNetworkProxyQuery& query) override { return systemProxyForQuery(query); }
};

QNetworkRequest RequestFor(const QUrl& address) {
    QNetworkRequest request(address);
    request.setRawHeader("Accept-Encoding", "identity"); // the length is that of the bytes that are counted
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::NoLessSafeRedirectPolicy);
    request.setAttribute(QNetworkRequest::CacheLoadControlAttribute, QNetworkRequest::AlwaysNetwork);
    request.setAttribute(QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::Manual);
    request.setAttribute(QNetworkRequest::Http2AllowedAttribute, false); // slower here, with its small windows
    request.setMaximumRedirectsAllowed(mostRedirects);
    return request;
}

bool IsWeb(const QUrl& address) {
    return address.isValid() && (address.scheme() == u"http"_s || address.scheme() == u"https"_s);
}

int StatusOf(const QNetworkReply& reply) {
    return reply.attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
}

bool IsRedirect(const QNetworkReply& reply) {
    return reply.attribute(QNetworkRequest::RedirectionTargetAttribute).isValid();
}

} // namespace

NetworkClient::NetworkClient() {
    manager_.setProxyFactory(new SystemProxies); // the manager's own then
}

NetworkClient::~NetworkClient() {
    Drop();
}

void NetworkClient::Execute(const QString& /*verb*/) {
    Cancel();
    headCame_ = false;
    ended_ = false;
    received_ = 0;
    const QUrl address(URL, QUrl::StrictMode);
    if (!IsWeb(address))
        return Fail();
    reply_ = manager_.get(RequestFor(address));
    reply_->setReadBufferSize(readAhead);
    QObject::connect(reply_, &QNetworkReply::metaDataChanged, reply_, [this] { HeadCame(); });
    QObject::connect(reply_, &QNetworkReply::finished, reply_, [this] { Ended(); });
}

bool NetworkClient::StillExecuting() const {
    return reply_ != nullptr && !headCame_;
}

void NetworkClient::HeadCame() {
    if (IsRedirect(*reply_))
        return;
    headCame_ = true;
    if (StatusOf(*reply_) >= firstError)
        Fail();
}

void NetworkClient::Ended() {
    ended_ = true;
    if (reply_->error() != QNetworkReply::NoError)
        Fail();
    headCame_ = true;
}

void NetworkClient::Fail() {
    Drop();
    if (StateChanged)
        StateChanged(icError);
}

void NetworkClient::Cancel() {
    Drop();
}

void NetworkClient::Drop() {
    came_.clear();
    taken_ = 0;
    if (reply_ == nullptr)
        return;
    QNetworkReply* const reply = reply_;
    reply_ = nullptr;
    reply->disconnect();
    reply->abort();
    reply->deleteLater();
}

QString NetworkClient::GetHeader(const QString& name) const {
    return reply_ == nullptr ? QString() : QString::fromLatin1(reply_->rawHeader(name.toLatin1())).trimmed();
}

QByteArray NetworkClient::GetChunk(qsizetype size) {
    const auto there = [&] { return came_.size() - taken_; };
    while (reply_ != nullptr && there() < size) {
        TakeWhatCame(size);
        if (there() >= size || reply_ == nullptr)
            break;
        if (ended_ && reply_->bytesAvailable() == 0)
            break;
        const bool stays = Host::Current().WaitUntil(
            [this] { return reply_ == nullptr || ended_ || reply_->bytesAvailable() > 0; });
        if (!stays)
            Fail(); // the program ends
    }
    const QByteArray chunk = came_.mid(taken_, size);
    taken_ += chunk.size();
    return chunk;
}

void NetworkClient::TakeWhatCame(qsizetype /*wanted*/) {
    came_.remove(0, taken_);
    taken_ = 0;
    const QByteArray more = reply_->read(readAhead);
    received_ += more.size();
    came_ += more;
    if (ended_ && reply_->bytesAvailable() == 0 && IsShort())
        Fail();
}

bool NetworkClient::IsShort() const {
    bool told = false;
    const qint64 length = GetHeader(u"Content-length"_s).toLongLong(&told);
    return told && received_ < length;
}
