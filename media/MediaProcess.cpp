// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "media/MediaProcess.h"

#include "platform/Paths.h"

#include <QProcess>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// Before a child is started ahead, so that what the user waits for comes first, milliseconds.
constexpr int PreparationDelay = 400;

} // namespace

MediaProcess::MediaProcess(MediaLimits limits) : limits_(limits) {
    limit_.setSingleShot(true);
    limit_.setTimerType(Qt::PreciseTimer); // a coarse one would end up to a twentieth early
    connect(&limit_, &QTimer::timeout, this, [this] { Finish(false); });
    preparation_.setSingleShot(true);
    preparation_.setInterval(PreparationDelay);
    connect(&preparation_, &QTimer::timeout, this, &MediaProcess::Start);
}

MediaProcess::~MediaProcess() {
    Drop();
}

std::shared_ptr<MediaProcess> MediaProcess::Shared() {
    static std::weak_ptr<MediaProcess> shared;
    std::shared_ptr<MediaProcess> process = shared.lock();
    if (!process) {
        process = std::make_shared<MediaProcess>();
        shared = process;
    }
    return process;
}

void MediaProcess::Prepare() {
    if (stage_ == Stage::None && !preparation_.isActive())
        preparation_.start();
}

void MediaProcess::Ask(const MediaClient* client, const MediaJob& job, Done done) {
    Abandon(client);
    const int limit = job.What == MediaJob::Kind::Sound ? limits_.Sound : limits_.Picture;
    requests_.push_back({client, job.Line(), limit, std::move(done)});
    Proceed();
}

void MediaProcess::Abandon(const MediaClient* client) {
    const auto own = std::ranges::find(requests_, client, &Request::Client);
    if (own == requests_.end())
        return;
    const bool underWay = stage_ == Stage::Busy && own == requests_.begin();
    requests_.erase(own);
    if (underWay) {
        Drop(); // what it writes would come after the client has cleared up
        Prepare();
    }
    if (requests_.empty())
        limit_.stop();
    else
        Proceed();
}

void MediaProcess::Start() {
    preparation_.stop();
    if (stage_ != Stage::None)
        return;
    stage_ = Stage::Starting;
    child_ = new QProcess(this);
    child_->setStandardErrorFile(QProcess::nullDevice());
    connect(child_, &QProcess::readyReadStandardOutput, this, &MediaProcess::ReadAnswers);
    connect(child_, &QProcess::finished, this, [this] { Finish(false); });
    connect(child_, &QProcess::errorOccurred, this, [this] { Finish(false); });
    child_->start(Paths::ToNative(Paths::Executable()), {QString::fromLatin1(Switch)});
}

/// The next request goes to the child, or the child is started for it.
void MediaProcess::Proceed() {
    if (requests_.empty() || stage_ == Stage::Busy)
        return;
    if (stage_ == Stage::Ready) {
        stage_ = Stage::Busy;
        limit_.start(requests_.front().Limit);
        child_->write(requests_.front().Line);
        return;
    }
    if (stage_ == Stage::None || !limit_.isActive())
        limit_.start(limits_.Start);
    Start();
}

void MediaProcess::ReadAnswers() {
    while (child_ != nullptr && child_->canReadLine()) {
        const QByteArray answer = child_->readLine().trimmed();
        if (stage_ == Stage::Starting && answer == "ready") {
            limit_.stop();
            stage_ = Stage::Ready;
            Proceed();
        } else if (stage_ == Stage::Busy && (answer == "yes" || answer == "no")) {
            stage_ = Stage::Ready;
            Finish(answer == "yes");
        }
    }
}

void MediaProcess::Drop() {
    stage_ = Stage::None;
    limit_.stop();
    if (child_ == nullptr)
        return;
    child_->disconnect(this);
    child_->kill();
    child_->waitForFinished();
    child_->deleteLater();
    child_ = nullptr;
}

/// The end of a decoding, or of a child: one that did not answer is good for nothing more.
void MediaProcess::Finish(bool decoded) {
    limit_.stop();
    if (stage_ != Stage::Ready || child_->state() != QProcess::Running)
        Drop();
    if (requests_.empty())
        return;
    const Request request = std::move(requests_.front());
    requests_.pop_front();
    Proceed();
    request.Done(decoded);
}

MediaClient::MediaClient(std::shared_ptr<MediaProcess> process) : process_(std::move(process)) {}

MediaClient::~MediaClient() {
    process_->Abandon(this);
}
