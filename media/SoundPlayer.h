// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// What plays sounds, as `MediaPlayer1` and those who click on a sound see it.
#pragma once

#include <QByteArray>
#include <QString>

#include <memory>

struct SoundStatus {
    enum class Stage {
        Empty,     ///< no sound is open
        Opening,   ///< it plays as soon as it is read
        Playing,   ///< from Position on
        Stopped,   ///< at its end, or stopped
        NoDevice,  ///< the machine has nothing to play it on
        Unplayable ///< the file is no sound that can be read
    };

    Stage What = Stage::Empty;
    qint64 Position = 0; ///< milliseconds
    qint64 Length = 0;   ///< milliseconds; 0 where nobody knows
};

/// Plays one sound at a time. Nothing here waits for a device or a decoder.
class SoundPlayer {
public:
    SoundPlayer() = default;
    SoundPlayer(const SoundPlayer&) = delete;
    SoundPlayer& operator=(const SoundPlayer&) = delete;
    virtual ~SoundPlayer() = default;

    /// Opens a sound file (inside path), and starts it when it is decoded. The file is read until the status says that
    /// it is no longer opening.
    virtual void Open(const QString& path) = 0;
    /// Stops and forgets the sound.
    virtual void Stop() = 0;
    /// Plays the open sound from where it is.
    virtual void Play() = 0;
    /// Stops the open sound and goes back to its start; one that is opening will not start.
    virtual void Rewind() = 0;
    /// Goes to a place, milliseconds; a sound that plays goes on from there.
    virtual void Seek(qint64 position) = 0;
    [[nodiscard]] virtual SoundStatus Status() const = 0;
};

/// The same for a sound that is decoded already.
class SoundOutput {
public:
    SoundOutput() = default;
    SoundOutput(const SoundOutput&) = delete;
    SoundOutput& operator=(const SoundOutput&) = delete;
    virtual ~SoundOutput() = default;

    /// Opens samples (see Pcm.h), playing or stopped at their start; without any the sound is one that can't be played.
    virtual void Open(const QByteArray& samples, bool plays) = 0;
    virtual void Stop() = 0;
    virtual void Play() = 0;
    virtual void Rewind() = 0;
    virtual void Seek(qint64 position) = 0;
    [[nodiscard]] virtual SoundStatus Status() const = 0;
};

/// The output on the machine's sound device, from a module that is loaded now; null when it can't be.
std::unique_ptr<SoundOutput> MakeSoundOutput();
