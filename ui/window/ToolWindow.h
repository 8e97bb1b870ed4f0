// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// What the tools' windows have in common: the entries that each menu has, a place for notices under the menu bar, the
/// busy pointer, and a closing that may be refused and goes back to the tools menu.
#pragma once

#include "core/Notice.h"
#include "ui/window/ToolCommands.h"

#include <QMainWindow>

#include <functional>
#include <vector>

class NoticeStrip;

class ToolWindow : public QMainWindow {
    Q_OBJECT
public:
    /// The questions about what would be lost if the program ended now; false when the window has to stay. Nothing
    /// ends with it.
    virtual bool MayEnd() { return MayClose(); }

protected:
    using QMainWindow::QMainWindow;

    /// The entries that every tool has.
    struct CommonEntries {
        QAction* Exit;
        QAction* Options;
        QAction* Manual;
        QAction* CheckForUpdates;
        QAction* About;
    };

    /// Gives the form's menu bar its keys, the entries what they do, and the notices their place above the central
    /// widget. To be called once, behind setupUi and ApplyLanguage.
    void Equip(const CommonEntries& common, std::vector<ToolCommand> commands);

    /// The busy pointer, on and off again. Pairs nest.
    static void SetBusy(bool busy);

    /// Shows a notice in the place of the one before it; one without a text hides the line. It waits behind an offer.
    void SetNotice(const Notice& notice);

    /// Shows an offer in place of whatever stands there, until it is closed; one without a text takes it away.
    void SetOffer(const Notice& offer);

    /// Asks `keep` for what is new in the document from time to time, and at once while it says that there is more.
    void KeepFromTimeToTime(const std::function<bool()>& keep);

    /// Shows a folder (an inside path) in the system's own program.
    static void ShowFolder(const QString& folder);

    /// The questions about what would be lost; false when the window has to stay.
    virtual bool MayClose() = 0;
    /// Whether the tools menu comes back when the window closes.
    [[nodiscard]] virtual bool MenuFollows() const = 0;

    void closeEvent(QCloseEvent* event) override;

private:
    void MakePlaceForNotices();

    void OfferClosed();

    NoticeStrip* notices_ = nullptr;
    Notice notice_;        ///< shown, or waiting behind the offer
    bool isOffer_ = false; ///< what is shown is an offer
};
