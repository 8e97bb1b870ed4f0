// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// String tables as texts that other programs read and version control compares: JSON, CSV and PO, all in UTF-8, and
/// the games' own text form. What was exported comes back the same as far as the form can hold it: order, duplicate and
/// empty names, every character, line breaks, language and extra data.
#pragma once

#include "csf/format/CsfTable.h"

#include <QByteArray>
#include <QString>

#include <optional>

namespace CsfExchange {

enum class Format {
    Json, ///< an object with "language" and "strings", those with "name", "value" and where they have it "extra"
    Csv,  ///< RFC 4180: name, value, and extra data where any has it; the head's second field is "language" and its
          ///< number
    Po,   ///< gettext: name as context, value as source text; a translation that is there and not fuzzy counts instead
    Str,  ///< the games' own: a name, the quoted value and END; without language and extra data, and names differ in
          ///< more than their case
};

/// By the extension of a file's name, in any case.
std::optional<Format> FormatOf(const QString& path);

QByteArray Export(const CsfTable& table, Format format);

/// Raises 13 with the reason, and the line where there is one.
CsfTable Import(const QByteArray& bytes, Format format);

/// Line feed, tab, carriage return and backslash as `\n`, `\t`, `\r` and `\\`, other control characters as `\x1b`, for
/// texts on one line.
QString Escaped(const QString& text);
/// The way back; any other backslash stands for itself.
QString Unescaped(const QString& text);

} // namespace CsfExchange
