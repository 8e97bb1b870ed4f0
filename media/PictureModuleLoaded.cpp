// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "media/ModuleLoader.h"
#include "media/PictureModule.h"

using namespace Qt::StringLiterals;

QByteArray DecodePicture(const QByteArray& bytes, const QString& name) {
    using Entry = void (*)(const QByteArray*, const QString*, QByteArray*);
    static const auto entry = reinterpret_cast<Entry>(ModuleEntry(u"brindock-pictures"_s, "BrindockDecodePicture"));
    QByteArray bitmap;
    if (entry != nullptr)
        entry(&bytes, &name, &bitmap);
    return bitmap;
}
