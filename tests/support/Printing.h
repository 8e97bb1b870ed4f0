// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// How a failed comparison of texts is told.
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <ostream>

inline void PrintTo(const QString& text, std::ostream* out) {
    *out << '"' << text.toStdString() << '"';
}

inline void PrintTo(const QStringList& texts, std::ostream* out) {
    *out << '"' << texts.join(u"\", \"").toStdString() << '"';
}

inline void PrintTo(const QByteArray& bytes, std::ostream* out) {
    *out << '"' << bytes.toPercentEncoding(" \t").constData() << '"';
}
