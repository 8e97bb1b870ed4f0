// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/support/ArchiveBytes.h"

#include <QtEndian>

namespace {

QByteArray BigEndian(quint32 value) {
    QByteArray bytes(4, Qt::Uninitialized);
    qToBigEndian(value, bytes.data());
    return bytes;
}

} // namespace

QByteArray Record(quint32 offset, quint32 size, const QByteArray& name) {
    return BigEndian(offset) + BigEndian(size) + name + '\0';
}

QByteArray HeaderOf(const QByteArray& magic, quint32 count, quint32 firstFile) {
    return magic + QByteArray(4, '\0') + BigEndian(count) + BigEndian(firstFile);
}
