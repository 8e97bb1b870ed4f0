// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// What the update client needs of HTTP: one request at a time, its answer's head, and its body in pieces.
#pragma once

#include <QByteArray>
#include <QString>

#include <functional>

class HttpClient {
public:
    /// The state that tells of a transfer that failed.
    static constexpr int icError = 11;

    HttpClient() = default;
    HttpClient(const HttpClient&) = delete;
    HttpClient& operator=(const HttpClient&) = delete;
    virtual ~HttpClient() = default;

    /// Told of each change of state: 11 once for a transfer that fails, never for one that is cancelled.
    std::function<void(int state)> StateChanged;

    /// The address of the next request.
    QString URL;

    /// Sends the request and comes back at once. The one before it is cancelled. The verb is "GET".
    virtual void Execute(const QString& verb) = 0;

    /// True until the answer's head is there, the transfer has failed or it was cancelled; the body may still be on its
    /// way.
    [[nodiscard]] virtual bool StillExecuting() const = 0;

    /// Ends the transfer; whoever waits for it goes on, and what had come and was not taken is gone.
    virtual void Cancel() = 0;

    /// A header of the answer, without regard to case; empty for one that is missing.
    [[nodiscard]] virtual QString GetHeader(const QString& name) const = 0;

    /// The next bytes of the body: waits in the event loop until there are `size`, and gives fewer only at the end.
    virtual QByteArray GetChunk(qsizetype size) = 0;
};
