// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Pieces of BIG archives, for tests that write them out byte by byte.
#pragma once

#include <QByteArray>

/// The bytes of a literal, its zeros included.
template <std::size_t Size>
QByteArray Bytes(const char (&literal)[Size]) {
    return QByteArray(literal, static_cast<qsizetype>(Size) - 1);
}

/// A directory record.
QByteArray Record(quint32 offset, quint32 size, const QByteArray& name);

/// A header of 16 bytes with a length of zero.
QByteArray HeaderOf(const QByteArray& magic, quint32 count, quint32 firstFile);
