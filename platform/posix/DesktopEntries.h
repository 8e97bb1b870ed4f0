// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The desktop's associations of file types with applications.
#pragma once

#include <QByteArrayList>
#include <QString>

#include <vector>

namespace DesktopEntries {

/// The commands, as program and arguments, that open a native path: the user's default application for its type first,
/// then the others that the desktop knows. Empty when there is none.
std::vector<QByteArrayList> CommandsFor(const QString& nativePath);

/// A desktop entry's Exec text for one file, as program and arguments.
QByteArrayList ExpandExec(const QString& exec, const QString& nativePath);

} // namespace DesktopEntries
