// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Plays sound files: the child process decodes them, the machine's sound device plays the samples.
#pragma once

#include "media/MediaProcess.h"
#include "media/SoundPlayer.h"

#include <QTemporaryDir>

#include <optional>

class FilePlayer : public SoundPlayer {
public:
    explicit FilePlayer(std::shared_ptr<MediaProcess> process = MediaProcess::Shared());

    void Open(const QString& path) override;
    void Stop() override;
    void Play() override;
    void Rewind() override;
    void Seek(qint64 position) override;
    [[nodiscard]] SoundStatus Status() const override;

private:
    void SamplesCame(bool decoded);
    [[nodiscard]] QByteArray TakeSamples() const;

    std::optional<QTemporaryDir> folder_; ///< for the samples on their way; made at the first sound
    QString samples_;                     ///< inside path of the file that they come in
    std::unique_ptr<SoundOutput> output_; ///< made at the first sound
    bool missing_ = false;                ///< the output could not be made
    bool decoding_ = false;
    bool starts_ = false; ///< plays as soon as it is decoded
    MediaClient client_;
};
