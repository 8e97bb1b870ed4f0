// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Names as they are compared where case does not count.
#pragma once

#include <QString>

/// The same as QString::toCaseFolded, at a fraction of its time for the letters that most names are made of.
QString CaseFolded(const QString& text);
