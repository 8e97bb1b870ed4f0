// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// How the commands for string tables read and write their files. Each failure names the file.
#pragma once

#include "csf/exchange/CsfExchange.h"

#include <QByteArray>
#include <QString>

#include <string>

/// A string table.
CsfTable ReadTableArgument(const std::string& argument);

/// Writes a string table; what no reader would take back is refused before any file is touched.
void WriteTableFile(const QString& path, CsfTable table);

/// The bytes of a file.
QByteArray ReadWholeFile(const QString& path);

/// Writes a file aside and puts it in place.
void WriteWholeFile(const QString& path, const QByteArray& bytes);
