// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Texts of the user's language, by key, read afresh from the language file at each use.
#pragma once

#include <QString>

namespace mTraduction {

/// The text of a key, with "\\n" turned into CR LF; the key itself when there is none, and a record in
/// localization.log. Never fails.
QString GetText(const QString& key);

} // namespace mTraduction
