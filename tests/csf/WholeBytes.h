// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Pieces of string tables with all that the format can hold, for tests that write them out byte by byte.
#pragma once

#include <QByteArray>
#include <QString>
#include <QtEndian>

namespace WholeBytes {

/// Four bytes, least significant first.
inline QByteArray Number(quint32 value) {
    QByteArray bytes(sizeof(value), Qt::Uninitialized);
    qToLittleEndian(value, bytes.data());
    return bytes;
}

/// A header whose counts, language, reserved field and version are chosen.
inline QByteArray Head(quint32 labels, quint32 strings, quint32 language = 0, quint32 reserved = 0,
                       quint32 version = 3) {
    return " FSC" + Number(version) + Number(labels) + Number(strings) + Number(reserved) + Number(language);
}

inline QByteArray Label(quint32 strings, const QByteArray& name, const QByteArray& mark = " LBL") {
    return mark + Number(strings) + Number(static_cast<quint32>(name.size())) + name;
}

/// A string record with all 16 bits of its letters.
inline QByteArray String(const QString& value, const QByteArray& mark = " RTS") {
    QByteArray record = mark + Number(static_cast<quint32>(value.size()));
    for (const QChar letter : value) {
        const auto unit = static_cast<unsigned>(0xFFFF - letter.unicode());
        record += static_cast<char>(unit & 0xFF);
        record += static_cast<char>(unit >> 8U);
    }
    return record;
}

inline QByteArray WithExtra(const QString& value, const QByteArray& extra, const QByteArray& mark = "WRTS") {
    return String(value, mark) + Number(static_cast<quint32>(extra.size())) + extra;
}

/// A label with its string.
inline QByteArray Entry(const QByteArray& name, const QString& value) {
    return Label(1, name) + String(value);
}

} // namespace WholeBytes
