// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Binary files under fixed numbers (platform/FileNumbers.h). A number that was left open stays taken until it is
/// closed: opening it again raises 55. Positions are offsets in bytes from 0. Failures raise RuntimeErrors that name
/// the file. Who needs no number opens a File.
#pragma once

#include "platform/ListedFolder.h"

namespace NumberedFiles {

using Access = File::Access;

/// Raises 55 when the number is taken, 53, 70, 75 or 76 when the file can't be opened (75 for a folder).
void Open(int number, const QString& path, Access access);

/// The same for a path whose case is known to be right: nothing is looked up.
void OpenAsGiven(int number, const QString& path, Access access);

/// The same for a file of a listed folder, to be read.
void Open(int number, const ListedFolder& folder, const QString& name);

bool IsOpen(int number);

/// The file under a number; raises 52 when the number is not open. Good until the number is closed.
File& Of(int number);

/// Closing a number that is not open does nothing. Raises when the system reports a failed write only now.
void Close(int number);

/// Closes every number.
void CloseAll();

/// Length in bytes. Raises 52 when the number is not open.
qint64 Length(int number);

/// Up to `count` bytes from `offset` on; fewer at the end of the file.
QByteArray Read(int number, qint64 offset, qint64 count);

/// The same into memory of the caller's; returns how many bytes there were.
qint64 ReadInto(int number, qint64 offset, char* bytes, qint64 count);

/// Writes all bytes or raises 61 (full), 57 or 70.
void Write(int number, qint64 offset, QByteArrayView bytes);

/// Copies `count` bytes from one open file into another, within the system where it can. Returns how many there were:
/// fewer where the source ends.
qint64 Copy(int to, qint64 toOffset, int from, qint64 fromOffset, qint64 count);

/// Sets the length; a longer file reads as zeros behind its old end.
void SetLength(int number, qint64 length);

} // namespace NumberedFiles
