// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "update/WebClient.h"

#include <QNetworkAccessManager>
#include <QNetworkProxyFactory>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QPointer>
#include <QUrl>

#include <algorithm>
#include <array>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

constexpr int mostRedirects = 5;
constexpr std::array<int, 5> redirects{301, 302, 303, 307, 308};
constexpr int whole = 200; ///< the only answer that is the file: no part was asked for
/// What may have come and not been taken; the system's own buffers come on top.
constexpr qint64 readAhead = 1 << 20;

class SystemProxies : public QNetworkProxyFactory {
public:
    QList<QNetworkProxy> queryProxy(const QNetworkProxyQuery& query) override { return systemProxyForQuery(query); }
};

QNetworkRequest RequestFor(const QUrl& address) {
    QNetworkRequest request(address);
    request.setRawHeader("Accept-Encoding", "identity"); // the length is that of the bytes that are counted
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::ManualRedirectPolicy);
    request.setAttribute(QNetworkRequest::CacheLoadControlAttribute, QNetworkRequest::AlwaysNetwork);
    request.setAttribute(QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::Manual);
    request.setAttribute(QNetworkRequest::Http2AllowedAttribute, false); // slower here, with its small windows
    return request;
}

bool IsWeb(const QUrl& address) {
    return address.isValid() && (address.scheme() == u"http"_s || address.scheme() == u"https"_s);
}

int StatusOf(const QNetworkReply& reply) {
    return reply.attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
}

/// Where an answer leads to; nothing when it is the answer.
std::optional<QUrl> RedirectOf(const QNetworkReply& reply) {
    // The library's own reading of the field knows no address that is relative to the one asked for.
    const QByteArray target = reply.rawHeader("Location").trimmed();
    if (std::ranges::find(redirects, StatusOf(reply)) == redirects.end() || target.isEmpty())
        return std::nullopt;
    return reply.url().resolved(QUrl::fromEncoded(target));
}

class WebClient : public HttpClient {
public:
    WebClient(HttpWait wait, std::chrono::milliseconds silence);
    ~WebClient() override;

    void Execute(const QString& verb) override;
    [[nodiscard]] bool StillExecuting() const override;
    void Cancel() override;
    [[nodiscard]] QString GetHeader(const QString& name) const override;
    QByteArray GetChunk(qsizetype size) override;

private:
    void Request(const QUrl& address);
    void HeadCame();
    void Ended();
    void Fail();
    void TakeWhatCame();
    [[nodiscard]] bool IsAllTaken() const;
    [[nodiscard]] bool IsShort() const;

    HttpWait wait_;
    QNetworkAccessManager manager_;
    QObject watch_;                 ///< what listens to the answer
    QPointer<QNetworkReply> reply_; ///< none before the first request, and behind one that failed or was cancelled
    int redirects_ = 0;
    bool headCame_ = false;
    bool ended_ = false;
    QByteArray came_; ///< what is there to be taken, from taken_ on
    qsizetype taken_ = 0;
    qint64 received_ = 0; ///< bytes of the body
};

WebClient::WebClient(HttpWait wait, std::chrono::milliseconds silence) : wait_(std::move(wait)) {
    manager_.setTransferTimeout(static_cast<int>(silence.count()));
    manager_.setProxyFactory(new SystemProxies); // the manager's own then
}

WebClient::~WebClient() {
    WebClient::Cancel();
}

void WebClient::Execute(const QString& /*verb*/) {
    redirects_ = 0;
    Request(QUrl(URL, QUrl::TolerantMode)); // a name may hold blanks
}

void WebClient::Request(const QUrl& address) {
    Cancel();
    headCame_ = false;
    ended_ = false;
    received_ = 0;
    if (!IsWeb(address))
        return Fail();
    reply_ = manager_.get(RequestFor(address));
    reply_->setReadBufferSize(readAhead);
    QObject::connect(reply_, &QNetworkReply::metaDataChanged, &watch_, [this] { HeadCame(); });
    QObject::connect(reply_, &QNetworkReply::finished, &watch_, [this] { Ended(); });
}

bool WebClient::StillExecuting() const {
    return reply_ != nullptr && !headCame_;
}

void WebClient::HeadCame() {
    const std::optional<QUrl> target = RedirectOf(*reply_);
    if (!target) {
        headCame_ = true;
        if (StatusOf(*reply_) != whole)
            Fail();
        return;
    }
    const bool leadsDown = reply_->url().scheme() == u"https"_s && target->scheme() != u"https"_s;
    if (leadsDown || ++redirects_ > mostRedirects)
        Fail();
    else
        Request(*target);
}

void WebClient::Ended() {
    ended_ = true;
    if (reply_->error() != QNetworkReply::NoError)
        Fail();
    headCame_ = true;
}

void WebClient::Fail() {
    Cancel();
    if (StateChanged)
        StateChanged(icError);
}

void WebClient::Cancel() {
    came_.clear();
    taken_ = 0;
    if (reply_ == nullptr)
        return;
    QNetworkReply* const reply = reply_;
    reply_ = nullptr;
    reply->disconnect(&watch_);
    // Not in a signal of its own; and a deletion would wait for the event loop that this one runs in.
    QMetaObject::invokeMethod(
        reply,
        [reply] {
            reply->abort();
            reply->deleteLater();
        },
        Qt::QueuedConnection);
}

QString WebClient::GetHeader(const QString& name) const {
    return reply_ == nullptr ? QString() : QString::fromLatin1(reply_->rawHeader(name.toLatin1())).trimmed();
}

QByteArray WebClient::GetChunk(qsizetype size) {
    while (reply_ != nullptr && came_.size() - taken_ < size && !IsAllTaken()) {
        if (reply_->bytesAvailable() > 0)
            TakeWhatCame();
        else if (!wait_([this] { return reply_ == nullptr || ended_ || reply_->bytesAvailable() > 0; }))
            Fail(); // the program ends
    }
    if (reply_ != nullptr && IsAllTaken() && IsShort())
        Fail();
    QByteArray chunk = came_.mid(taken_, size);
    taken_ += chunk.size();
    return chunk;
}

void WebClient::TakeWhatCame() {
    came_.remove(0, taken_);
    taken_ = 0;
    const QByteArray more = reply_->read(readAhead);
    received_ += more.size();
    came_ += more;
}

/// Nothing more comes behind what is there.
bool WebClient::IsAllTaken() const {
    return ended_ && reply_->bytesAvailable() == 0;
}

bool WebClient::IsShort() const {
    bool told = false;
    const qint64 length = GetHeader(u"Content-length"_s).toLongLong(&told);
    return told && received_ < length;
}

} // namespace

std::unique_ptr<HttpClient> MakeWebClient(HttpWait wait, std::chrono::milliseconds silence) {
    return std::make_unique<WebClient>(std::move(wait), silence);
}
