// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "install/window/frmExportFiles1.h"

#include "core/Host.h"
#include "core/mTraduction.h"
#include "install/export/ExportDialogs.h"
#include "ui_frmExportFiles1.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QPushButton>
#include <QScopeGuard>

using namespace Qt::StringLiterals;

namespace {

/// The text with CR LF between its lines. The raw text: the plain one has ordinary blanks in place of no-break ones.
QString TextOf(const QPlainTextEdit& box) {
    QString text = box.document()->toRawText();
    text.replace(QChar::ParagraphSeparator, u'\n').replace(QChar::LineSeparator, u'\n');
    return text.replace(u"\n"_s, u"\r\n"_s);
}

} // namespace

frmExportFiles1::frmExportFiles1(QWidget* parent)
    : WizardPage(parent),
      ui_(std::make_unique<Ui::frmExportFiles1>()),
      records_(ExportRecords) {
    ui_->setupUi(Body());
    ui_->txtFiles->setPlainText(ExportDialogs::ListedNames(records_));
    ConnectChoices();
    Localise(u"ExportFiles"_s);
    ui_->txtFiles->setAccessibleName(ui_->lblText->text());
    ui_->txtReadMe->setAccessibleName(ui_->ckIncludeReadMe->text());
    ui_->txtReport->setAccessibleName(ui_->lblReport->text());
    ui_->ProgressBar1->setAccessibleName(windowTitle());
    AddMnemonics();
    ui_->ckModRecords->setEnabled(ExportDialogs::HasMods(records_));
    FollowChoices();
    ui_->OBDontCompress->setFocus();
}

frmExportFiles1::~frmExportFiles1() = default;

void frmExportFiles1::ConnectChoices() {
    connect(ui_->OBCompress, &QRadioButton::toggled, this, &frmExportFiles1::FollowChoices);
    connect(ui_->ckIncludeReadMe, &QCheckBox::toggled, this, &frmExportFiles1::FollowChoices);
    connect(ui_->cmdOpen, &QPushButton::clicked, this, &frmExportFiles1::OpenReadMe);
    connect(ui_->cmdCopy, &QPushButton::clicked, this,
            [this] { QGuiApplication::clipboard()->setText(ui_->txtReport->toPlainText()); });
}

// A read-me belongs to a ZIP only.
void frmExportFiles1::FollowChoices() {
    const bool compress = ui_->OBCompress->isChecked();
    const bool hasReadMe = compress && ui_->ckIncludeReadMe->isChecked();
    ui_->ckIncludeReadMe->setEnabled(compress);
    ui_->txtReadMe->setEnabled(hasReadMe);
    ui_->cmdOpen->setEnabled(hasReadMe);
}

void frmExportFiles1::OpenReadMe() {
    if (const std::optional<QString> text = ExportDialogs::OpenReadMe())
        ui_->txtReadMe->setPlainText(*text);
}

ExportChoice frmExportFiles1::Choice() const {
    ExportChoice choice;
    if (ui_->ckIncludeReadMe->isChecked())
        choice.ReadMe = TextOf(*ui_->txtReadMe);
    choice.ModRecords = ui_->ckModRecords->isChecked();
    return choice;
}

std::optional<ExportReport> frmExportFiles1::Run() {
    ShowWork(true);
    const auto ended = qScopeGuard([this] { ShowWork(false); });
    const ExportWatch watch{.Progress = [this](int percent) { ui_->ProgressBar1->setValue(percent); },
                            .Yield =
                                [this] {
                                    ui_->ProgressBar1->show(); // the dialogs are over
                                    Host::Current().Yield();
                                    return !cancelled_;
                                }};
    return ui_->OBCompress->isChecked() ? ExportDialogs::RunToZip(records_, Choice(), watch)
                                        : ExportDialogs::RunToFolder(records_, Choice(), watch);
}

void frmExportFiles1::Next() {
    if (reported_)
        return done(Accepted);
    if (working_)
        return;
    const std::optional<ExportReport> report = Run();
    if (!report) {
        NextButton()->setFocus(); // it was disabled, and Enter would cancel now
        return;
    }
    if (report->Cancelled)
        return done(Rejected);
    if (report->HasFailures())
        ShowReport(*report);
    Host::Current().Message(mTraduction::GetText(u"ExportComplete"_s), Host::Icon::Information);
    if (!reported_)
        done(Accepted);
}

void frmExportFiles1::Cancel() {
    cancelled_ = true;
    if (!working_)
        WizardPage::Cancel();
}

void frmExportFiles1::ShowWork(bool working) {
    working_ = working;
    ui_->picChoices->setEnabled(!working);
    NextButton()->setEnabled(!working);
    ui_->ProgressBar1->setValue(0);
    ui_->ProgressBar1->hide();
}

void frmExportFiles1::ShowReport(const ExportReport& report) {
    reported_ = true;
    ui_->txtReport->setPlainText(ExportText(report));
    ui_->picChoices->hide();
    ui_->picReport->show();
    CancelButton()->setEnabled(false);
    NextButton()->setText(mTraduction::GetText(u"Close"_s));
    NextButton()->setFocus();
}
