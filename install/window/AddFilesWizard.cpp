// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "install/window/AddFilesWizard.h"

#include "install/window/frmAddFiles1.h"

#include <QEventLoop>

AddFilesWizard::AddFilesWizard(QWidget* owner) : owner_(owner) {}

AddFilesWizard::~AddFilesWizard() {
    delete page_;
}

void AddFilesWizard::Run(QWidget* owner, const QString& file) {
    if (owner == nullptr) {
        auto* const wizard = new AddFilesWizard(nullptr);
        connect(wizard, &AddFilesWizard::Ended, wizard, &QObject::deleteLater);
        wizard->Begin(file);
        return;
    }
    AddFilesWizard wizard(owner);
    QEventLoop loop;
    connect(&wizard, &AddFilesWizard::Ended, &loop, &QEventLoop::quit);
    wizard.Begin(file);
    if (wizard.Page() != nullptr)
        loop.exec();
}

void AddFilesWizard::Begin(const QString& file) {
    ShowSource(file);
}

// In the place of the page before, which goes when the new one stands.
void AddFilesWizard::Show(WizardPage* page) {
    if (owner_ != nullptr)
        page->setWindowModality(Qt::ApplicationModal);
    if (page_ != nullptr)
        page->move(page_->pos());
    connect(page, &QDialog::finished, this, &AddFilesWizard::End);
    page->show();
    Leave();
    page_ = page;
}

void AddFilesWizard::Leave() {
    if (page_ == nullptr)
        return;
    page_->disconnect(this);
    page_->hide();
    page_->deleteLater();
    page_.clear();
}

void AddFilesWizard::End() {
    Leave();
    Q_EMIT Ended();
}

void AddFilesWizard::ShowSource(const QString& file) {
    auto* const page = new frmAddFiles1(owner_);
    connect(page, &frmAddFiles1::Chosen, this, &AddFilesWizard::End);
    Show(page);
    page->TakeCommandLine();
    if (!file.isEmpty())
        page->Take(file);
}
