// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Looks an archive over: whether its directory agrees with its bytes and with the layout that a save writes, and
/// whether its names can become files.
#pragma once

#include "big/format/Archive.h"

#include <QString>

#include <vector>

class Device;

namespace Verification {

enum class Kind {
    Length,       ///< the declared length is not the file's
    Mark,         ///< the mark behind the directory names no variant
    FirstFile,    ///< the first-file field, or where the data begins, is not the layout's
    Cut,          ///< the directory is cut off, so that not all of the entries that it counts are there
    Number,       ///< a number of 0x80000000 or more, which no reader takes whole
    Shift,        ///< the data lie beside the offsets, all as a save lays them
    PerhapsShift, ///< the same, but the file can as well be one whose data lie right
    BeyondEnd,    ///< an entry ends behind the end of the file
    Overlap,      ///< an entry shares bytes with another one or with the directory
    Gap,          ///< bytes that belong to no entry
    Misaligned,   ///< an entry's offset is no multiple of 4
    Order,        ///< an entry lies before the one that it follows in the directory
    Unreadable,   ///< the system can't read an entry's bytes
    Name,         ///< the gateway refuses the name
    Collision,    ///< another entry has the name, case aside
};

enum class Class {
    Fault, ///< a game or another reader gets wrong bytes, or none
    Note,  ///< only unlike what a save writes
};

struct Finding {
    Kind What;
    int Index = -1; ///< the entry; -1 for the archive as a whole
    QString Text;   ///< for a person, without the entry's name
};

/// One word for scripts: "length", "mark", "first-file", "cut", "number", "shift", "perhaps-shift", "beyond-end",
/// "overlap", "gap", "misaligned", "order", "unreadable", "name", "collision".
QString Word(Kind kind);

Class ClassOf(Kind kind);

/// Reads every entry of the archive, which was read from that device, each byte once; of a shifted one those where its
/// data lie. The findings about the whole archive come first, then those about its entries in the directory's order.
std::vector<Finding> Verify(const Archive& archive, const Device& device);

} // namespace Verification
