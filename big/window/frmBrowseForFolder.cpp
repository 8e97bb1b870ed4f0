// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "big/window/frmBrowseForFolder.h"

#include "core/FolderGateway.h"
#include "core/Host.h"
#include "core/mTraduction.h"
#include "platform/Files.h"
#include "platform/Paths.h"
#include "platform/RuntimeError.h"
#include "ui/text/Localisation.h"
#include "ui_frmBrowseForFolder.h"

#include <QTreeView>

#include <utility>

using namespace Qt::StringLiterals;
using mTraduction::GetText;

frmBrowseForFolder::frmBrowseForFolder(QWidget* parent, std::unique_ptr<FileBoxSystem> system)
    : QDialog(parent),
      ui_(std::make_unique<Ui::frmBrowseForFolder>()) {
    ui_->setupUi(this);
    mTraduction::ApplyLanguage(this);
    if (system)
        ui_->cfbFolders->UseSystem(std::move(system));
    for (QWidget* part : {static_cast<QWidget*>(ui_->cfbFolders->View()), static_cast<QWidget*>(ui_->txtPath)})
        part->setAccessibleName(ui_->lblFolders->text());
    connect(ui_->cfbFolders, &CoolFileBox::PathChanged, this, &frmBrowseForFolder::ShowPath);
    connect(ui_->cmdOK, &QPushButton::clicked, this, &frmBrowseForFolder::Choose);
    connect(ui_->cmdCancel, &QPushButton::clicked, this, &frmBrowseForFolder::reject);
    connect(ui_->cmdNewFolder, &QPushButton::clicked, this, &frmBrowseForFolder::MakeNewFolder);
    ui_->cfbFolders->Refresh();
    ui_->cfbFolders->SelectDocuments();
    ui_->cfbFolders->setFocus();
}

frmBrowseForFolder::~frmBrowseForFolder() = default;

void frmBrowseForFolder::ShowPath() {
    const QString path = ui_->cfbFolders->Path();
    // The top of the tree is no folder, and neither are network places that the machine does not have.
    ui_->cmdOK->setEnabled(!path.isEmpty());
    ui_->cmdNewFolder->setEnabled(!path.isEmpty());
    ui_->txtPath->setText(Paths::ToNative(path));
}

void frmBrowseForFolder::Choose() {
    target_.ExtractFolder = ui_->cfbFolders->Path();
    if (target_.ExtractFolder.isEmpty())
        return;
    target_.ExtractCancelled = false;
    target_.RecreateFolders = ui_->ckCreateDirs->isChecked();
    accept();
}

void frmBrowseForFolder::reject() {
    target_.ExtractCancelled = true;
    // Taken although nothing is extracted. This is meant.
    target_.RecreateFolders = ui_->ckCreateDirs->isChecked();
    QDialog::reject();
}

void frmBrowseForFolder::MakeNewFolder() {
    const QString text = GetText(u"NewFolder"_s);
    const auto name = Host::Current().InputBox(text, windowTitle(), text);
    if (!name || name->isEmpty())
        return;
    try {
        const bool several = name->contains(u'\\') || name->contains(u'/');
        const QString refusal = several ? u"is more than one name"_s : FolderGateway::RefusalOf(*name);
        if (!refusal.isEmpty())
            throw RuntimeError(ErrorNumber::PathFileAccess, *name + u": "_s + refusal);
        Files::MakeFolder(ui_->cfbFolders->Path() + *name);
        ui_->cfbFolders->SelectNewFolder(*name);
    } catch (const RuntimeError& error) {
        Host::Current().Message(error.Description(), Host::Icon::Critical);
    }
}
