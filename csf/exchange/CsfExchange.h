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
    Csv,  ///< RFC 4180, or with semicolons or tabs, also in UTF-16: name, value, and extra data where any has it; the
          ///< head's second field is "language" and its number
    Po,   ///< gettext: name as context, value as source text; a translation that is there and not fuzzy counts instead
    Str,  ///< the games' own: a name, the quoted value and END; without language and extra data, and names differ in
          ///< more than their case
};

/// By the extension of a file's name, in any case.
std::optional<Format> FormatOf(const QString& path);

struct Wishes {
    int Page = 1252;                  ///< of the games' own text where it is not UTF-8
    QChar Separator = u',';           ///< between the fields of a CSV
    const CsfTable* Source = nullptr; ///< of a PO: what was translated. Its texts are the source texts then, and those
                                      ///< of the table the translations; what only one of the two has is marked
};

QByteArray Export(const CsfTable& table, Format format, const Wishes& wishes = {});

/// Raises 13 with the reason, and the line where there is one; 5 for a page that the system lacks, as Export does. What
/// is passed over is told in `notes`, where there are any.
CsfTable Import(const QByteArray& bytes, Format format, QStringList* notes = nullptr, const Wishes& wishes = {});

/// Line feed, tab, carriage return and backslash as `\n`, `\t`, `\r` and `\\`, other control characters as `\x1b`, for
/// texts on one line.
QString Escaped(const QString& text);
/// The way back; any other backslash stands for itself.
QString Unescaped(const QString& text);

} // namespace CsfExchange
