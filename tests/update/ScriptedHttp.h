// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// An HTTP client that answers from a script: what stands at each address, and how it comes.
#pragma once

#include "core/Host.h"
#include "update/HttpClient.h"

#include <QHash>
#include <QStringList>

#include <algorithm>
#include <optional>

class ScriptedHttp : public HttpClient {
public:
    struct Answer {
        QByteArray Body;
        std::optional<QString> Length{}; ///< the header, where it is not the body's length
        bool IsRefused = false;          ///< no server, or an answer of 4xx or 5xx
        bool NeverComes = false;         ///< no head
        qsizetype StallsAt = -1;         ///< so much of the body comes, and no more
        qsizetype EndsAt = -1;           ///< so much comes, and the server hangs up
    };

    QHash<QString, Answer> Answers; ///< an address that is not here is refused
    QStringList Requests;           ///< every address, in order
    int Cancels = 0;                ///< of transfers that were under way
    std::function<void()> OnChunk;  ///< runs before each chunk is given

    void Execute(const QString& verb) override {
        Requests << verb + u' ' + URL;
        active_ = true;
        taken_ = 0;
        answer_ = Answers.value(URL, {.Body = {}, .IsRefused = true});
        if (answer_.IsRefused)
            Fail();
    }

    [[nodiscard]] bool StillExecuting() const override { return active_ && answer_.NeverComes; }

    void Cancel() override {
        Cancels += active_ ? 1 : 0;
        active_ = false;
    }

    [[nodiscard]] QString GetHeader(const QString& name) const override {
        if (answer_.NeverComes || name.compare(QStringLiteral("content-length"), Qt::CaseInsensitive) != 0)
            return {};
        return answer_.Length.value_or(QString::number(answer_.Body.size()));
    }

    QByteArray GetChunk(qsizetype size) override {
        if (OnChunk)
            OnChunk();
        const qsizetype end = answer_.EndsAt >= 0 ? answer_.EndsAt : answer_.Body.size();
        const auto stalls = [&] { return answer_.StallsAt >= 0 && taken_ + size > answer_.StallsAt; };
        Host::Current().WaitUntil([&] { return !active_ || !stalls(); });
        if (!active_)
            return {};
        QByteArray chunk = answer_.Body.mid(taken_, std::min(size, end - taken_));
        taken_ += chunk.size();
        if (answer_.EndsAt >= 0 && taken_ == end)
            Fail();
        return chunk;
    }

    [[nodiscard]] bool IsActive() const { return active_; }

private:
    void Fail() {
        active_ = false;
        if (StateChanged)
            StateChanged(icError);
    }

    Answer answer_;
    qsizetype taken_ = 0;
    bool active_ = false;
};
