// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Folders that hold a file of their own name, as maps do: found with one look at each.
#pragma once

#include <QString>
#include <QStringList>

/// The names of the folders in a folder (an inside path, with or without its trailing backslash) that hold a file of
/// their own name and `ending`, as in "Name\Name.map", without regard to case; links are followed. In the directory's
/// order; empty when the folder can't be listed.
QStringList FoldersWithNamesake(const QString& folder, const QString& ending);
