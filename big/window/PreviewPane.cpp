// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "big/window/PreviewPane.h"

#include "big/document/PictureRows.h"
#include "big/window/PictureLink.h"
#include "media/PictureView.h"
#include "media/SoundPane.h"
#include "ui/look/Style.h"
#include "ui/window/SideMenu.h"

#include <QLabel>

using namespace Qt::StringLiterals;

void PreviewPane::Use(SoundPlayer* player) {
    findChild<SoundPane*>(u"MediaPlayer1"_s)->Use(player);
}

void PreviewPane::Dress() {
    auto* const link = new PictureLink(findChild<PictureView*>(u"Image8"_s));
    connect(link, &PictureLink::clicked, this, &PreviewPane::PictureWanted);
    findChild<QWidget*>(u"lblPicture"_s)->setFont(Style::TextFont(7.5)); // as quiet as it is narrow
}

void PreviewPane::Follow(const PreviewState& state) {
    setFixedHeight(state.GroupHeight - SideGroup::HeadingHeight);
    // The height decides what is seen: below it a picture would be cut.
    findChild<QWidget*>(u"Picture1"_s)->setVisible(state.PictureShown && state.GroupHeight == Preview::PictureHeight);
    findChild<QWidget*>(u"MediaPlayer1"_s)->setVisible(state.PlayerShown && state.GroupHeight == Preview::SoundHeight);
    TellPicture(state);
    if (state.Bitmap.constData() != shown_.constData())
        ShowPicture(state);
}

void PreviewPane::TellPicture(const PreviewState& state) {
    auto* const told = findChild<QLabel*>(u"lblPicture"_s);
    told->setVisible(findChild<QWidget*>(u"Picture1"_s)->isVisibleTo(this));
    told->setText(PictureRows::Facts(state));
}

void PreviewPane::ShowPicture(const PreviewState& state) {
    shown_ = state.Bitmap; // kept, so that its place in memory means this one
    const QImage picture = QImage::fromData(shown_, "BMP");
    if (picture.isNull())
        return;
    auto* const whole = findChild<PictureView*>(u"Image13"_s);
    whole->resize(picture.size());
    whole->SetPicture(picture);
    auto* const view = findChild<PictureView*>(u"Image8"_s);
    view->setFixedSize(state.PictureSize);
    view->SetPicture(picture);
}
