// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "big/window/PictureLink.h"

#include "core/mTraduction.h"
#include "ui/look/NameTip.h"
#include "ui/skin/SkinPainter.h"

#include <QPainter>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

PictureLink::PictureLink(QWidget* covered) : QAbstractButton(covered) {
    covered->setAttribute(Qt::WA_TransparentForMouseEvents, false);
    setObjectName(u"cmdPicture"_s);
    setCursor(Qt::PointingHandCursor);
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
    NameTip::Give(*this, mTraduction::GetText(u"ShowPicture"_s));
    auto* const whole = new QVBoxLayout(covered);
    whole->setContentsMargins(0, 0, 0, 0);
    whole->addWidget(this);
}

void PictureLink::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    if (hasFocus())
        Skin::PaintFocus(painter, rect());
}

bool PictureLink::event(QEvent* event) {
    return enter_.Takes(*event, *this) || QAbstractButton::event(event);
}
