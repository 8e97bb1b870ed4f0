// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "media/FilePlayer.h"

#include "media/MediaFiles.h"
#include "media/Pcm.h"
#include "platform/Paths.h"
#include "platform/RuntimeError.h"

#include <QDir>
#include <QFile>

using namespace Qt::StringLiterals;
using Stage = SoundStatus::Stage;

FilePlayer::FilePlayer(std::shared_ptr<MediaProcess> process) : client_(std::move(process)) {}

void FilePlayer::Open(const QString& path) {
    Stop();
    if (!folder_) {
        folder_.emplace();
        samples_ = Paths::FromNative(QDir::toNativeSeparators(folder_->filePath(u"samples"_s)));
    }
    decoding_ = true;
    starts_ = true;
    client_.Ask({MediaJob::Kind::Sound, path, samples_}, [this](bool decoded) { SamplesCame(decoded); });
    if (!output_)
        output_ = MakeSoundOutput(); // while the child decodes
    missing_ = !output_;
}

void FilePlayer::SamplesCame(bool decoded) {
    decoding_ = false;
    const QByteArray samples = TakeSamples();
    if (output_)
        output_->Open(decoded ? samples : QByteArray(), starts_);
}

QByteArray FilePlayer::TakeSamples() const {
    QByteArray samples;
    Ignoring([&] { samples = MediaFiles::Read(samples_, Pcm::MostBytes); });
    QFile::remove(Paths::ToNative(samples_));
    samples.truncate(samples.size() / Pcm::BytesPerFrame * Pcm::BytesPerFrame);
    return samples;
}

void FilePlayer::Stop() {
    client_.Abandon();
    decoding_ = false;
    missing_ = false;
    if (output_)
        output_->Stop();
}

void FilePlayer::Play() {
    starts_ = true;
    if (output_ && !decoding_)
        output_->Play();
}

void FilePlayer::Rewind() {
    starts_ = false;
    if (output_ && !decoding_)
        output_->Rewind();
}

void FilePlayer::Seek(qint64 position) {
    if (output_ && !decoding_)
        output_->Seek(position);
}

SoundStatus FilePlayer::Status() const {
    if (missing_)
        return {Stage::NoDevice};
    if (decoding_)
        return {starts_ ? Stage::Opening : Stage::Stopped};
    return output_ ? output_->Status() : SoundStatus{};
}
