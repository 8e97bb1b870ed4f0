// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The journal of installs as JSON, and the lines that an install adds to a file of its own until it ends.
#pragma once

#include "install/journal/Journal.h"

namespace JournalText {

/// The bytes of `installed.json`, UTF-8.
QByteArray Encode(const Journal& journal);

/// Nothing for what is no journal, or one that this program does not understand whole.
std::optional<Journal> Decode(const QByteArray& bytes);

/// A line of an install that runs, its line feed included: a file as it is known by now, or a folder that is made.
QByteArray FileLine(const JournalFile& file);
QByteArray FolderLine(const QString& folder);

/// Takes what the lines say into an entry, later lines of a file in the place of earlier ones. A line that is torn off,
/// or no line at all, is passed over.
void ReadLines(const QByteArray& lines, JournalEntry& entry);

} // namespace JournalText
