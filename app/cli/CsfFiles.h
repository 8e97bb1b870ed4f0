// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// How the commands for string tables read and write their files. Each failure names the file.
#pragma once

#include "csf/format/CsfTable.h"

#include <QString>

#include <string>

/// A string table.
CsfTable ReadTableArgument(const std::string& argument);

/// Writes a string table; what no reader would take back is refused before any file is touched.
void WriteTableFile(const QString& path, const CsfTable& table);
