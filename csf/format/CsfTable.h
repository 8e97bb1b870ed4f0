// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// A CSF string table as a value: made, read, changed and written without a window and apart from the open one.
///
/// A CSF file is a header of 24 bytes (" FSC", version, two counts, a reserved field, language) and records: a label
/// (" LBL", 1, name length, name in the ANSI code page) followed by its string (" RTS", length in characters, UTF-16
/// little-endian with every bit inverted). Numbers are little-endian. Only the low byte of a character is kept.
#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QString>

#include <optional>
#include <vector>

class Device;

struct CsfString {
    QString Value; ///< one character for each 16-bit unit of the file; line breaks are line feeds
    QString Name;  ///< the label's name

    /// What a reader of whole tables finds besides: data that comes with the string, and that it belongs to the label
    /// of the string before it.
    std::optional<QByteArray> Extra{};
    bool IsMore = false;

    bool operator==(const CsfString&) const = default;
};

struct CsfTable {
    /// The most strings that a file can have and still be read.
    static constexpr int MaximumStrings = 32767;

    int Language = 0;
    std::vector<CsfString> Strings; ///< in the file's order

    /// The table in a file's bytes, with the language as the suite reads it: 10 is 16. Raises 13 for another file mark,
    /// 9 for a file that ends too early or holds no string, 6 for too many strings.
    static CsfTable Read(QByteArrayView bytes);
    static CsfTable Read(const Device& device);
    /// The same for a file; what can't be opened or read is refused with its name.
    static CsfTable Read(const QString& path);

    /// Writes the table from the device's beginning on. Raises 5 for a language that no byte holds, 9 for a table
    /// without strings and 6 for one that no reader would take back, before anything is written; and what the device
    /// raises.
    void Write(Device& device) const;
    /// The same for a file, which keeps its permissions, and its owner as far as that is allowed: what stands there is
    /// aside as ".sav" until the new one is whole. Raises 70 for a write-protected file and 58 for a ".sav" that stands
    /// there already, before anything is touched; what fails later names the ".sav" that it leaves.
    void Write(const QString& path) const;

    bool operator==(const CsfTable&) const = default;
};
