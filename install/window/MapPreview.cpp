// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "install/window/MapPreview.h"

#include "core/mTraduction.h"
#include "media/PictureView.h"
#include "ui/look/ForReaders.h"

using namespace Qt::StringLiterals;

MapPreview::MapPreview(QWidget* parent) : QWidget(parent), image_(new PictureView(this)) {
    image_->setObjectName(u"Image1"_s);
    ForReaders::SetRole(*image_, QAccessible::Graphic);
    image_->setAccessibleName(mTraduction::GetText(u"Map"_s));
    image_->hide();
}

void MapPreview::ShowPicture(const QByteArray& bitmap) {
    const QImage picture = QImage::fromData(bitmap, "BMP");
    picture_ = picture.size();
    image_->SetPicture(picture);
    image_->setVisible(!picture.isNull());
    Fit();
}

void MapPreview::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    Fit();
}

// Small pictures stay as they are drawn: up to twice their size looks well.
void MapPreview::Fit() {
    constexpr int mostEnlarged = 2;
    const QSize room = size().boundedTo(picture_ * mostEnlarged);
    const QSize fitting = picture_.scaled(room, Qt::KeepAspectRatio);
    image_->setGeometry(QRect(QPoint((width() - fitting.width()) / 2, 0), fitting));
}
