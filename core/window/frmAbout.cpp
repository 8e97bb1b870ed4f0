// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/window/frmAbout.h"

#include "core/ReportDetails.h"
#include "core/mMain.h"
#include "core/mTraduction.h"
#include "ui/look/ForReaders.h"
#include "ui/look/Picture.h"
#include "ui/look/Style.h"
#include "ui/text/Localisation.h"
#include "ui_frmAbout.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QPainter>
#include <QScreen>

using namespace Qt::StringLiterals;

namespace {

void Dress(QLabel* label, const QFont& font, const QColor& colour) {
    label->setFont(font);
    QPalette palette = label->palette();
    palette.setColor(QPalette::WindowText, colour);
    label->setPalette(palette);
}

} // namespace

frmAbout::frmAbout(QWidget* parent) : QDialog(parent), ui_(std::make_unique<Ui::frmAbout>()) {
    ui_->setupUi(this);
    setFixedSize(size());
    QFont underlined = Style::TextFont();
    underlined.setUnderline(true);
    Dress(ui_->lblTitle, Style::HeadingFont(15), Style::Colour::EntryPlain);
    Dress(ui_->lblVersion, Style::TextFont(), Style::Colour::TextOnPicture);
    ui_->cmdCopyDetails->setFont(underlined);
    ui_->cmdCopyDetails->SetTextColour(Style::Colour::TextOnPicture);
    Dress(ui_->Label2, Style::HeadingFont(12), Style::Colour::EntryHover);
    Dress(ui_->Label3, Style::HeadingFont(12), Style::Colour::ShadowOnPicture);
    ForReaders::Hide(*ui_->Label3); // Label2's shadow
    mTraduction::ApplyLanguage(this);
    ui_->lblVersion->setText(mMain::VersionText());
    connect(ui_->cmdCopyDetails, &PictureButton::clicked, this, &frmAbout::CopyDetails);
    setFocus(); // Enter closes the box until somebody goes to the button
}

frmAbout::~frmAbout() = default;

void frmAbout::CopyDetails() {
    const QSize screen = this->screen()->size();
    const QString display = u"%1, scale %2, %3 x %4"_s.arg(QGuiApplication::platformName())
                                .arg(devicePixelRatio())
                                .arg(screen.width())
                                .arg(screen.height());
    QGuiApplication::clipboard()->setText(ReportDetails::Text(display));
    ui_->cmdCopyDetails->setText(mTraduction::GetText(u"DetailsCopied"_s));
}

void frmAbout::mouseReleaseEvent(QMouseEvent* /*event*/) {
    close();
}

void frmAbout::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        close();
    else
        QDialog::keyPressEvent(event);
}

void frmAbout::paintEvent(QPaintEvent* /*event*/) {
    if (const qreal ratio = devicePixelRatio(); picture_.isNull() || picture_.devicePixelRatio() < ratio)
        picture_ = Picture::Load(u"about"_s, ratio);
    QPainter painter(this);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawPixmap(rect(), picture_);
}
