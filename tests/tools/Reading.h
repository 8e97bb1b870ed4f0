// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Ways to read numbers out of generated files.
#pragma once

#include <QByteArray>
#include <QtEndian>

inline int ByteAt(const QByteArray& bytes, qsizetype place) {
    return static_cast<quint8>(bytes.at(place));
}

inline int Little16At(const QByteArray& bytes, qsizetype place) {
    return qFromLittleEndian<quint16>(bytes.constData() + place);
}

inline qint64 Little32At(const QByteArray& bytes, qsizetype place) {
    return qFromLittleEndian<quint32>(bytes.constData() + place);
}

inline qint64 Big32At(const QByteArray& bytes, qsizetype place) {
    return qFromBigEndian<quint32>(bytes.constData() + place);
}

/// Bytes written as hexadecimal digits; blanks are left out.
inline QByteArray Hex(const char* digits) {
    return QByteArray::fromHex(digits);
}
