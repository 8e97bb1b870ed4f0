// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The user's choices: text values under one registry key, read and written live. A missing value is empty text.
#pragma once

#include <QString>

inline constexpr auto SettingsKey = u"Software\\Halvern\\Brindock\\2005";

/// Needs the shared registry object (mMain::UseRuntimes).
QString ReadSetting(const QString& key);
void WriteSetting(const QString& key, const QString& value);
