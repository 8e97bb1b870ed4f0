// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Texts as the games' data have them, from a seed: definitions, scripts, windows, string tables, notes.
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <vector>

namespace Demo {

/// A made-up name of one or two words, such as "Amber Lancer".
QString UnitName(quint64 seed);

/// A made-up name of a place, now and then with accented letters.
QString PlaceName(quint64 seed);

/// Object definitions, at least `size` bytes of them, lines ended by CR LF.
QByteArray IniText(quint64 seed, qsizetype size);

/// A window's layout.
QByteArray WindowText(quint64 seed);

/// A shader's source.
QByteArray ShaderText(quint64 seed);

/// A map's own settings, and its texts as a ".str" file.
QByteArray MapIni(quint64 seed);
QByteArray MapStr(const QString& mapName);

/// A note to the reader in the ANSI code page, with accented letters.
QByteArray ReadMe(const QString& title);

struct CsfEntry {
    QString Name;
    QString Value; ///< line breaks as "\n"; any 16-bit characters
};

/// A string table. `language` is the number that the head ends with.
QByteArray Csf(int language, const std::vector<CsfEntry>& entries);

/// Labels and texts in English (0) or French (3), accented letters and line breaks among them.
std::vector<CsfEntry> CsfEntries(int language, int count, quint64 seed);

} // namespace Demo
