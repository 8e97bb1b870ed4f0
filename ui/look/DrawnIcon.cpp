// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/look/DrawnIcon.h"

#include "ui/look/Picture.h"

#include <QApplication>
#include <QFile>
#include <QPainter>
#include <QPixmapCache>
#include <QStyle>
#include <QStyleOption>

#include <algorithm>
#include <array>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr std::array drawnSizes{16, 24, 32, 48, 64};

/// The picture in that many pixels.
QPixmap InSize(const QString& picture, int pixels) {
    const auto* const fitting = std::ranges::find_if(drawnSizes, [pixels](int drawn) { return drawn >= pixels; });
    const int drawn = fitting != drawnSizes.end() ? *fitting : drawnSizes.back();
    QPixmap pixmap = QPixmap::fromImage(Picture::Read(u":/art/icons/%1-%2.png"_s.arg(picture).arg(drawn)));
    return drawn == pixels ? pixmap : pixmap.scaled(pixels, pixels, Qt::KeepAspectRatio, Qt::SmoothTransformation);
}

} // namespace

DrawnIcon::DrawnIcon(QString picture, QString selectedPicture)
    : picture_(std::move(picture)),
      selectedPicture_(std::move(selectedPicture)) {}

QIcon DrawnIcon::Named(const QString& name) {
    return QIcon(new DrawnIcon(name, name)); // the icon owns it
}

bool DrawnIcon::Has(const QString& name) {
    return QFile::exists(u":/art/icons/%1-%2.png"_s.arg(name).arg(drawnSizes.front()));
}

void DrawnIcon::paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) {
    const qreal ratio = painter->device()->devicePixelRatioF();
    QPixmap shown = pixmap(rect.size() * ratio, mode, state);
    shown.setDevicePixelRatio(ratio);
    const QSizeF size = shown.deviceIndependentSize();
    painter->drawPixmap(
        QPointF(rect.x() + (rect.width() - size.width()) / 2, rect.y() + (rect.height() - size.height()) / 2), shown);
}

QPixmap DrawnIcon::pixmap(const QSize& size, QIcon::Mode mode, QIcon::State /*state*/) {
    const QString& picture = mode == QIcon::Selected ? selectedPicture_ : picture_;
    const int pixels = std::min(size.width(), size.height());
    const bool disabled = mode == QIcon::Disabled;
    const QString key = u"DrawnIcon/%1/%2/%3"_s.arg(picture).arg(pixels).arg(static_cast<int>(disabled));
    QPixmap shown;
    if (QPixmapCache::find(key, &shown))
        return shown;
    shown = InSize(picture, pixels);
    if (disabled) {
        QStyleOption option;
        option.palette = QApplication::palette();
        shown = QApplication::style()->generatedIconPixmap(QIcon::Disabled, shown, &option);
    }
    QPixmapCache::insert(key, shown);
    return shown;
}

QPixmap DrawnIcon::scaledPixmap(const QSize& size, QIcon::Mode mode, QIcon::State state, qreal /*scale*/) {
    return pixmap(size, mode, state);
}

QIconEngine* DrawnIcon::clone() const {
    return new DrawnIcon(*this);
}
