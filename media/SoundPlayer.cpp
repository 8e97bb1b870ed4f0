// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "media/SoundPlayer.h"

#include "platform/NumberedFiles.h"
#include "platform/RuntimeError.h"

namespace {

/// A longer file is no sound of a game.
constexpr qint64 LongestFile = qint64{128} * 1024 * 1024;

QByteArray BytesOf(const QString& path) {
    constexpr int number = 9;
    QByteArray bytes;
    Ignoring([&] {
        NumberedFiles::Open(number, path, NumberedFiles::Access::Read);
        if (const qint64 length = NumberedFiles::Length(number); length <= LongestFile)
            bytes = NumberedFiles::Read(number, 0, length);
    });
    NumberedFiles::Close(number);
    return bytes;
}

} // namespace

void FilePlayer::Open(const QString& path) {
    if (!output_)
        output_ = MakeSoundOutput();
    missing_ = !output_;
    if (output_)
        output_->Open(BytesOf(path));
}

void FilePlayer::Stop() {
    missing_ = false;
    if (output_)
        output_->Stop();
}

void FilePlayer::Play() {
    if (output_)
        output_->Play();
}

void FilePlayer::Rewind() {
    if (output_)
        output_->Rewind();
}

void FilePlayer::Seek(qint64 position) {
    if (output_)
        output_->Seek(position);
}

SoundStatus FilePlayer::Status() const {
    if (output_)
        return output_->Status();
    return {missing_ ? SoundStatus::Stage::NoDevice : SoundStatus::Stage::Empty};
}
