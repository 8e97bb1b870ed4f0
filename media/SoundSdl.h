// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The sound device through SDL2_mixer. A thread of its own does what may take time: opening the device, reading a
/// sound.
#pragma once

#include "media/SoundPlayer.h"

#include <atomic>
#include <condition_variable>
#include <deque>
#include <functional>
#include <mutex>
#include <thread>

struct Mix_Chunk;
typedef struct _Mix_Music Mix_Music; // NOLINT: the library's own name

class SdlOutput : public SoundOutput {
public:
    SdlOutput();
    ~SdlOutput() override;

    void Open(const QByteArray& bytes) override;
    void Stop() override;
    void Play() override;
    void Rewind() override;
    void Seek(qint64 position) override;
    [[nodiscard]] SoundStatus Status() const override;

private:
    using Task = std::function<void()>;

    void Ask(Task task);
    void Work();
    bool OpenDevice();
    void Read(const QByteArray& bytes);
    void Forget();
    void Start();
    void GoTo(qint64 position);
    void LookAtMusic();
    static void Feed(void* self, unsigned char* stream, int length);

    // The worker's own.
    QByteArray bytes_;           ///< of the open sound, which music_ reads from
    Mix_Music* music_ = nullptr; ///< MP3, decoded while it plays
    bool deviceOpen_ = false;

    // Shared with the device's thread, which reads the chunk between two calls of the library that wait for it.
    Mix_Chunk* chunk_ = nullptr;  ///< WAV, decoded whole
    std::atomic<qint64> fed_ = 0; ///< bytes of the chunk that the device has

    // Shared with the caller.
    std::atomic<SoundStatus::Stage> stage_ = SoundStatus::Stage::Empty;
    std::atomic<qint64> position_ = 0;
    std::atomic<qint64> length_ = 0;

    std::mutex mutex_;
    std::condition_variable asked_;
    std::deque<Task> tasks_;
    bool ended_ = false;
    std::thread worker_;
};
