// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/window/frmProgress.h"

#include "core/mMain.h"
#include "ui/look/ForReaders.h"
#include "ui/text/Localisation.h"
#include "ui_frmProgress.h"

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QScreen>
#include <QShowEvent>

using namespace Qt::StringLiterals;

namespace {
constexpr int milliseconds = 500;
} // namespace

frmProgress::frmProgress(QWidget* parent) : QWidget(parent, Qt::Dialog), ui_(std::make_unique<Ui::frmProgress>()) {
    ui_->setupUi(this);
    mTraduction::ApplyLanguage(this);
    ui_->Animation1->Load(mMain::ProgramFolder + u"\\anim.rsc"_s);
    ForReaders::SetRole(*this, QAccessible::Dialog);
    ForReaders::Hide(*ui_->Animation1);
    ui_->ProgressBar1->setAccessibleName(windowTitle());
    timer_.setObjectName(u"Timer1"_s);
    timer_.setParent(this);
    connect(&timer_, &QTimer::timeout, this, &QWidget::raise);
    connect(ui_->cmdCancel, &QPushButton::clicked, this, &frmProgress::PressCancel);
}

frmProgress::~frmProgress() = default;

void frmProgress::SetText(const QString& text) {
    ui_->Label1->setText(mTraduction::DisplayText(text));
}

void frmProgress::SetValue(int percent) {
    ui_->ProgressBar1->setValue(percent);
}

void frmProgress::Cancel() {
    timer_.stop();
    cancelled_ = true;
}

void frmProgress::PressCancel() {
    Cancel();
    if (letGo_)
        close();
}

void frmProgress::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::Cancel))
        PressCancel();
    else
        QWidget::keyPressEvent(event);
}

void frmProgress::StopTimer() {
    timer_.stop();
}

// Without the window the button could not be pressed any more.
void frmProgress::closeEvent(QCloseEvent* event) {
    Cancel();
    QWidget::closeEvent(event);
}

void frmProgress::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    const QWidget* working = QApplication::activeWindow();
    const QRect around = working != nullptr ? working->geometry() : screen()->availableGeometry();
    move(around.center() - rect().center());
    if (!cancelled_)
        timer_.start(milliseconds);
}
