// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The order of Windows' own folders, in which the games' files are listed on every system: by name, capitals and small
/// letters alike.
#pragma once

#include <QString>
#include <QStringList>

namespace NameOrder {

/// Capitals stand for both, so that "_" comes behind the letters; names that differ in nothing else are apart too.
bool IsBefore(const QString& first, const QString& second);

void Sort(QStringList& names);

} // namespace NameOrder
