// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Every number that NumberedFiles are opened under, and who opens it. A number is part of what the program does where
/// a step that fails leaves its file open: the next step that needs the number fails then. All else opens a File.
#pragma once

namespace FileNumbers {

inline constexpr int Archive = 1;        ///< the archive that is read or written
inline constexpr int EntrySource = 2;    ///< the file that a new entry's bytes come from, while an archive is written
inline constexpr int OldArchive = 3;     ///< the archive that kept entries come from, while one is written
inline constexpr int ExtractTarget = 3;  ///< what one entry is extracted to
inline constexpr int ExtractArchive = 4; ///< the archive that one entry is extracted from
inline constexpr int Table = 10;         ///< the string table that is read or written
inline constexpr int Replay = 11;        ///< a replay whose header is read; a bad one stays open and stops the next
inline constexpr int TextLog = 250;      ///< the log of texts that no language file has

} // namespace FileNumbers
