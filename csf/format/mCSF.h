// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// CSF string tables: the table of the open file, the reader and the writer.
///
/// A CSF file is a header of 24 bytes (" FSC", version, two counts, a reserved field, language) and records: a label
/// (" LBL", 1, name length, name in the ANSI code page) followed by its string (" RTS", length in characters, UTF-16
/// little-endian with every bit inverted). Numbers are little-endian. Only the low byte of a character is kept.
#pragma once

#include <QString>

#include <functional>
#include <vector>

struct CsfString {
    QString Value; ///< one character for each 16-bit unit of the file; line breaks are line feeds
    QString Name;  ///< the label's name

    bool operator==(const CsfString&) const = default;
};

namespace mCSF {

/// The table of the last file read, or the one to be written, in the file's order.
extern std::vector<CsfString> CsfStrings;

/// The number that tables are opened under. It is theirs alone: while one is read the event loop runs, and archives and
/// previews open files under 1 to 9.
inline constexpr int FileNumber = 10;

/// What ReadCSF returns for a refused file.
inline constexpr qint32 Refused = 65536;

/// The most strings that a file can have and still be read.
inline constexpr int MaximumStrings = 32767;

/// Fills CsfStrings and returns the language number. A file that is refused was told to the user (`CSFError`), and
/// gives Refused; the table then holds no more than remains. Yields to the event loop once a record.
qint32 ReadCSF(const QString& path);

/// The same for callers who tell the failure themselves: raises what refused the file.
qint32 ReadTable(const QString& path);

/// Writes CsfStrings. The old file stands aside as ".sav" until the new one is whole. A failure up to the header ends
/// the program with a message; later ones are passed over in silence, and the ".sav" stays. True when all was written.
bool WriteCSF(const QString& path, qint16 language);

/// The same for callers who tell failures themselves: raises where WriteCSF ends the program. Returns why the entries
/// were not all written; empty when they were.
QString WriteTable(const QString& path, qint16 language);

/// How the fatal path ends the program; tests put something else in its place.
extern std::function<void()> EndProgram;

} // namespace mCSF
