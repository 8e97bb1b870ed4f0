// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// What the writer and the reader of PO catalogues agree on.
#pragma once

#include <QString>

#include <array>
#include <optional>

namespace CsfPo {

/// The field of the head that holds the language's number; by it an exported catalogue is known.
inline constexpr QLatin1StringView LanguageField("X-CSF-Language:");

/// The comments of an entry that is another string of the label before it, and of one with extra data: a quoted text.
inline constexpr QLatin1StringView MoreComment("#. more");
inline constexpr QLatin1StringView ExtraComment("#. extra:");

/// The comments of an entry whose translation is the empty text, of one that only the table has, and of one that only
/// the source has: without a translation it is none of the table's.
inline constexpr QLatin1StringView EmptyComment("#. empty");
inline constexpr QLatin1StringView TableOnlyComment("#. only in this table");
inline constexpr QLatin1StringView SourceOnlyComment("#. only in the source");

struct Escape {
    char Letter; ///< behind the backslash
    char Code;   ///< what it stands for
};

inline constexpr std::array<Escape, 9> Escapes{{{'n', '\n'},
                                                {'t', '\t'},
                                                {'r', '\r'},
                                                {'a', '\a'},
                                                {'b', '\b'},
                                                {'f', '\f'},
                                                {'v', '\v'},
                                                {'\\', '\\'},
                                                {'"', '"'}}};

/// The context of a name that comes for the `occurrence`-th time, from 1 on. Contexts have to differ: behind a name
/// that comes again stands its number in lowered digits, which no name can hold.
QString ContextOf(const QString& name, int occurrence);

/// The name out of a context of an exported catalogue.
QString NameOf(const QString& context);

/// The code that gettext has for a table's language; empty for a number without one.
QString LanguageCode(int language);

/// The number for a code as "fr", "fr_CA" or "fr-CA"; nothing for one that has none.
std::optional<int> LanguageOf(QStringView code);

/// Whether a text holds placeholders, and gettext takes all that look so for those of C's printf: "%hs" is none.
bool IsCFormat(const QString& text);

/// gettext ends a text at the character 0 and keeps 4 for itself: their pictures stand for them, and behind the picture
/// of the escape character each of the three for itself.
QString WithPictures(QString text);
QString WithoutPictures(QString text);

} // namespace CsfPo
