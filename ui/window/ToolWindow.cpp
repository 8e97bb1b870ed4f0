// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/window/ToolWindow.h"

#include "core/Navigator.h"
#include "core/mMain.h"
#include "core/rescue/RescuedDocument.h"
#include "platform/Paths.h"
#include "ui/text/Mnemonics.h"
#include "ui/window/ManualKey.h"
#include "ui/window/NoticeStrip.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QDesktopServices>
#include <QMenuBar>
#include <QTimer>
#include <QUrl>
#include <QVBoxLayout>

#include <utility>

using namespace Qt::StringLiterals;

void ToolWindow::Equip(const CommonEntries& common, std::vector<ToolCommand> commands) {
    Mnemonics::AddTo(*menuBar());
    common.Exit->setShortcuts({common.Exit->shortcut(), QKeySequence(u"Alt+F4"_s)});
    commands.push_back({common.Exit, nullptr, u"exit"_s, [this] { close(); }});
    commands.push_back({common.Options, nullptr, u"options"_s, [this] { mMain::ShowOptions(this); }});
    commands.push_back({common.Manual, nullptr, u"manual"_s, [this] { ManualKey::Open(this); }});
    commands.push_back(
        {common.CheckForUpdates, nullptr, u"update"_s, [] { Navigator::Current().CheckForUpdates(false); }});
    commands.push_back({common.About, nullptr, u"about"_s, [this] { Navigator::Current().ShowAbout(this); }});
    ConnectCommands(this, commands);
    MakePlaceForNotices();
}

// The form's controls stay within the window and keep their order for the Tab key. The focus is set behind this.
void ToolWindow::MakePlaceForNotices() {
    QWidget* const content = centralWidget();
    auto* const ground = new QWidget(this);
    auto* const column = new QVBoxLayout(ground);
    column->setContentsMargins({});
    column->setSpacing(0);
    notices_ = new NoticeStrip(ground);
    column->addWidget(notices_);
    column->addWidget(content, 1);
    setCentralWidget(ground);
    connect(notices_, &NoticeStrip::Closed, this, &ToolWindow::OfferClosed);
}

// No event reaches the controls meanwhile. Were they disabled, the keyboard's focus would leave them for good.
void ToolWindow::SetBusy(bool busy) {
    if (busy)
        QApplication::setOverrideCursor(Qt::WaitCursor);
    else
        QApplication::restoreOverrideCursor();
}

void ToolWindow::SetNotice(const Notice& notice) {
    notice_ = notice;
    if (!isOffer_)
        notices_->ShowNotice(notice);
}

void ToolWindow::SetOffer(const Notice& offer) {
    const bool is = !offer.Text.isEmpty();
    if (is || isOffer_)
        notices_->ShowNotice(offer); // an empty one closes it
    isOffer_ = is;
}

// A notice that was closed itself is done with.
void ToolWindow::OfferClosed() {
    const Notice waiting = std::exchange(notice_, {});
    if (std::exchange(isOffer_, false) && !waiting.Text.isEmpty())
        SetNotice(waiting);
}

void ToolWindow::KeepFromTimeToTime(const std::function<bool()>& keep) {
    auto* const timer = new QTimer(this);
    timer->setObjectName(u"tmrRescue"_s);
    connect(timer, &QTimer::timeout, this, [timer, keep] { timer->start(keep() ? 0 : RescuedDocument::Interval); });
    timer->start(RescuedDocument::Interval);
}

void ToolWindow::ShowFolder(const QString& folder) {
    QDesktopServices::openUrl(QUrl::fromLocalFile(Paths::ToNative(folder)));
}

void ToolWindow::closeEvent(QCloseEvent* event) {
    if (!MayClose()) {
        event->ignore();
        return;
    }
    event->accept();
    if (isVisible() && MenuFollows())
        Navigator::Current().ShowToolsMenu();
}
