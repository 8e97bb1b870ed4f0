// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/window/SideMenu.h"

#include "ui/look/Drawing.h"
#include "ui/look/Style.h"
#include "ui/skin/SkinPainter.h"
#include "ui/skin/xpMenu.h"

#include <QMouseEvent>
#include <QPainter>

namespace {

constexpr int linkPicture = 16;
constexpr int linkPadding = 4;
constexpr int textIndent = linkPadding + linkPicture + 8;

} // namespace

SidePane::SidePane(QWidget* parent) : QWidget(parent) {
    setMouseTracking(true);
}

void SidePane::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    DrawGradient(painter, rect(), Style::Colour::SideMenuTop, Style::Colour::SideMenuBottom);
}

void SidePane::mouseMoveEvent(QMouseEvent* event) {
    QWidget::mouseMoveEvent(event);
    Q_EMIT MouseMoved();
}

SideGroup::SideGroup(QWidget* parent) : QWidget(parent), heading_(new xpMenu(this)) {
    setMouseTracking(true);
    setContentsMargins(0, HeadingHeight, 0, 0);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
    connect(heading_, &QAbstractButton::toggled, this, [this](bool open) { SetFolded(!open); });
}

QString SideGroup::Caption() const {
    return heading_->text();
}

void SideGroup::SetCaption(const QString& caption) {
    heading_->SetCaption(caption);
}

bool SideGroup::IsFolded() const {
    return !heading_->isChecked();
}

void SideGroup::SetFolded(bool folded) {
    heading_->setChecked(!folded);
    // Children out of sight leave the tab order too.
    for (QWidget* child : findChildren<QWidget*>(Qt::FindDirectChildrenOnly))
        if (child != heading_)
            child->setVisible(!folded);
    setMaximumHeight(folded ? HeadingHeight : QWIDGETSIZE_MAX);
    updateGeometry();
}

// Forms order the links and know of no headings: these would come where they were made, behind all else.
bool SideGroup::event(QEvent* event) {
    if (event->type() == QEvent::Polish) {
        QWidget* first = heading_->nextInFocusChain();
        while (first != heading_ && (!isAncestorOf(first) || (first->focusPolicy() & Qt::TabFocus) == 0))
            first = first->nextInFocusChain();
        if (first != heading_ && first->previousInFocusChain() != heading_)
            setTabOrder(first->previousInFocusChain(), heading_);
    }
    return QWidget::event(event);
}

void SideGroup::paintEvent(QPaintEvent* /*event*/) {
    if (IsFolded())
        return;
    QPainter painter(this);
    painter.setPen(Qt::white);
    painter.setBrush(QColor(240, 245, 255));
    painter.drawRect(rect().adjusted(0, HeadingHeight / 2, -1, -1));
}

void SideGroup::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    heading_->setGeometry(0, 0, width(), HeadingHeight);
}

SideLink::SideLink(QWidget* parent) : QAbstractButton(parent) {
    setMouseTracking(true);
    setCursor(Qt::PointingHandCursor);
    setFocusPolicy(Qt::StrongFocus);
    setIconSize(QSize(linkPicture, linkPicture));
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

void SideLink::SetUnderlined(bool underlined) {
    underlined_ = underlined;
    update();
}

QSize SideLink::sizeHint() const {
    const QFontMetrics metrics(Style::LinkFont(false));
    return {textIndent + metrics.horizontalAdvance(text()) + linkPadding, qMax(linkPicture, metrics.height()) + 6};
}

void SideLink::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRect picture(linkPadding, (height() - linkPicture) / 2, linkPicture, linkPicture);
    icon().paint(&painter, picture, Qt::AlignCenter, isEnabled() ? QIcon::Normal : QIcon::Disabled);
    painter.setFont(Style::LinkFont(underlined_ && isEnabled()));
    painter.setPen(isEnabled() ? Style::Colour::Link : Style::Colour::DisabledText);
    painter.drawText(rect().adjusted(textIndent, 0, -linkPadding, 0), Qt::AlignVCenter | Qt::AlignLeft, text());
    if (hasFocus())
        Skin::PaintFocus(painter, rect());
}

void SideLink::mouseMoveEvent(QMouseEvent* event) {
    QAbstractButton::mouseMoveEvent(event);
    event->accept(); // else the ground would take it for a move of its own
    Q_EMIT MouseMoved();
}

bool SideLink::event(QEvent* event) {
    return enter_.Takes(*event, *this) || QAbstractButton::event(event);
}
