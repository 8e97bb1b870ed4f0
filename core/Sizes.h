// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Numbers as the windows show them.
#pragma once

#include <QString>

namespace Sizes {

/// "#,##0" with the user's mark between the thousands, whatever groups the locale itself would make.
QString Grouped(qint64 number);

/// Of two counts of bytes; what files tell of themselves may add up to more than there is.
qint64 Sum(qint64 left, qint64 right);

/// Whole kilobytes of 1024 bytes, cut, with the user's word for them. Less than one is 0.
QString KiloBytes(qint64 bytes);

} // namespace Sizes
