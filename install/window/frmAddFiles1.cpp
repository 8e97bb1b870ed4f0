// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "install/window/frmAddFiles1.h"

#include "core/mTraduction.h"
#include "platform/Paths.h"
#include "ui/text/Localisation.h"
#include "ui/window/DroppedFiles.h"
#include "ui_frmAddFiles1.h"

#include <QDropEvent>
#include <QSignalBlocker>
#include <QTimer>

using namespace Qt::StringLiterals;
using mTraduction::GetText;

frmAddFiles1::frmAddFiles1(QWidget* parent) : WizardPage(parent), ui_(std::make_unique<Ui::frmAddFiles1>()) {
    ui_->setupUi(Body());
    Localise(u"AddFiles"_s);
    AddMnemonics();
    for (const SourcePage::GameRow& row : source_.Games())
        ui_->cbGame->addItem(row.Text);
    ui_->cbGame->setAccessibleName(GetText(u"Game"_s));
    ui_->cmdBrowse->setAccessibleDescription(ui_->Label2->text());
    ui_->picHint->SetHint({u"add"_s, mTraduction::DisplayText(GetText(u"DropFileHere"_s))});
    setAcceptDrops(true);
    connect(ui_->cmdBrowse, &QPushButton::clicked, this, [this] {
        source_.Browse();
        Follow();
    });
    // A click on the row that is selected already counts, too: the file may be another one by now.
    connect(ui_->cbGame, &QComboBox::activated, this, [this](int row) {
        source_.SelectGame(row);
        Follow();
    });
    Follow();
}

frmAddFiles1::~frmAddFiles1() = default;

void frmAddFiles1::TakeCommandLine() {
    source_.TakeCommandLine();
    Follow();
}

void frmAddFiles1::Take(const QString& path) {
    source_.Choose(path, SourcePage::By::Dialog);
    Follow();
}

void frmAddFiles1::Next() {
    if (source_.TakeGame())
        Q_EMIT Chosen();
}

void frmAddFiles1::Follow() {
    const SourcePageState& state = source_.State();
    ui_->frmInformations->setVisible(state.InformationsVisible);
    ui_->frmInformations->setFixedHeight(state.InformationsHeight);
    ui_->picHint->setVisible(!state.InformationsVisible);
    ui_->lblFile->setText(Paths::NameToNative(state.Name));
    ui_->lblSize->setText(state.Size);
    ui_->lblFileType->setText(state.FileType);
    ui_->lblFileContentCaption->setVisible(state.ContentVisible);
    ui_->lblFileContent->setVisible(state.ContentVisible);
    ui_->lblFileContent->setText(state.Content);
    const QSignalBlocker blocker(ui_->cbGame);
    ui_->cbGame->setCurrentIndex(state.GameRow);
    ui_->cbGame->setEnabled(state.GameEnabled);
    NextButton()->setEnabled(state.NextEnabled);
}

void frmAddFiles1::dragEnterEvent(QDragEnterEvent* event) {
    if (DroppedFiles::In(*event->mimeData()).size() != 1)
        return;
    event->setDropAction(Qt::CopyAction);
    event->accept();
}

void frmAddFiles1::dropEvent(QDropEvent* event) {
    const QStringList files = DroppedFiles::In(*event->mimeData());
    event->setDropAction(Qt::CopyAction);
    event->accept();
    // A message must not keep the program waiting that the file comes from.
    QTimer::singleShot(0, this, [this, files] { Take(files.constFirst()); });
}
