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
