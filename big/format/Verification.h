// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Looks an archive over: whether its directory agrees with its bytes and with the layout that a save writes, and
/// whether its names can become files.
#pragma once

#include <QString>

#include <vector>

namespace Verification {

enum class Kind {
    Length,     ///< the declared length is not the file's
    Mark,       ///< the mark behind the directory names no variant, or the directory is cut off
    FirstFile,  ///< the first-file field, or where the data begins, is not the layout's
    Number,     ///< a number of 0x80000000 or more, which no reader takes whole
    BeyondEnd,  ///< an entry ends behind the end of the file
    Overlap,    ///< an entry shares bytes with another one or with the directory
    Gap,        ///< bytes that belong to no entry
    Misaligned, ///< an entry's offset is no multiple of 4
    Order,      ///< an entry lies before the one that it follows in the directory
    Unreadable, ///< the system can't read an entry's bytes
    Name,       ///< the gateway refuses the name
    Collision,  ///< another entry has the name, case aside
};

struct Finding {
    Kind What;
    int Index = -1; ///< the entry; -1 for the archive as a whole
    QString Text;   ///< for a person, without the entry's name
};

/// One word for scripts: "length", "mark", "first-file", "number", "beyond-end", "overlap", "gap", "misaligned",
/// "order", "unreadable", "name", "collision".
QString Word(Kind kind);

/// Reads every entry of the archive that was read into the table, each byte once. The findings about the whole archive
/// come first, then those about its entries in the directory's order. Raises when the file can't be opened.
std::vector<Finding> Verify(const QString& archive);

} // namespace Verification
