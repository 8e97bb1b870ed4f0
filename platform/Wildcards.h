// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Patterns of file names.
#pragma once

#include <QStringView>

/// True when the whole name fits the pattern: '*' stands for any text, '?' for one character, letters without regard to
/// case. "*.*" and the empty pattern fit every name.
bool FitsPattern(QStringView name, QStringView pattern);

/// True when the text holds '*' or '?'.
bool IsPattern(QStringView text);

/// True when the whole text fits the pattern, letter by letter: '*' stands for any text, '?' for one character, '#' for
/// a digit, "[a-cx]" for one of those characters and "[!a-cx]" for any other one, "[]" for nothing. A dot is a dot.
/// Raises 93 for a bracket without its end and for a range that runs backwards.
bool IsLike(QStringView text, QStringView pattern);
