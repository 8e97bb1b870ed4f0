// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The names of a ZIP archive's entries as text.
#pragma once

#include <QByteArrayView>
#include <QString>

namespace ZipNames {

/// What a record of the central directory tells of how its name is written.
struct Origin {
    int Host = 0;                    ///< the system that the entry was made on
    quint32 Attributes = 0;          ///< the external ones
    bool IsUtf8 = false;             ///< the flag that says so
    QByteArrayView ExtraFields = {}; ///< may hold the name once more, in UTF-8
};

/// UTF-8 where that is told and true. Else, what was made on FAT without any attributes is in the ANSI code page, what
/// other DOS systems made in code page 437, and all else in UTF-8 where it is valid, or in the ANSI code page. No two
/// names of one kind become one. Names of FAT that hold no slash have one for each backslash.
QString Decode(QByteArrayView raw, const Origin& origin);

/// A field of the extra ones by its number; empty when it is not there.
QByteArrayView Field(QByteArrayView extraFields, quint16 number);

} // namespace ZipNames
