// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/Picture.h"

#include <array>

using namespace Qt::StringLiterals;

namespace {

struct Rendering {
    qreal Scale;
    QLatin1StringView Suffix;
};

constexpr std::array renderings{Rendering{1.0, ""_L1}, Rendering{1.5, "@1.5x"_L1}, Rendering{2.0, "@2x"_L1},
                                Rendering{3.0, "@3x"_L1}};

} // namespace

QPixmap Picture::Load(const QString& name, qreal ratio) {
    Rendering chosen = renderings.back();
    for (const Rendering& rendering : renderings) {
        if (rendering.Scale >= ratio) {
            chosen = rendering;
            break;
        }
    }
    // Read as an image: a pixmap loaded by name would guess its ratio from an "@" in it.
    QImage image;
    image.load(u":/art/%1%2.png"_s.arg(name, chosen.Suffix));
    image.setDevicePixelRatio(chosen.Scale);
    return QPixmap::fromImage(std::move(image));
}

QIcon Picture::Icon(const QString& name) {
    QIcon icon;
    for (const Rendering& rendering : renderings)
        icon.addPixmap(Load(name, rendering.Scale));
    return icon;
}

QIcon Picture::ProgramIcon() {
    QIcon icon;
    for (const int size : {16, 24, 32, 48, 64, 128, 256})
        icon.addFile(u":/art/brindock-%1.png"_s.arg(size), QSize(size, size));
    return icon;
}
