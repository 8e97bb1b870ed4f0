// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The text form in which registries are kept in files: exports of a Windows registry, and the hives of Wine. Both are
/// lines: a key in brackets, then its values as "name"=data. What is no such line is garbage, and harmless.
#pragma once

#include <QString>
#include <QStringView>

#include <optional>
#include <vector>

/// A value that was read, or is to be written.
struct RegistryValue {
    enum class Kind { Missing, Text, Number, Other };

    Kind Type = Kind::Missing;
    QString Text;       ///< of a REG_SZ, zero characters included
    quint32 Number = 0; ///< of a REG_DWORD
};

namespace RegistryText {

enum class Flavour {
    AnsiExport, ///< "REGEDIT4": hexadecimal texts hold bytes of the ANSI code page
    WideExport, ///< "Windows Registry Editor Version 5.00": hexadecimal texts hold UTF-16
    WineHive,   ///< UTF-16 too; controls, brackets and letters beyond ASCII are written as escapes
};

struct Line {
    enum class Kind { Other, Key, DeletedKey, Value, DeletedValue };

    Kind Type = Kind::Other;
    qsizetype Start = 0; ///< in the whole text
    qsizetype End = 0;   ///< behind the line's end, and behind that of the last line that continues it
    QString Key;         ///< the key that the line names or stands under; empty under a broken key line
    QString Name;        ///< the value's name; empty for a key's default value
    QStringView Data;    ///< what stands behind the '='; a view into the text
};

/// Takes a text apart. The lines cover all of it; they hold views into `text`, which must outlive them.
std::vector<Line> Parse(QStringView text, Flavour flavour);

/// The value that a line's data stand for: Other when its type is none of ours or it is garbage.
RegistryValue ValueOf(const Line& line, Flavour flavour);

/// A value as a line of an export, without the line's end.
QString Format(const QString& name, const RegistryValue& value, Flavour flavour);

/// A key's name with its escapes undone, from between a hive's brackets.
QString UnescapedKey(QStringView text);

} // namespace RegistryText
