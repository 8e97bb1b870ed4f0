// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// File dialog filters, from "text|pattern|text|pattern" to the form that the toolkit takes.
#pragma once

#include <QString>
#include <QStringList>

/// "BIG files (*.big)|*.big|All|*.*" becomes "BIG files (*.big)" and "All (*)". Several patterns stand with semicolons
/// between them. A text without a pattern is left out.
QStringList ToNameFilters(const QString& filter);
