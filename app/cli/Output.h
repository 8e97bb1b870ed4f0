// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// What the commands of brindock-cli print, and how they fail.
#pragma once

#include "platform/RuntimeError.h"

#include <QByteArrayView>
#include <QString>
#include <QStringList>
#include <QStringView>

#include <span>
#include <string>

/// Prints one line on standard output, in UTF-8; a name that is no text comes out with the bytes that it has. Lines are
/// gathered: Flush hands over the last ones.
void Print(const QString& line);

/// Prints a name behind plain letters, which are at hand as bytes; a name's control characters come out as InLine has
/// them.
void Print(QByteArrayView head, const QString& name);

/// A name as it stands in a line: a line break or another control character in it comes out as "\x0A".
QString InLine(const QString& name);

/// Prints a row: its columns with tabs between them. A tab, a line break or another control character in a column comes
/// out as a blank, so that a row stays a line.
void PrintRow(const QStringList& columns);
void PrintRow(std::span<const QStringView> columns);

/// Raises when standard output takes no more.
void Flush();

/// Ends the program with an exit code, once everything is printed; a code that tells of a failure with the refusals.
[[noreturn]] void EndWith(int exitCode);

/// Ends the command: `file` and the reason stand on standard error, and the exit code is 1.
[[noreturn]] void Fail(const QString& file, const QString& reason);

/// Tells a failure in one line on standard error and returns the exit code 1.
int Report(const RuntimeError& error);

/// Tells what the system refused on the way and no line told yet; false when it refused nothing.
bool ReportRefusals();

/// The text of an argument of the command line.
QString ArgumentText(const std::string& argument);

/// The inside path of a file or folder that an argument names.
QString ArgumentPath(const std::string& argument);
