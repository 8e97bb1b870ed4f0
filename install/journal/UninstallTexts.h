// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// What a person is shown of an uninstallation.
#pragma once

#include "install/journal/Uninstall.h"

namespace UninstallTexts {

/// A path as the system writes it, from the game's own folder or the user's folder of that game on.
QString Shown(const QString& path, GameIndex game);

/// The question with its lists, each cut after some lines with a count of the rest. Line breaks are CR LF.
QString Question(const UninstallPlan& plan);

/// What could not be done, cut the same way.
QString Failed(const QStringList& failures);

} // namespace UninstallTexts
