// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "media/PictureReaders.h"

QImage Pictures::ReadWithDevil(const QByteArray& /*bytes*/, const QString& /*name*/) {
    return {};
}
