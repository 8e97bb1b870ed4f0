// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The formats of CsfExchange, one a file.
#pragma once

#include "csf/exchange/CsfExchange.h"

#include <QStringView>

namespace CsfFormats {

QByteArray ToJson(const CsfTable& table);
QByteArray ToCsv(const CsfTable& table, QChar separator);
/// `source` is the table that was translated, where there is one.
QByteArray ToPo(const CsfTable& table, const CsfTable* source = nullptr);
QByteArray ToStr(const CsfTable& table, int page);

CsfTable FromJson(const QByteArray& bytes);
CsfTable FromCsv(const QString& text, QStringList* notes);
CsfTable FromPo(const QByteArray& bytes, QStringList* notes = nullptr);
CsfTable FromStr(const QByteArray& bytes, int page);

/// Raises 13 for a line, counted from 1.
[[noreturn]] void Refuse(qsizetype line, const QString& reason);

/// A language's number out of a text. Raises 13 for what is none.
int LanguageNumber(QStringView text, qsizetype line);

} // namespace CsfFormats
