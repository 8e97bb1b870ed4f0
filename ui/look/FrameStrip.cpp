// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/look/FrameStrip.h"

#include "platform/File.h"
#include "platform/RuntimeError.h"

#include <QBuffer>
#include <QImageReader>
#include <QPainter>

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

constexpr int mostFrames = 1000;
constexpr int mostMilliseconds = 10000;
constexpr int mostScale = 8;
constexpr QByteArrayView signature("\x89PNG");
constexpr int mostPixels = 4096 * 4096;

/// A number between 1 and `most`; 0 for any other text.
int Number(const QImage& picture, const QString& field, int most) {
    const int number = picture.text(field).toInt();
    return number >= 1 && number <= most ? number : 0;
}

QImage PictureIn(const QString& path) {
    QByteArray bytes;
    Ignoring([&] { bytes = ReadWhole(path); });
    QBuffer buffer(&bytes);
    QImageReader reader(&buffer, "png");
    reader.setAutoDetectImageFormat(false);
    if (!bytes.startsWith(signature) || !buffer.open(QIODevice::ReadOnly))
        return {};
    const QSize size = reader.size();
    return size.isEmpty() || size.height() > mostPixels / size.width() ? QImage() : reader.read();
}

} // namespace

std::optional<FrameStrip> FrameStrip::Read(const QString& path) {
    const QImage picture = PictureIn(path);
    FrameStrip strip;
    strip.frames_ = Number(picture, u"Frames"_s, mostFrames);
    strip.milliseconds_ = Number(picture, u"Milliseconds"_s, mostMilliseconds);
    strip.scale_ = Number(picture, u"Scale"_s, mostScale);
    if (strip.frames_ == 0 || strip.milliseconds_ == 0 || strip.scale_ == 0 || picture.height() % strip.frames_ != 0)
        return std::nullopt;
    strip.strip_ = QPixmap::fromImage(picture);
    return strip;
}

QSizeF FrameStrip::Size() const {
    return QSizeF(QSize(strip_.width(), strip_.height() / frames_)) / scale_;
}

void FrameStrip::Paint(QPainter& painter, const QRectF& place, int frame) const {
    const int height = strip_.height() / frames_;
    const QRectF source(0, frame % frames_ * height, strip_.width(), height);
    QRectF target(QPointF(), Size());
    target.moveCenter(place.center());
    target.moveTopLeft({std::floor(target.left()), std::floor(target.top())}); // between no two pixels
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawPixmap(target, strip_, source);
}
