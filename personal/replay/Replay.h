// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The header of a replay: its first 2,048 bytes, taken as one text of the ANSI code page in which the entries are
/// found by searching. Nothing beyond them is ever read.
///
/// A replay begins with its mark: "GENREP" (Generals and Zero Hour), "BFMEREPL" or "BFME2RPL". Somewhere behind it
/// stand the version as 16-bit text and, as 8-bit text, the match: `M=` the map, `S=` the slots joined by ":", each
/// entry ended by ";".
#pragma once

#include "core/Game.h"

#include <QByteArray>
#include <QDateTime>
#include <QHash>
#include <QLocale>
#include <QString>

struct Replay {
    QString Map;     ///< behind its first "/", the first letter a capital and all others small
    QString Slots;   ///< as they stand, without the ";" at their end
    int Players = 0; ///< slots that are not closed among the first eight, observers included
    QString Version;
};

namespace Replays {

inline constexpr qsizetype HeaderLength = 2048;
inline constexpr int CountedSlots = 8;

/// Whether a file of that name is taken for a replay: its last 3 characters are "rep" or its last 11 "bfme2replay", in
/// any case.
bool IsFileName(const QString& fileName);

/// The name without its extension: 12 characters less for one in "bfme2replay", else 4. Raises 5 when it is shorter.
QString NameOf(const QString& fileName);

/// ".BfME2Replay" for the second Battle for Middle-earth, ".rep" for all others.
QString Extension(GameIndex game);

/// Whether a header begins with one of the marks.
bool HasMark(const QByteArray& header);

/// Days in the system's short form, for one listing: thousands of files have few days between them.
class Dates {
public:
    /// The user's day of a point in time.
    QString Of(const QDateTime& time);

private:
    QLocale locale_ = QLocale::system();
    QHash<qint64, QString> texts_; ///< by day
};

/// What a header says; one that is shorter than HeaderLength counts as filled up with zeros. Each raises 5 or 9 for
/// what is missing or cut off, and fills in what stands before that.
void ReadMatch(const QByteArray& header, Replay& replay); ///< Map, Slots and Players
void ReadVersion(const QByteArray& header, Replay& replay);

} // namespace Replays
