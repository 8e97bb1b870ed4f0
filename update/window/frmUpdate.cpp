// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "update/window/frmUpdate.h"

#include "core/ProgramFolders.h"
#include "core/mMain.h"
#include "ui/look/ForReaders.h"
#include "ui/look/Picture.h"
#include "ui/look/Style.h"
#include "ui/text/Localisation.h"
#include "ui/text/Mnemonics.h"
#include "ui_frmUpdate.h"

#include <QApplication>
#include <QCloseEvent>
#include <QPointer>
#include <QScreen>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

void Colour(QWidget* control, const QColor& colour) {
    QPalette palette = control->palette();
    palette.setColor(QPalette::WindowText, colour);
    control->setPalette(palette);
}

void Name(QTimer& timer, QObject* owner, const QString& name, std::chrono::milliseconds interval) {
    timer.setParent(owner);
    timer.setObjectName(name);
    timer.setInterval(interval);
}

} // namespace

frmUpdate::frmUpdate(std::unique_ptr<HttpClient> http)
    : ui_(std::make_unique<Ui::frmUpdate>()),
      http_(std::move(http)),
      client_(*http_, *this) {
    ui_->setupUi(this);
    mTraduction::ApplyLanguage(this);
    const QString version = u'v' + mMain::VersionText();
    ui_->lblVersion1->setText(version);
    ui_->lblVersion2->setText(version);
    ui_->Animation1->Load(ProgramFolders::ProgramFolder + u"\\usearch.rsc"_s);
    Dress();
    ConnectControls();
}

frmUpdate::~frmUpdate() = default;

void frmUpdate::LoadOnce(const std::function<std::unique_ptr<HttpClient>()>& makeHttp) {
    static QPointer<frmUpdate> loaded;
    if (loaded != nullptr && !loaded->closed_)
        return;
    loaded = new frmUpdate(makeHttp()); // goes by itself
    loaded->Load();
}

void frmUpdate::Load() {
    Run(&UpdateClient::Load);
}

void frmUpdate::Dress() {
    // One label is the other one's light edge.
    Colour(ui_->lblVersion2, Qt::white);
    Colour(ui_->lblVersion1, Style::Colour::DisabledText);
    ForReaders::Hide(*ui_->lblVersion2); // the other's light edge
    ui_->lblVersion2->setContentsMargins(0, 1, 0, 0);
    ui_->lblVersion1->setContentsMargins(0, 0, 1, 1);
    ForReaders::Hide(*ui_->imgNoUpdate);
    ui_->imgNoUpdate->setPixmap(Picture::Load(u"information"_s, devicePixelRatio()));
    ui_->lblPercent->setMinimumWidth(ui_->lblPercent->fontMetrics().horizontalAdvance(u"100%"_s));
    ForReaders::Hide(*ui_->Animation1);
    ui_->ProgressBar1->setAccessibleName(ui_->Frame2->title());
    Mnemonics::AddTo({ui_->cmdDownload, ui_->cmdCancel});
    ui_->picPanels->setCurrentWidget(ui_->picSearching);
    ui_->cmdCancel->setFocus();
}

void frmUpdate::ConnectControls() {
    Name(order_, this, u"tmrZOrder"_s, 100ms);
    Name(rate_, this, u"tmrRate"_s, 100ms);
    Name(time_, this, u"tmrTime"_s, 1000ms);
    connect(&order_, &QTimer::timeout, this, [this] { client_.KeepInFront(); });
    connect(&rate_, &QTimer::timeout, this, [this] { client_.Download.ShowRate(); });
    connect(&time_, &QTimer::timeout, this, [this] { client_.Download.ShowTimes(); });
    connect(ui_->cmdDownload, &QPushButton::clicked, this, [this] { Run(&UpdateClient::DownloadPressed); });
    connect(ui_->cmdCancel, &QPushButton::clicked, this, [this] { client_.CancelPressed(); });
    order_.start();
}

// Work that comes back finds the window still there, closed or not.
void frmUpdate::Run(void (UpdateClient::*work)()) {
    ++running_;
    (client_.*work)();
    --running_;
    GoIfDone();
}

void frmUpdate::GoIfDone() {
    if (closed_ && running_ == 0)
        deleteLater();
}

void frmUpdate::ShowWindow() {
    show();
}

void frmUpdate::ShowPanel(Panel panel) {
    switch (panel) {
    case Panel::Searching:
        return ui_->picPanels->setCurrentWidget(ui_->picSearching);
    case Panel::NoUpdate:
        return ui_->picPanels->setCurrentWidget(ui_->picNoUpdate);
    case Panel::Found:
        return ui_->picPanels->setCurrentWidget(ui_->picUpdateFound);
    case Panel::Download:
        return ui_->picPanels->setCurrentWidget(ui_->picDownload);
    }
}

QLabel* frmUpdate::LabelOf(Field field) const {
    switch (field) {
    case Field::Version:
        return ui_->lblVersion;
    case Field::Type:
        return ui_->lblType;
    case Field::Size:
        return ui_->lblSize;
    case Field::FileName:
        return ui_->lblFName;
    case Field::Percent:
        return ui_->lblPercent;
    case Field::Rate:
        return ui_->lblTRate;
    case Field::RemainingTime:
        return ui_->lblRTime;
    case Field::ElapsedTime:
        return ui_->lblETime;
    case Field::DownloadSize:
        break;
    }
    return ui_->lblDSize;
}

void frmUpdate::SetText(Field field, const QString& text) {
    LabelOf(field)->setText(text);
}

void frmUpdate::SetProgress(int percent) {
    ui_->ProgressBar1->setValue(percent);
}

void frmUpdate::EnableDownload(bool enabled) {
    ui_->cmdDownload->setEnabled(enabled);
    (enabled ? ui_->cmdDownload : ui_->cmdCancel)->setFocus();
    ui_->cmdDownload->setDefault(enabled);
}

void frmUpdate::RunTimers(bool running) {
    for (QTimer* const timer : {&rate_, &time_})
        running ? timer->start() : timer->stop();
}

// Never over a question that waits for its answer, nor over an open menu. A menu that is locked has no use for the
// keys.
void frmUpdate::BringToFront() {
    if (!isVisible() || QApplication::activeModalWidget() != nullptr || QApplication::activePopupWidget() != nullptr)
        return;
    raise();
    if (const QWidget* const active = QApplication::activeWindow(); active != nullptr && !active->isEnabled())
        activateWindow();
}

void frmUpdate::CloseWindow() {
    close();
}

void frmUpdate::reject() {
    client_.CancelPressed();
}

void frmUpdate::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    const QWidget* const working = QApplication::activeWindow();
    const QRect around = working != nullptr && working != this ? working->geometry() : screen()->availableGeometry();
    move(around.center() - rect().center());
}

void frmUpdate::closeEvent(QCloseEvent* event) {
    event->accept();
    if (closed_)
        return;
    closed_ = true;
    for (QTimer* const timer : {&order_, &rate_, &time_})
        timer->stop();
    client_.WindowClosed();
    GoIfDone();
}
