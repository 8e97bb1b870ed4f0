// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// How the commands for string tables read and write their files. Each failure names the file.
#pragma once

#include "app/cli/Command.h"
#include "csf/exchange/CsfExchange.h"
#include "csf/format/CsfTable.h"
#include "csf/format/CsfWhole.h"

#include <QString>

#include <optional>
#include <string>

/// A string table, and what its file has besides.
struct TableFile {
    CsfTable Table;
    std::optional<CsfWhole> Whole; ///< none of one that is read as 8-bit editors read it
    bool HasLanguage = true;       ///< false of a form that holds none
};

/// The flag for tables as 8-bit editors read and write them.
Parameter EightBit();

/// The option for the language's number.
Parameter CsfLanguage();

/// The option for the page of the games' own text, and what it says.
Parameter CodePageOption();
CsfExchange::Wishes WishesOf(const Arguments& given);

/// Reads the file or stream that a place of the command line names: a table, or by its ending a form of one.
TableFile ReadTableFile(const Arguments& given, const std::string& place);

/// The same; a file of nothing is a table of nothing.
TableFile ReadTableOrNothing(const Arguments& given, const std::string& place);

/// Writes a table: with all that its file had besides, or as 8-bit editors do where the flag is given. What no reader
/// would take back is refused before any file is touched.
void WriteTableFile(const Arguments& given, TableFile file);

/// Tells on standard error when an entry loses a letter: names are of eight bits, and texts too where that was asked.
void WarnOfLostLetters(const Arguments& given, const CsfString& entry);
