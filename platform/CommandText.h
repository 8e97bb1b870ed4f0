// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Command texts, taken apart as the system's own start-up code does it.
#pragma once

#include <QString>
#include <QStringList>

namespace CommandText {

struct Parts {
    QString Program; ///< without quotes
    QString Rest;    ///< as it stands, without the blanks before it
};

/// The program, in quotes or up to the first blank, and what follows it.
Parts Split(const QString& command);

/// The arguments in a text: parted by blanks, joined by double quotes, a backslash before a quote taking its meaning.
QStringList Arguments(const QString& text);

} // namespace CommandText
