// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// What of a sound file a library may see. The kinds, rates and sizes that a file claims are looked at first, and what
/// was looked at is all that is handed on: the library can't read another meaning into the rest.
#pragma once

#include <QByteArray>

namespace Sounds {

/// A WAV of the chunks fmt, fact and data, or the frames of an MPEG sound one behind the other; empty when the file is
/// neither, or its samples are beyond any sane number.
QByteArray Checked(const QByteArray& file);

QByteArray CheckedWav(const QByteArray& file);
QByteArray CheckedMpeg(const QByteArray& file);

/// Whether so many frames of samples can be turned into what the player takes, with the memory and the arithmetic of
/// the libraries.
bool IsSane(qint64 frames, qint64 rate, qint64 channels);

} // namespace Sounds

/// The samples (see Pcm.h) of a checked file, through the mixer's module; empty when it can't. For a process that may
/// die of it.
QByteArray DecodeSound(const QByteArray& checked);
