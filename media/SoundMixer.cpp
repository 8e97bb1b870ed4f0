// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "media/SoundMixer.h"

#include "media/Pcm.h"

#include <SDL.h>
#include <SDL_mixer.h>

#include <memory>

namespace {

/// The mixer decodes for a device: this one plays nothing.
class Nowhere {
public:
    Nowhere() {
        constexpr int bufferFrames = 256;
        SDL_SetHint(SDL_HINT_NO_SIGNAL_HANDLERS, "1"); // they are the program's
        SDL_SetHintWithPriority(SDL_HINT_AUDIODRIVER, "dummy", SDL_HINT_OVERRIDE);
        if (SDL_InitSubSystem(SDL_INIT_AUDIO) != 0)
            return;
        open_ = Mix_OpenAudioDevice(Pcm::Rate, AUDIO_S16SYS, Pcm::Channels, bufferFrames, nullptr, 0) == 0;
        if (!open_)
            SDL_QuitSubSystem(SDL_INIT_AUDIO);
    }

    ~Nowhere() {
        if (!open_)
            return;
        Mix_CloseAudio();
        SDL_QuitSubSystem(SDL_INIT_AUDIO);
    }

    Nowhere(const Nowhere&) = delete;
    Nowhere& operator=(const Nowhere&) = delete;

    [[nodiscard]] bool IsOpen() const { return open_; }

private:
    bool open_ = false;
};

/// An empty tag: the mixer knows MPEG sounds of every version by it.
QByteArray Tagged(const QByteArray& frames) {
    constexpr char padding = 10;
    return QByteArray("ID3\3\0\0\0\0\0", 9) + padding + QByteArray(padding, '\0') + frames;
}

} // namespace

QByteArray Mixer::Decode(const QByteArray& checked) {
    const Nowhere device;
    if (!device.IsOpen())
        return {};
    const QByteArray bytes = checked.startsWith("RIFF") ? checked : Tagged(checked);
    const std::unique_ptr<Mix_Chunk, decltype(&Mix_FreeChunk)> chunk(
        Mix_LoadWAV_RW(SDL_RWFromConstMem(bytes.constData(), static_cast<int>(bytes.size())), 1), Mix_FreeChunk);
    if (!chunk || chunk->alen > Pcm::MostBytes)
        return {};
    const auto frames = static_cast<qsizetype>(chunk->alen / Pcm::BytesPerFrame);
    return QByteArray(reinterpret_cast<const char*>(chunk->abuf), frames * Pcm::BytesPerFrame);
}
