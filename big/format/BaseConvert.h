// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Number texts from one base to another, with the quirks that the file formats rely on.
#pragma once

#include <QString>

namespace mBIG {

/// "0" gives "0"; any other text of value zero gives empty text. Digits are 0-9 and A-Z. A digit whose addition would
/// pass 2147483647 is skipped. A target base of 0 gives decimal text.
QString BaseConvert(const QString& text, int sourceBase, int targetBase);

} // namespace mBIG
