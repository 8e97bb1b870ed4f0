// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "personal/window/MapPane.h"

#include "media/PictureView.h"
#include "personal/document/PersonalFiles.h"
#include "ui/window/SideMenu.h"

using namespace Qt::StringLiterals;

namespace {
constexpr int sideMargins = 16;
constexpr int pictureHeight = 150; ///< what the name, the size and the margins leave
} // namespace

void MapPane::ShowPicture(const QByteArray& bitmap) {
    const QImage picture = QImage::fromData(bitmap, "BMP");
    if (picture.isNull())
        return;
    picture_ = picture.size();
    findChild<PictureView*>(u"Image2"_s)->SetPicture(picture);
    FitPicture();
}

void MapPane::SetGroupHeight(int height) {
    setFixedHeight(qMax(0, height - SideGroup::HeadingHeight));
    findChild<PictureView*>(u"Image2"_s)->setVisible(height >= PersonalFiles::MapPaneWithPicture);
}

void MapPane::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    FitPicture();
}

// As large as there is room, in its own shape.
void MapPane::FitPicture() {
    const QSize room(qMax(0, width() - sideMargins), pictureHeight);
    findChild<PictureView*>(u"Image2"_s)->setFixedSize(picture_.scaled(room, Qt::KeepAspectRatio));
}
