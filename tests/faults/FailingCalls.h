// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// What the wrapped calls of the library of faults ask before they go on.
#pragma once

namespace Faults {

/// What a call is like; which faults fit it follows from that.
inline constexpr unsigned Any = 1;     ///< every call
inline constexpr unsigned Changes = 2; ///< changes the disk, or may
inline constexpr unsigned Grows = 4;   ///< may need room
inline constexpr unsigned ByPath = 8;  ///< names a file, which may be forbidden
inline constexpr unsigned Opens = 16;  ///< takes one of the files that a process may have open
inline constexpr unsigned Moves = 32;  ///< moves bytes, of which there may be fewer

struct Call {
    const char* Name;
    unsigned Traits;
};

enum class Outcome {
    GoesOn,
    Fails,   ///< with errno
    IsShort, ///< with half of the bytes
};

/// For a call that names a file, in a folder that is open or AT_FDCWD. Does not return where the process is to die.
Outcome At(const Call& call, int folder, const char* path);

/// For a call on what is open.
Outcome Of(const Call& call, int file);

/// What is open now: calls on it are counted where it is below the folder.
void Remember(int file, int folder, const char* path);
void Forget(int file);

} // namespace Faults
