// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "install/window/frmAddFiles2.h"

#include "core/ProgramFolders.h"
#include "core/mTraduction.h"
#include "install/InstallSource.h"
#include "install/window/FilesTreeModel.h"
#include "install/wizard/Analysis.h"
#include "platform/Files.h"
#include "platform/RuntimeError.h"
#include "ui/list/RowListModel.h"
#include "ui/text/Localisation.h"
#include "ui_frmAddFiles2.h"

#include <QHeaderView>
#include <QPushButton>
#include <QScopedValueRollback>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

void KeepPlace(QWidget& control) {
    QSizePolicy policy = control.sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    control.setSizePolicy(policy);
}

/// Nothing for an empty path.
void Remove(const QString& file) {
    if (!file.isEmpty())
        Ignoring([&] { Files::DeleteForced(file); });
}

} // namespace

frmAddFiles2::frmAddFiles2(QWidget* parent)
    : WizardPage(parent),
      ui_(std::make_unique<Ui::frmAddFiles2>()),
      model_(new FilesTreeModel(this)),
      picture_([this](const QByteArray& bitmap) {
          ui_->picPreview->ShowPicture(bitmap);
          ForgetPreview();
      }) {
    ui_->setupUi(Body());
    Localise(u"AddFiles"_s);
    AddMnemonics();
    Dress();
    ConnectTree();
    picture_.Use(&decoder_);
    connect(ui_->txtName, &QLineEdit::textEdited, this,
            [this](const QString& text) { Typed(&FilesTree::NameTyped, text); });
    connect(ui_->txtComments, &QPlainTextEdit::textChanged, this, [this] {
        if (!following_)
            Typed(&FilesTree::CommentsTyped, ui_->txtComments->Text());
    });
}

frmAddFiles2::~frmAddFiles2() {
    picture_.Abandon();
    ForgetPreview();
    model_->SetTree(nullptr);
}

void frmAddFiles2::Dress() {
    PreviousButton()->setEnabled(true);
    // The captions stand where they stood when the boxes are shown without them.
    for (QWidget* const caption : {ui_->lblName, ui_->lblComments}) {
        KeepPlace(*caption);
        caption->hide();
    }
    ui_->picHint->SetHint({u"file"_s, mTraduction::DisplayText(mTraduction::GetText(u"SelectForDetails"_s))});
    for (QWidget* const part : {static_cast<QWidget*>(ui_->Frame3), static_cast<QWidget*>(ui_->lblReason),
                                static_cast<QWidget*>(ui_->txtName), static_cast<QWidget*>(ui_->txtComments)})
        part->hide();
    ui_->tvFiles->setAccessibleName(mTraduction::GetText(u"AFText22"_s));
    ui_->txtFileName->setAccessibleName(mTraduction::GetText(u"File2"_s));
    ui_->txtFileName->setAccessibleDescription(u" "_s); // else it were the tip, with its marks
    ui_->txtName->setAccessibleName(mTraduction::GetText(u"Name2"_s));
    ui_->txtComments->setAccessibleName(mTraduction::GetText(u"Comments2"_s));
}

void frmAddFiles2::ConnectTree() {
    ui_->tvFiles->setModel(model_);
    // A long name scrolls, it is not cut.
    ui_->tvFiles->header()->setStretchLastSection(false);
    ui_->tvFiles->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    connect(ui_->tvFiles, &QTreeView::expanded, model_, [this](const QModelIndex& at) { model_->SetOpen(at, true); });
    connect(ui_->tvFiles, &QTreeView::collapsed, model_, [this](const QModelIndex& at) { model_->SetOpen(at, false); });
    connect(ui_->tvFiles->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            [this](const QItemSelection& selected) {
                if (!selected.isEmpty())
                    ShowDetails(model_->KeyOf(selected.indexes().first()));
            });
}

bool frmAddFiles2::AnalizeFile(const QString& filePath, const QString& fileName) {
    AddFiles::Source = Analysis::Analyse(filePath, fileName, zip_);
    if (AddFiles::Source.SourceIsZip && AddFiles::Source.InstallRecords.empty())
        return false;
    tree_.emplace(AddFiles::Source, zip_);
    model_->SetTree(&*tree_);
    for (const FilesNode& node : tree_->Nodes())
        if (node.IsGroup() && node.Open)
            ui_->tvFiles->expand(model_->IndexOf(node.Key));
    picture_.Prepare();
    return true;
}

void frmAddFiles2::ShowDetails(const QString& key) {
    picture_.Abandon();
    ForgetPreview();
    ui_->picPreview->ShowPicture({});
    selected_ = key;
    const FilesDetails details = tree_->Select(key);
    ui_->picHint->hide();
    ui_->Frame3->show();
    ui_->txtFileName->setText(details.File);
    ui_->txtFileName->setToolTip(RowListModel::PlainTip(details.File));
    ui_->lblReason->setText(details.Reason);
    ui_->lblReason->setVisible(!details.Reason.isEmpty());
    ShowBoxes(details);
    ShowPreview(key);
}

void frmAddFiles2::ShowBoxes(const FilesDetails& details) {
    const QScopedValueRollback following(following_, true);
    ui_->lblName->setVisible(details.LabelsVisible);
    ui_->lblComments->setVisible(details.LabelsVisible);
    ui_->txtName->setVisible(details.BoxesVisible);
    ui_->txtComments->setVisible(details.BoxesVisible);
    if (!details.BoxesVisible)
        return;
    ui_->txtName->setText(details.Name);
    ui_->txtComments->setPlainText(details.Comments);
}

void frmAddFiles2::ShowPreview(const QString& key) {
    const FilesTree::Preview preview = tree_->PreviewFile(key);
    const QString extracted = preview.IsExtracted ? preview.File : QString();
    if (key != selected_) { // another node was selected while the password was asked for
        Remove(extracted);
        return;
    }
    extracted_ = extracted;
    if (!preview.File.isEmpty())
        picture_.Show(preview.File, ProgramFolders::ScratchFolder());
}

void frmAddFiles2::ForgetPreview() {
    Remove(std::exchange(extracted_, {}));
}

// For a single file the change raises 13, which ends this handler only. This is meant.
void frmAddFiles2::Typed(void (FilesTree::*store)(const QString& text), const QString& text) {
    if (!Ignoring([&] { ((*tree_).*store)(text); }))
        ui_->picNotice->ShowNotice({mTraduction::GetText(u"EditNotKept"_s)});
}

void frmAddFiles2::Previous() {
    AddFiles::Source.InstallRecords.assign(1, {});
    Q_EMIT BackWanted();
}

void frmAddFiles2::Next() {
    Q_EMIT InstallWanted();
}
