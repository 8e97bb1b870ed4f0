// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "media/SoundDevice.h"

#include "media/Pcm.h"

#include <SDL.h>

#include <algorithm>
#include <cstring>

using Stage = SoundStatus::Stage;

DeviceOutput::DeviceOutput() : worker_([this] { Work(); }) {}

DeviceOutput::~DeviceOutput() {
    Ask([this] {
        Forget();
        ended_ = true;
    });
    worker_.join();
}

void DeviceOutput::Ask(Task task) {
    {
        const std::lock_guard lock(mutex_);
        tasks_.push_back(std::move(task));
    }
    asked_.notify_one();
}

void DeviceOutput::Work() {
    while (!ended_) {
        Task task;
        {
            std::unique_lock lock(mutex_);
            asked_.wait(lock, [this] { return !tasks_.empty(); });
            task = std::move(tasks_.front());
            tasks_.pop_front();
        }
        task();
    }
    SDL_TLSCleanup();
}

void DeviceOutput::Open(const QByteArray& samples, bool plays) {
    stage_ = Stage::Opening;
    fed_ = 0;
    length_ = 0;
    Ask([this, samples, plays] {
        Forget();
        samples_ = samples;
        length_ = Pcm::Milliseconds(samples.size());
        if (!OpenDevice())
            stage_ = Stage::NoDevice;
        else if (samples.isEmpty())
            stage_ = Stage::Unplayable;
        else
            stage_ = plays ? Stage::Playing : Stage::Stopped;
    });
}

void DeviceOutput::Stop() {
    Ask([this] {
        Forget();
        stage_ = Stage::Empty;
    });
}

void DeviceOutput::Play() {
    Ask([this] {
        if (stage_ == Stage::Stopped)
            stage_ = Stage::Playing;
    });
}

void DeviceOutput::Rewind() {
    Ask([this] {
        if (stage_ != Stage::Playing)
            return;
        SDL_LockAudioDevice(device_);
        fed_ = 0;
        stage_ = Stage::Stopped;
        SDL_UnlockAudioDevice(device_);
    });
}

void DeviceOutput::Seek(qint64 position) {
    Ask([this, position] { GoTo(position); });
}

SoundStatus DeviceOutput::Status() const {
    return {stage_, Pcm::Milliseconds(fed_), length_};
}

bool DeviceOutput::OpenDevice() {
    constexpr int bufferFrames = 1024;
    SDL_SetHint(SDL_HINT_NO_SIGNAL_HANDLERS, "1"); // they are the program's
    if (SDL_InitSubSystem(SDL_INIT_AUDIO) != 0)
        return false;
    SDL_AudioSpec wanted{};
    wanted.freq = Pcm::Rate;
    wanted.format = AUDIO_S16SYS;
    wanted.channels = Pcm::Channels;
    wanted.samples = bufferFrames;
    wanted.callback = Feed;
    wanted.userdata = this;
    device_ = SDL_OpenAudioDevice(nullptr, 0, &wanted, nullptr, 0);
    if (device_ == 0)
        SDL_QuitSubSystem(SDL_INIT_AUDIO);
    else
        SDL_PauseAudioDevice(device_, 0);
    return device_ != 0;
}

void DeviceOutput::Forget() {
    stage_ = Stage::Opening; // silences Feed
    if (device_ != 0) {
        SDL_CloseAudioDevice(device_);
        SDL_QuitSubSystem(SDL_INIT_AUDIO);
        device_ = 0;
    }
    samples_.clear();
    fed_ = 0;
    length_ = 0;
}

void DeviceOutput::GoTo(qint64 position) {
    if (device_ == 0)
        return;
    SDL_LockAudioDevice(device_);
    fed_ = std::clamp<qint64>(position, 0, length_) * Pcm::Rate / 1000 * Pcm::BytesPerFrame;
    SDL_UnlockAudioDevice(device_);
}

/// The device's thread asks for the next bytes.
void DeviceOutput::Feed(void* self, unsigned char* stream, int length) {
    auto& output = *static_cast<DeviceOutput*>(self);
    std::memset(stream, 0, static_cast<std::size_t>(length));
    if (output.stage_ != Stage::Playing)
        return;
    const qint64 from = output.fed_;
    const qint64 count = std::clamp<qint64>(output.samples_.size() - from, 0, length);
    std::memcpy(stream, output.samples_.constData() + from, static_cast<std::size_t>(count));
    output.fed_ = from + count;
    if (count == length)
        return;
    output.fed_ = 0;
    output.stage_ = Stage::Stopped;
}
