// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The one function of the module that PictureModuleLoaded looks up.
#include "media/PictureReaders.h"

extern "C" Q_DECL_EXPORT void BrindockDecodePicture(const QByteArray* bytes, const QString* name, QByteArray* bitmap) {
    *bitmap = Pictures::ToBitmap(Pictures::Read(*bytes, *name));
}
