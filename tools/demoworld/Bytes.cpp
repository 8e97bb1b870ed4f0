// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tools/demoworld/Bytes.h"

namespace Demo {

Bytes& Bytes::Raw(QByteArrayView bytes) {
    bytes_.append(bytes);
    return *this;
}

Bytes& Bytes::Byte(qint64 value) {
    bytes_.append(static_cast<char>(value & 0xFF));
    return *this;
}

Bytes& Bytes::Little16(qint64 value) {
    return Byte(value).Byte(value >> 8);
}

Bytes& Bytes::Little32(qint64 value) {
    return Little16(value).Little16(value >> 16);
}

Bytes& Bytes::Big16(qint64 value) {
    return Byte(value >> 8).Byte(value);
}

Bytes& Bytes::Big32(qint64 value) {
    return Big16(value >> 16).Big16(value);
}

Bytes& Bytes::Zeros(qsizetype count) {
    bytes_.append(count, '\0');
    return *this;
}

Bytes& Bytes::PadTo(qsizetype multiple) {
    return Zeros((multiple - bytes_.size() % multiple) % multiple);
}

} // namespace Demo
