// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Numbers as the windows show them.
#pragma once

#include <QString>

namespace Sizes {

/// "#,##0" with the user's mark between the thousands, whatever groups the locale itself would make.
QString Grouped(qint64 number);

/// Whole kilobytes of 1024 bytes, cut, with the user's word for them. Less than one is 0.
QString KiloBytes(qint64 bytes);

} // namespace Sizes
