// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The one door between text and the 8-bit texts of the games' files, INI files and registry values.
///
/// On Windows the page is the system's ANSI code page where that is a single-byte one. Everywhere else it is
/// Windows-1252, whose five unassigned bytes (0x81, 0x8D, 0x8F, 0x90, 0x9D) stand for the control characters of the
/// same number. Every byte comes back unchanged from Encode(Decode(bytes)).
#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QString>
#include <QStringView>

namespace AnsiCodec {

/// One byte a UTF-16 unit; a character that the page lacks becomes '?' (a surrogate pair becomes one '?').
QByteArray Encode(QStringView text);

/// The same into memory of the caller's, with room for as many bytes as the text has units; returns how many it took.
qsizetype EncodeInto(QStringView text, char* bytes);

/// One character a byte.
QString Decode(QByteArrayView bytes);

} // namespace AnsiCodec
