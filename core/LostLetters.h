// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Letters that the games' 8-bit texts lack and that become '?' there: shown so at once, told, and asked about before
/// they are saved.
#pragma once

#include <QString>
#include <QStringList>

namespace LostLetters {

/// The text as it comes back out of a file.
QString AsStored(const QString& text);

/// The strip's line for what has lost letters; empty for nothing.
QString Told(const QStringList& lost);

/// The question before a save, which Cancel is the usual answer to; nothing is asked when nothing is lost. `question`
/// is its text's key.
bool MaySave(const QStringList& lost, const QString& question = QStringLiteral("SaveLosesLetters"));

/// The one name of a list, or how many there are.
QString NameOrCount(const QStringList& names);

} // namespace LostLetters
