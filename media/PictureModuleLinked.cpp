// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "media/PictureModule.h"

#include "media/PictureReaders.h"

QByteArray DecodePicture(const QByteArray& bytes, const QString& name) {
    return Pictures::ToBitmap(Pictures::Read(bytes, name));
}
