// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "install/window/frmAddFiles3.h"

#include "install/InstallSource.h"
#include "ui_frmAddFiles3.h"

#include <QPushButton>
#include <QScopedValueRollback>

using namespace Qt::StringLiterals;

frmAddFiles3::frmAddFiles3(QWidget* parent) : WizardPage(parent), ui_(std::make_unique<Ui::frmAddFiles3>()) {
    ui_->setupUi(Body());
    Localise(u"AddFiles"_s, u"Close"_s);
    AddMnemonics();
    NextButton()->setEnabled(false);
    ui_->ProgressBar1->setAccessibleName(windowTitle());
    ShowOutcome({});
}

frmAddFiles3::~frmAddFiles3() = default;

void frmAddFiles3::InstallFiles(const std::optional<QString>& password) {
    InstallOutcome outcome;
    {
        const QScopedValueRollback working(working_, true);
        Installation::InstallFiles(AddFiles::Source, AddFiles::ActiveGame, *this, outcome, {.Password = password});
    }
    if (outcome.AnyFailed())
        ShowOutcome(outcome.Lines());
    else if (closeWanted_)
        Next();
}

void frmAddFiles3::ShowText(const QString& text) {
    ui_->lblProgress->setText(text);
}

void frmAddFiles3::ShowProgress(int percent) {
    ui_->ProgressBar1->setValue(percent);
}

void frmAddFiles3::ShowFinished() {
    CancelButton()->setEnabled(false);
    NextButton()->setEnabled(true);
    NextButton()->setFocus();
}

// Hidden without a line.
void frmAddFiles3::ShowOutcome(const QStringList& lines) {
    ui_->lblOutcome->setVisible(!lines.isEmpty());
    ui_->txtOutcome->setVisible(!lines.isEmpty());
    ui_->txtOutcome->setPlainText(lines.join(u'\n'));
}

void frmAddFiles3::Next() {
    done(Accepted);
}

void frmAddFiles3::Cancel() {
    if (working_)
        closeWanted_ = true;
    else
        WizardPage::Cancel();
}
