// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/window/WizardPage.h"

#include "core/mMain.h"
#include "ui/look/ForReaders.h"
#include "ui/look/Picture.h"
#include "ui/look/Style.h"
#include "ui/text/Localisation.h"
#include "ui/text/Mnemonics.h"
#include "ui_WizardPage.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int compassSize = 32;

void Colour(QWidget* control, const QColor& colour) {
    QPalette palette = control->palette();
    palette.setColor(QPalette::WindowText, colour);
    control->setPalette(palette);
}

} // namespace

WizardPage::WizardPage(QWidget* parent) : QDialog(parent), ui_(std::make_unique<Ui::WizardPage>()) {
    ui_->setupUi(this);
    ui_->Label1->setFont(Style::HeadingFont(14));
    Colour(ui_->Label1, Style::Colour::Border);
    ForReaders::Hide(*ui_->picCompass);
    ui_->picCompass->setPixmap(Picture::ProgramIcon().pixmap(QSize(compassSize, compassSize), devicePixelRatio()));
    // One label is the other one's light edge.
    Colour(ui_->Label5, Qt::white);
    ForReaders::Hide(*ui_->Label5);
    Colour(ui_->Label6, Style::Colour::DisabledText);
    ui_->Label5->setContentsMargins(0, 1, 0, 0);
    ui_->Label6->setContentsMargins(0, 0, 1, 1);
    connect(ui_->cmdPrevious, &QPushButton::clicked, this, [this] { Previous(); });
    connect(ui_->cmdNext, &QPushButton::clicked, this, [this] { Next(); });
    connect(ui_->cmdCancel, &QPushButton::clicked, this, [this] { Cancel(); });
}

WizardPage::~WizardPage() = default;

void WizardPage::Localise(const QString& heading, const QString& next) {
    ui_->Label1->setProperty("Tag", heading);
    ui_->cmdNext->setProperty("Tag", next);
    mTraduction::ApplyLanguage(this);
    const QString version = u"Brindock 2005 v"_s + mMain::VersionText();
    ui_->Label5->setText(version);
    ui_->Label6->setText(version);
    setAccessibleName(ui_->Label1->text());
    FocusBody();
}

// The buttons came in first.
void WizardPage::FocusBody() {
    for (QWidget* control = Body()->nextInFocusChain(); control != Body(); control = control->nextInFocusChain()) {
        if (Body()->isAncestorOf(control) && (control->focusPolicy() & Qt::TabFocus) != 0 && control->isEnabled()) {
            control->setFocus();
            return;
        }
    }
}

void WizardPage::AddMnemonics() {
    QWidgetList controls{ui_->cmdNext, ui_->cmdCancel, ui_->cmdPrevious};
    for (QWidget* const control : Body()->findChildren<QWidget*>()) {
        const auto* const caption = qobject_cast<const QLabel*>(control);
        const auto* const button = qobject_cast<const QAbstractButton*>(control);
        if ((caption != nullptr && caption->buddy() != nullptr) || (button != nullptr && !button->text().isEmpty()))
            controls += control;
    }
    Mnemonics::AddTo(controls);
}

void WizardPage::reject() {
    if (ui_->cmdCancel->isEnabled())
        Cancel();
    else if (ui_->cmdNext->isEnabled())
        Next();
}

void WizardPage::Cancel() {
    done(Rejected);
}

QWidget* WizardPage::Body() const {
    return ui_->picBody;
}

QPushButton* WizardPage::PreviousButton() const {
    return ui_->cmdPrevious;
}

QPushButton* WizardPage::NextButton() const {
    return ui_->cmdNext;
}

QPushButton* WizardPage::CancelButton() const {
    return ui_->cmdCancel;
}
