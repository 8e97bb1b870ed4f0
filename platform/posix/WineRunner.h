// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// What runs a Windows program in a Wine prefix.
#pragma once

#include <QByteArrayList>
#include <QString>
#include <QStringList>

struct WineRunner {
    QStringList Words;          ///< what stands before the program and its arguments
    QByteArrayList Environment; ///< variables as "NAME=value", in place of those of the same name

    /// BRINDOCK_WINE, else what the prefix's own launcher uses for it, else the system's `wine`.
    static WineRunner For(const QString& prefix);
};
