// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The bytes of a CSF file, put on a device.
#pragma once

#include "csf/format/CsfTable.h"

#include <QByteArray>

#include <span>

class Device;

namespace CsfWriting {

/// Four bytes, of which the first is the character of that code. Raises 5 when there is none.
QByteArray LanguageField(int language);

/// Writes the 24 bytes before the records. Raises 9 for a count of none, when the first 8 bytes are written.
void WriteHeader(Device& device, std::size_t count, const QByteArray& language);

/// Writes the records behind the header; returns where they end.
qint64 WriteRecords(Device& device, std::span<const CsfString> strings);

} // namespace CsfWriting
