// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/window/frmLeftOut.h"

#include "core/mTraduction.h"
#include "ui/text/Localisation.h"
#include "ui_frmLeftOut.h"

#include <QClipboard>
#include <QGuiApplication>

frmLeftOut::frmLeftOut(const QString& text, const QStringList& lines, QWidget* parent)
    : QDialog(parent),
      ui_(std::make_unique<Ui::frmLeftOut>()) {
    ui_->setupUi(this);
    mTraduction::ApplyLanguage(this);
    ui_->lblText->setText(mTraduction::DisplayText(text));
    ui_->txtList->setAccessibleName(ui_->lblText->text());
    ui_->txtList->setPlainText(lines.join(u'\n'));
    ui_->cmdOK->setFocus();
    connect(ui_->cmdOK, &QPushButton::clicked, this, &QDialog::accept);
    connect(ui_->cmdCopy, &QPushButton::clicked, this,
            [this] { QGuiApplication::clipboard()->setText(ui_->txtList->toPlainText()); });
}

frmLeftOut::~frmLeftOut() = default;
