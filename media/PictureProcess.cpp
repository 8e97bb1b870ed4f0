// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "media/PictureProcess.h"

#include "platform/Paths.h"

#include <QProcess>

using namespace Qt::StringLiterals;

namespace {

/// A child that is not ready after this time never will be, milliseconds.
constexpr int StartLimit = 10000;

/// Before a child is started ahead, so that what the user waits for comes first, milliseconds.
constexpr int PreparationDelay = 400;

/// A path as one word of a line. The child knows no drives of ours: it gets the path that the system sees.
QByteArray Word(const QString& path) {
    const QString seen = Paths::FromNative(Paths::ToNative(path));
    const auto* bytes = reinterpret_cast<const char*>(seen.utf16());
    return QByteArray(bytes, seen.size() * static_cast<qsizetype>(sizeof(QChar))).toBase64();
}

} // namespace

PictureProcess::PictureProcess() {
    limit_.setSingleShot(true);
    limit_.setTimerType(Qt::PreciseTimer); // a coarse one would end up to a twentieth early
    connect(&limit_, &QTimer::timeout, this, [this] { Finish(false); });
    preparation_.setSingleShot(true);
    preparation_.setInterval(PreparationDelay);
    connect(&preparation_, &QTimer::timeout, this, &PictureProcess::Start);
}

PictureProcess::~PictureProcess() {
    Drop();
}

void PictureProcess::Prepare() {
    if (stage_ == Stage::None && !preparation_.isActive())
        preparation_.start();
}

void PictureProcess::Decode(const QString& source, const QString& bitmap, Done done) {
    Abandon();
    job_ = Word(source) + ' ' + Word(bitmap) + '\n';
    done_ = std::move(done);
    if (stage_ == Stage::Ready) {
        Send();
        return;
    }
    limit_.start(StartLimit);
    Start();
}

void PictureProcess::Abandon() {
    limit_.stop();
    job_.clear();
    done_ = {};
    if (stage_ != Stage::Busy)
        return;
    Drop();
    Prepare();
}

void PictureProcess::Start() {
    preparation_.stop();
    if (stage_ != Stage::None)
        return;
    stage_ = Stage::Starting;
    child_ = new QProcess(this);
    child_->setStandardErrorFile(QProcess::nullDevice());
    connect(child_, &QProcess::readyReadStandardOutput, this, &PictureProcess::ReadAnswers);
    connect(child_, &QProcess::finished, this, [this] { Finish(false); });
    connect(child_, &QProcess::errorOccurred, this, [this] { Finish(false); });
    child_->start(Paths::ToNative(Paths::Executable()), {QString::fromLatin1(Switch)});
}

void PictureProcess::Send() {
    stage_ = Stage::Busy;
    child_->write(std::exchange(job_, {}));
    limit_.start(TimeLimit);
}

void PictureProcess::ReadAnswers() {
    while (child_ != nullptr && child_->canReadLine()) {
        const QByteArray answer = child_->readLine().trimmed();
        if (stage_ == Stage::Starting && answer == "ready") {
            stage_ = Stage::Ready;
            if (!job_.isEmpty())
                Send();
        } else if (stage_ == Stage::Busy && (answer == "yes" || answer == "no")) {
            stage_ = Stage::Ready;
            Finish(answer == "yes");
        }
    }
}

void PictureProcess::Drop() {
    stage_ = Stage::None;
    if (child_ == nullptr)
        return;
    child_->disconnect(this);
    child_->kill();
    child_->waitForFinished();
    child_->deleteLater();
    child_ = nullptr;
}

/// The end of a decoding, or of a child: one that did not answer is good for nothing more.
void PictureProcess::Finish(bool decoded) {
    limit_.stop();
    job_.clear();
    if (stage_ != Stage::Ready || child_->state() != QProcess::Running)
        Drop();
    if (const Done done = std::exchange(done_, {}))
        done(decoded);
}
