// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// What whoever reads a report asks first: the version, the system, and the games that were found.
#pragma once

#include <QByteArrayView>
#include <QString>

namespace ReportDetails {

/// A line each, in English whatever the user's language, as reports go to the makers. `display` tells the screen. The
/// user's home folder is written as "~". Never fails.
QString Text(const QString& display);

/// "1.8.0.0" of the version that a Windows program's bytes hold; empty where they hold none.
QString ProgramVersion(QByteArrayView program);

} // namespace ReportDetails
