// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/window/BusyAnimation.h"

#include "platform/Paths.h"
#include "ui/look/DrawnIcon.h"

#include <QMovie>
#include <QPainter>

#include <cmath>
#include <numbers>

using namespace Qt::StringLiterals;

namespace {

constexpr int milliseconds = 40;
constexpr int stepsOfARound = 60;
constexpr int sheets = 3;
constexpr int folderSize = 48;
constexpr int sheetSize = 24;

} // namespace

BusyAnimation::BusyAnimation(QWidget* parent) : QWidget(parent) {
    startTimer(milliseconds);
}

BusyAnimation::~BusyAnimation() = default;

void BusyAnimation::Load(const QString& path) {
    auto movie = std::make_unique<QMovie>(Paths::ToNative(path));
    if (!movie->isValid())
        return;
    movie_ = std::move(movie);
    connect(movie_.get(), &QMovie::frameChanged, this, [this] { update(); });
    movie_->start();
}

void BusyAnimation::timerEvent(QTimerEvent* /*event*/) {
    step_ = (step_ + 1) % stepsOfARound;
    if (!PlaysFile())
        update();
}

void BusyAnimation::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    if (PlaysFile()) {
        const QPixmap frame = movie_->currentPixmap();
        painter.drawPixmap((width() - frame.width()) / 2, (height() - frame.height()) / 2, frame);
        return;
    }
    const QRectF from(width() * 0.18 - folderSize / 2.0, (height() - folderSize) / 2.0, folderSize, folderSize);
    const QRectF to = from.translated(width() * 0.64, 0);
    DrawnIcon::Named(u"folder-open"_s).paint(&painter, from.toRect());
    DrawnIcon::Named(u"archive"_s).paint(&painter, to.toRect());
    const QIcon sheet = DrawnIcon::Named(u"file"_s);
    for (int number = 0; number < sheets; ++number) {
        const double part = std::fmod((step_ + number * stepsOfARound / double(sheets)) / stepsOfARound, 1.0);
        const double lift = std::sin(part * std::numbers::pi);
        const QPointF middle(from.center().x() + (to.center().x() - from.center().x()) * part,
                             from.center().y() - lift * (height() - sheetSize) / 2.0 + 4);
        painter.setOpacity(std::min(1.0, lift * 2));
        sheet.paint(&painter,
                    QRect((middle - QPointF(sheetSize, sheetSize) / 2).toPoint(), QSize(sheetSize, sheetSize)));
    }
}
