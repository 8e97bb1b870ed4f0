// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "big/PictureModule.h"

#include "platform/Paths.h"

#include <QLibrary>

using namespace Qt::StringLiterals;

QByteArray DecodePicture(const QByteArray& bytes, const QString& name) {
    using Entry = void (*)(const QByteArray*, const QString*, QByteArray*);
    static const auto entry = [] {
        const QString program = Paths::Executable();
        QLibrary module(Paths::ToNative(program.first(program.lastIndexOf(u'\\') + 1) + u"brindock-pictures.so"_s));
        return reinterpret_cast<Entry>(module.resolve("BrindockDecodePicture"));
    }();
    QByteArray bitmap;
    if (entry != nullptr)
        entry(&bytes, &name, &bitmap);
    return bitmap;
}
