// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Decodes pictures and sounds in a child process of our own executable: a file that kills or hangs the decoder costs
/// nothing but itself. One child serves all who ask, one after the other, and an idle one is kept ready.
#pragma once

#include "media/MediaJob.h"

#include <QByteArray>
#include <QObject>
#include <QString>
#include <QTimer>

#include <deque>
#include <functional>
#include <memory>

class QProcess;

/// What takes longer is given up, milliseconds.
struct MediaLimits {
    int Picture = 2000;
    int Sound = 10000;
    int Start = 10000; ///< of the child, until it is ready
};

class MediaClient;

class MediaProcess : public QObject {
    Q_OBJECT
public:
    /// Whether the target was written.
    using Done = std::function<void(bool)>;

    /// What the executable is started with to be the child.
    static constexpr auto Switch = "--decode-media";

    explicit MediaProcess(MediaLimits limits = {});
    ~MediaProcess() override;

    /// The one that all windows share. It ends with the last who holds it.
    static std::shared_ptr<MediaProcess> Shared();

    /// Starts a child ahead, a little later, when there is none.
    void Prepare();
    /// Decodes when those who asked before have been served; an earlier request of the same client that is not answered
    /// yet is abandoned. `done` is called once, and must not destroy the process.
    void Ask(const MediaClient* client, const MediaJob& job, Done done);
    /// Ends this client's request, under way or waiting; its `done` is not called.
    void Abandon(const MediaClient* client);

    /// Whether a child waits for a file.
    [[nodiscard]] bool IsReady() const { return stage_ == Stage::Ready; }

private:
    enum class Stage { None, Starting, Ready, Busy };

    struct Request {
        const MediaClient* Client;
        QByteArray Line; ///< for the child
        int Limit;       ///< milliseconds
        MediaProcess::Done Done;
    };

    void Start();
    void Proceed();
    void ReadAnswers();
    void Drop();
    void Finish(bool decoded);

    MediaLimits limits_;
    QProcess* child_ = nullptr; ///< owned
    Stage stage_ = Stage::None;
    std::deque<Request> requests_; ///< the first one is at work while the child is busy
    QTimer limit_;
    QTimer preparation_;
};

/// One who asks, such as a window's preview. Its request ends with it.
class MediaClient {
public:
    explicit MediaClient(std::shared_ptr<MediaProcess> process = MediaProcess::Shared());
    ~MediaClient();
    MediaClient(const MediaClient&) = delete;
    MediaClient& operator=(const MediaClient&) = delete;

    void Prepare() { process_->Prepare(); }

    void Ask(const MediaJob& job, MediaProcess::Done done) { process_->Ask(this, job, std::move(done)); }

    void Abandon() { process_->Abandon(this); }

private:
    std::shared_ptr<MediaProcess> process_;
};
