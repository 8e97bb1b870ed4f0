// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "big/window/frmBrowseForFolder.h"

#include "core/FolderGateway.h"
#include "core/Host.h"
#include "core/LastTime.h"
#include "core/mTraduction.h"
#include "platform/Files.h"
#include "platform/Paths.h"
#include "platform/RuntimeError.h"
#include "ui/text/Localisation.h"
#include "ui_frmBrowseForFolder.h"

#include <QDir>
#include <QScopedValueRollback>
#include <QTreeView>
#include <QUrl>

#include <chrono>
#include <utility>

using namespace Qt::StringLiterals;
using mTraduction::GetText;

namespace {
constexpr std::chrono::milliseconds typingPause{300};
} // namespace

frmBrowseForFolder::frmBrowseForFolder(QWidget* parent, std::unique_ptr<FileBoxSystem> system)
    : QDialog(parent),
      ui_(std::make_unique<Ui::frmBrowseForFolder>()) {
    ui_->setupUi(this);
    mTraduction::ApplyLanguage(this);
    if (system)
        ui_->cfbFolders->UseSystem(std::move(system));
    ui_->cfbFolders->View()->setAccessibleName(GetText(u"Folder"_s));
    typing_.setSingleShot(true);
    typing_.setInterval(typingPause);
    connect(&typing_, &QTimer::timeout, this, &frmBrowseForFolder::FollowTyped);
    connect(ui_->cfbFolders, &CoolFileBox::PathChanged, this, [this] {
        if (!following_)
            ShowPath();
    });
    connect(ui_->cmdOK, &QPushButton::clicked, this, &frmBrowseForFolder::Choose);
    connect(ui_->cmdCancel, &QPushButton::clicked, this, &frmBrowseForFolder::reject);
    connect(ui_->cmdNewFolder, &QPushButton::clicked, this, &frmBrowseForFolder::MakeNewFolder);
    ui_->cfbFolders->Refresh();
    ui_->cfbFolders->SelectDocuments();
    connect(ui_->txtPath, &QLineEdit::textEdited, this, &frmBrowseForFolder::TakeTyped);
    // A click on the folder that is selected already brings the tree back into play.
    connect(ui_->cfbFolders->View(), &QTreeView::clicked, this, &frmBrowseForFolder::ShowPath);
    if (const QString last = LastTime::Folder(u"extract"_s); !last.isEmpty()) {
        ui_->txtPath->setText(Paths::ToNative(last));
        TakeTyped(ui_->txtPath->text());
    }
    ui_->cfbFolders->setFocus();
}

frmBrowseForFolder::~frmBrowseForFolder() = default;

void frmBrowseForFolder::TakeTyped(const QString& text) {
    typed_ = true;
    ui_->cmdOK->setEnabled(!text.trimmed().isEmpty());
    typing_.start();
}

// What was typed stays, also where the tree shows no more than a folder above it.
void frmBrowseForFolder::FollowTyped() {
    const QString folder = TypedFolder();
    if (folder.isEmpty())
        return;
    {
        const QScopedValueRollback following(following_, true);
        ui_->cfbFolders->SelectPath(folder);
    }
    ui_->cmdNewFolder->setEnabled(!ui_->cfbFolders->Path().isEmpty());
}

QString frmBrowseForFolder::TypedFolder() const {
    QString text = ui_->txtPath->text().trimmed();
    // As programs that show folders put them on the clipboard.
    if (text.size() > 1 && text.startsWith(u'"') && text.endsWith(u'"'))
        text = text.sliced(1).chopped(1);
    if (text.startsWith("file:"_L1))
        text = QUrl(text).toLocalFile();
    if (!QDir::isAbsolutePath(text))
        return {};
    QString folder = Paths::FromNative(QDir::toNativeSeparators(text));
    if (!folder.endsWith(u'\\'))
        folder += u'\\';
    return Files::FileExists(folder.chopped(1)) && !Files::FolderExists(folder) ? QString() : folder;
}

void frmBrowseForFolder::ShowPath() {
    typed_ = false;
    typing_.stop();
    const QString path = ui_->cfbFolders->Path();
    // The top of the tree is no folder, and neither are network places that the machine does not have.
    ui_->cmdOK->setEnabled(!path.isEmpty());
    ui_->cmdNewFolder->setEnabled(!path.isEmpty());
    ui_->txtPath->setText(Paths::ToNative(path));
}

void frmBrowseForFolder::Choose() {
    target_.ExtractFolder = typed_ ? TypedFolder() : ui_->cfbFolders->Path();
    if (target_.ExtractFolder.isEmpty() && typed_)
        Host::Current().Message(GetText(u"NoFolderToWriteTo"_s).replace("%1"_L1, ui_->txtPath->text()),
                                Host::Icon::Critical);
    if (target_.ExtractFolder.isEmpty())
        return;
    LastTime::NoteFolder(u"extract"_s, target_.ExtractFolder);
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
        const QString refusal = FolderGateway::RefusalOf(*name);
        if (several)
            throw RuntimeError(ErrorNumber::PathFileAccess, GetText(u"MoreThanOneName"_s).replace("%1"_L1, *name));
        if (!refusal.isEmpty())
            throw RuntimeError(ErrorNumber::PathFileAccess, *name + u": "_s + refusal);
        Files::MakeFolder(ui_->cfbFolders->Path() + *name);
        ui_->cfbFolders->SelectNewFolder(*name);
    } catch (const RuntimeError& error) {
        Host::Current().Message(error.Description(), Host::Icon::Critical);
    }
}
