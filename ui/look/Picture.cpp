// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/look/Picture.h"

#include <QImageReader>
#include <QResource>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

struct Rendering {
    qreal Scale;
    QLatin1StringView Suffix;
};

constexpr std::array renderings{Rendering{1.0, ""_L1}, Rendering{1.5, "@1.5x"_L1}, Rendering{2.0, "@2x"_L1},
                                Rendering{3.0, "@3x"_L1}};

Rendering RenderingFor(qreal ratio) {
    const auto* const found = std::find_if(renderings.begin(), renderings.end(),
                                           [&](const Rendering& rendering) { return rendering.Scale >= ratio; });
    return found != renderings.end() ? *found : renderings.back();
}

QString FileOf(const QString& name, const Rendering& rendering) {
    return u":/art/%1%2.png"_s.arg(name, rendering.Suffix);
}

/// The menu's picture at scale 1 lies there as its pixels: nothing has to be read before the first window.
QImage MenuPixels() {
    constexpr QSize size(600, 420);
    const QResource pixels(u":/art/menu.bgra"_s);
    Q_ASSERT(pixels.size() == qint64{4} * size.width() * size.height());
    return {pixels.data(), size.width(), size.height(), QImage::Format_RGB32};
}

} // namespace

QImage Picture::Read(const QString& file) {
    QImageReader reader(file, "png");
    reader.setAutoDetectImageFormat(false);
    return reader.read();
}

QPixmap Picture::Load(const QString& name, qreal ratio) {
    const Rendering rendering = RenderingFor(ratio);
    const bool pixels = name == u"menu" && rendering.Suffix.isEmpty();
    QImage image = pixels ? MenuPixels() : Read(FileOf(name, rendering));
    image.setDevicePixelRatio(rendering.Scale);
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
