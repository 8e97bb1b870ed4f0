// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Bytes put together field by field, in the order in which they stand in a file.
#pragma once

#include <QByteArray>
#include <QByteArrayView>

namespace Demo {

class Bytes {
public:
    Bytes& Raw(QByteArrayView bytes);

    /// The low eight bits.
    Bytes& Byte(qint64 value);

    /// The low 16 or 32 bits, least significant byte first.
    Bytes& Little16(qint64 value);
    Bytes& Little32(qint64 value);

    /// The low 16 or 32 bits, most significant byte first.
    Bytes& Big16(qint64 value);
    Bytes& Big32(qint64 value);

    Bytes& Zeros(qsizetype count);

    /// Zero bytes up to the next multiple.
    Bytes& PadTo(qsizetype multiple);

    void Reserve(qsizetype size) { bytes_.reserve(size); }

    [[nodiscard]] qsizetype Size() const { return bytes_.size(); }

    [[nodiscard]] const QByteArray& Get() const { return bytes_; }

private:
    QByteArray bytes_;
};

} // namespace Demo
