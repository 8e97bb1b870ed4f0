// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The open string table, and how it is read and saved before the user's eyes.
#pragma once

#include "csf/format/CsfSave.h"
#include "csf/format/CsfTable.h"
#include "platform/FileNumbers.h"

#include <QString>

#include <functional>
#include <vector>

namespace mCSF {

/// The table of the last file read, or the one to be written, in the file's order.
extern std::vector<CsfString> CsfStrings;

/// The number that the open table is read and saved under. It is its alone: while it is read the event loop runs, and
/// archives and previews open files under others.
inline constexpr int FileNumber = FileNumbers::Table;

/// What ReadCSF returns for a refused file.
inline constexpr qint32 Refused = 65536;

/// The most strings that a file can have and still be read.
inline constexpr int MaximumStrings = CsfTable::MaximumStrings;

/// True while ReadCSF fills CsfStrings. The event loop runs meanwhile: whoever comes in by it leaves the table alone.
[[nodiscard]] bool IsLocked();

/// Fills CsfStrings and returns the language number. A file that is refused was told to the user (`CSFError`), and
/// gives Refused; the table then holds no more than remains. Yields to the event loop once a record. While the table is
/// locked every file is refused, and the running read goes on.
qint32 ReadCSF(const QString& path);

/// Writes CsfStrings; true when all was written. The old file stands aside as ".sav" until the new one is whole. A
/// failure up to the header ends the program with a message. A write-protected file and a locked table are refused
/// before anything is touched, and what fails behind the header leaves the ".sav": neither says a word, `saves` tells
/// why. A document hands over the same `saves` each time: a ".sav" that its own saves left is not in the next one's
/// way.
bool WriteCSF(const QString& path, qint16 language, CsfSaves* saves = nullptr);

/// How the fatal path ends the program; tests put something else in its place.
extern std::function<void()> EndProgram;

} // namespace mCSF
