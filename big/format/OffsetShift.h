// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Archives whose data lie beside the offsets of their directory, as saves leave them for some variants, lengths of
/// names and entries without bytes: told, recognised, and read as if they lay right.
#pragma once

#include <QtGlobal>

#include <vector>

class QString;
struct Archive;

namespace OffsetShift {

struct Shift {
    /// By entry of the written archive: where its bytes lie minus where the directory says. 0 for one without bytes.
    std::vector<qint64> Distances;
    int Count = 0;          ///< entries with a distance
    qint64 First = 0;       ///< the distance of the first of them; below 0 its bytes come before the offset
    bool ExactFits = false; ///< the file can as well be one without a shift: to be told, not to be mended

    [[nodiscard]] bool IsNone() const { return Count == 0; }
};

/// What an archive as it was read, whose file has that length, is shifted by: nothing unless every offset of the
/// directory and the length are those that a save writes.
Shift ShiftOf(const Archive& archive, qint64 length);

/// The archive with offsets that lead to the entries' bytes. `shift` is of this archive as it was read.
Archive ReadShiftedBack(Archive archive, const Shift& shift);

} // namespace OffsetShift
