// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "big/window/frmVersion.h"

#include "big/format/mBIG.h"
#include "core/mTraduction.h"
#include "ui/text/Localisation.h"
#include "ui_frmVersion.h"

using namespace Qt::StringLiterals;
using mTraduction::GetText;

namespace {

struct Variant {
    int Row;
    bool Translated;
};

/// By BigVersion: the games' row and whether the archive contains translated text.
constexpr std::array<Variant, 4> variants{{{0, false}, {0, true}, {1, false}, {1, true}}};

} // namespace

frmVersion::frmVersion(QWidget* parent) : QDialog(parent), ui_(std::make_unique<Ui::frmVersion>()) {
    ui_->setupUi(this);
    mTraduction::ApplyLanguage(this);
    ui_->cbVersion->addItems(
        {GetText(u"Generals"_s) + u" & "_s + GetText(u"ZeroHour"_s), GetText(u"BFME"_s) + u" I & II"_s});
    if (mBIG::BigVersion >= 0 && mBIG::BigVersion < static_cast<int>(variants.size())) {
        const Variant& variant = variants.at(static_cast<std::size_t>(mBIG::BigVersion));
        ui_->cbVersion->setCurrentIndex(variant.Row);
        (variant.Translated ? ui_->optYes : ui_->optNo)->setChecked(true);
    }
    // Yes and No say nothing without their question.
    for (QRadioButton* answer : {ui_->optYes, ui_->optNo})
        answer->setAccessibleName(ui_->lblTranslated->text() + u' ' + answer->text());
    resize(size().expandedTo(sizeHint())); // the games' names are longer in some languages
    connect(ui_->cmdOK, &QPushButton::clicked, this, [this] {
        Store();
        accept();
    });
    connect(ui_->cmdDefault, &QPushButton::clicked, this, &QDialog::reject);
}

frmVersion::~frmVersion() = default;

void frmVersion::SetExactOffsets(bool exact) {
    ui_->ckExactOffsets->setChecked(exact);
}

bool frmVersion::ExactOffsets() const {
    return ui_->ckExactOffsets->isChecked();
}

void frmVersion::Store() {
    const int row = ui_->cbVersion->currentIndex();
    const bool translated = !ui_->optNo->isChecked();
    for (std::size_t version = 0; version < variants.size(); ++version)
        if (variants.at(version).Row == row && variants.at(version).Translated == translated)
            mBIG::BigVersion = static_cast<qint32>(version);
}
