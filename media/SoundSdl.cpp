// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "media/SoundSdl.h"

#include <SDL.h>
#include <SDL_mixer.h>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstring>

using Stage = SoundStatus::Stage;

namespace {

// What the device plays: everything else is turned into it.
constexpr int Rate = 44100;
constexpr int Channels = 2;
constexpr int BytesPerFrame = Channels * 2;
constexpr int BufferFrames = 1024;
constexpr int MillisecondsPerSecond = 1000;

qint64 Milliseconds(qint64 bytes) {
    return bytes / BytesPerFrame * MillisecondsPerSecond / Rate;
}

qint64 Milliseconds(double seconds) {
    return seconds > 0 ? static_cast<qint64>(std::lround(seconds * MillisecondsPerSecond)) : 0;
}

} // namespace

SdlOutput::SdlOutput() : worker_([this] { Work(); }) {}

SdlOutput::~SdlOutput() {
    Ask([this] {
        Forget();
        ended_ = true;
    });
    worker_.join();
}

void SdlOutput::Ask(Task task) {
    {
        const std::lock_guard lock(mutex_);
        tasks_.push_back(std::move(task));
    }
    asked_.notify_one();
}

void SdlOutput::Work() {
    constexpr std::chrono::milliseconds look(50);
    while (!ended_) {
        Task task;
        {
            std::unique_lock lock(mutex_);
            asked_.wait_for(lock, music_ != nullptr ? look : std::chrono::hours(1), [this] { return !tasks_.empty(); });
            if (!tasks_.empty()) {
                task = std::move(tasks_.front());
                tasks_.pop_front();
            }
        }
        if (task)
            task();
        LookAtMusic();
    }
    SDL_TLSCleanup();
}

void SdlOutput::Open(const QByteArray& bytes) {
    stage_ = Stage::Opening;
    position_ = 0;
    length_ = 0;
    Ask([this, bytes] {
        Forget();
        if (!OpenDevice()) {
            stage_ = Stage::NoDevice;
            return;
        }
        Read(bytes);
        if (chunk_ != nullptr || music_ != nullptr)
            Start();
        else
            stage_ = Stage::Unplayable;
    });
}

void SdlOutput::Stop() {
    Ask([this] {
        Forget();
        stage_ = Stage::Empty;
    });
}

void SdlOutput::Play() {
    Ask([this] {
        if (stage_ == Stage::Stopped)
            Start();
    });
}

void SdlOutput::Rewind() {
    Ask([this] {
        if (stage_ != Stage::Playing)
            return;
        stage_ = Stage::Stopped;
        Mix_HaltMusic();
        GoTo(0);
    });
}

void SdlOutput::Seek(qint64 position) {
    Ask([this, position] { GoTo(position); });
}

SoundStatus SdlOutput::Status() const {
    return {stage_, position_, length_};
}

bool SdlOutput::OpenDevice() {
    SDL_SetHint(SDL_HINT_NO_SIGNAL_HANDLERS, "1"); // they are the program's
    if (SDL_InitSubSystem(SDL_INIT_AUDIO) != 0)
        return false;
    deviceOpen_ = Mix_OpenAudio(Rate, AUDIO_S16SYS, Channels, BufferFrames) == 0;
    if (!deviceOpen_)
        SDL_QuitSubSystem(SDL_INIT_AUDIO);
    return deviceOpen_;
}

void SdlOutput::Read(const QByteArray& bytes) {
    bytes_ = bytes;
    const auto stream = [this] { return SDL_RWFromConstMem(bytes_.constData(), static_cast<int>(bytes_.size())); };
    // Decoding a WAV while it plays refuses the games' ADPCM; decoding it whole does not.
    if (bytes.startsWith("RIFF")) {
        chunk_ = Mix_LoadWAV_RW(stream(), 1);
        length_ = chunk_ != nullptr ? Milliseconds(qint64{chunk_->alen}) : 0;
    } else if (!bytes.isEmpty()) {
        music_ = Mix_LoadMUSType_RW(stream(), MUS_MP3, 1);
        length_ = music_ != nullptr ? Milliseconds(Mix_MusicDuration(music_)) : 0;
    }
}

void SdlOutput::Forget() {
    stage_ = Stage::Opening; // silences Feed
    position_ = 0;
    length_ = 0;
    if (!deviceOpen_)
        return;
    Mix_HookMusic(nullptr, nullptr);
    Mix_HaltMusic();
    Mix_FreeChunk(chunk_);
    Mix_FreeMusic(music_);
    chunk_ = nullptr;
    music_ = nullptr;
    bytes_.clear();
    fed_ = 0;
    Mix_CloseAudio();
    SDL_QuitSubSystem(SDL_INIT_AUDIO);
    deviceOpen_ = false;
}

void SdlOutput::Start() {
    if (chunk_ != nullptr) {
        if (fed_ >= chunk_->alen)
            GoTo(0);
        stage_ = Stage::Playing;
        Mix_HookMusic(Feed, this);
        return;
    }
    const bool plays = Mix_PlayMusic(music_, 1) == 0;
    if (plays && position_ > 0)
        Mix_SetMusicPosition(static_cast<double>(position_) / MillisecondsPerSecond);
    stage_ = plays ? Stage::Playing : Stage::Unplayable;
}

void SdlOutput::GoTo(qint64 position) {
    if (chunk_ == nullptr && music_ == nullptr)
        return;
    const qint64 place = std::clamp<qint64>(position, 0, length_);
    position_ = place;
    if (chunk_ != nullptr)
        fed_ = place * Rate / MillisecondsPerSecond * BytesPerFrame;
    else if (stage_ == Stage::Playing)
        Mix_SetMusicPosition(static_cast<double>(place) / MillisecondsPerSecond);
}

void SdlOutput::LookAtMusic() {
    if (music_ == nullptr || stage_ != Stage::Playing)
        return;
    if (Mix_PlayingMusic() == 0) {
        stage_ = Stage::Stopped;
        position_ = 0;
        return;
    }
    position_ = Milliseconds(Mix_GetMusicPosition(music_));
}

/// The device's thread asks for the next bytes.
void SdlOutput::Feed(void* self, unsigned char* stream, int length) {
    auto& output = *static_cast<SdlOutput*>(self);
    if (output.stage_ != Stage::Playing)
        return;
    const qint64 from = output.fed_;
    const qint64 count = std::clamp<qint64>(qint64{output.chunk_->alen} - from, 0, length);
    std::memcpy(stream, output.chunk_->abuf + from, static_cast<std::size_t>(count));
    output.fed_ = from + count;
    output.position_ = Milliseconds(from + count);
    if (count == length)
        return;
    output.stage_ = Stage::Stopped;
    output.position_ = 0;
    output.fed_ = 0;
}
