// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "update/UpdateSession.h"

#include "core/Host.h"
#include "core/mTraduction.h"
#include "platform/Clock.h"

#include <QElapsedTimer>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {
constexpr qsizetype ChunkSize = 1024;

/// The system looks its time zone up at each question, which takes longer than a chunk does.
class SeldomClock {
public:
    double operator()() {
        constexpr qint64 milliseconds = 5;
        if (!asked_.isValid() || asked_.elapsed() >= milliseconds) {
            seconds_ = Clock::SecondsOfDay();
            asked_.start();
        }
        return seconds_;
    }

private:
    QElapsedTimer asked_;
    double seconds_ = 0;
};
} // namespace

UpdateSession::UpdateSession(HttpClient& http, UpdateView& view) : Http(http), View(view), SecondsOfDay(SeldomClock()) {
    Http.StateChanged = [this](int state) { ServerFailed = ServerFailed || state == HttpClient::icError; };
}

void UpdateSession::Get(const QString& url) {
    ServerFailed = false;
    Http.Cancel();
    Http.URL = url;
    Http.Execute(u"GET"_s);
    if (!Host::Current().WaitUntil([this] { return !Http.StillExecuting(); }))
        CloseWindow(); // the program ends
}

qint32 UpdateSession::RemoteFileSize(const QString& url) {
    Get(url);
    const QString length = Http.GetHeader(u"Content-length"_s);
    Http.Cancel(); // its body is not read
    const bool plain = std::ranges::all_of(length, [](QChar digit) { return digit >= u'0' && digit <= u'9'; });
    return ServerFailed || !plain ? 0 : length.toInt();
}

QByteArray UpdateSession::GetSmall(const QString& url, qsizetype most) {
    QByteArray bytes;
    Get(url);
    while (!ServerFailed && !Stopped() && bytes.size() < most) {
        Host::Current().Yield();
        const QByteArray chunk = Http.GetChunk(ChunkSize);
        if (chunk.isEmpty())
            break;
        bytes += chunk;
    }
    Http.Cancel();
    return ServerFailed ? QByteArray() : bytes;
}

void UpdateSession::CloseWindow() {
    if (!Closed)
        View.CloseWindow();
}

void UpdateSession::Fail() {
    Refuse(mTraduction::GetText(u"ServerError"_s));
}

void UpdateSession::Refuse(const QString& text) {
    Host::Current().Message(text, Host::Icon::Critical);
    CloseWindow();
}
