// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The options: a tab for the program and one for each installed game. Modal; what it changes is in the settings when
/// it returns, and mMain::RestartRequested says whether the program has to end.
#pragma once

#include "core/options/OptionsPlan.h"

#include <QDialog>
#include <QHash>
#include <QStringListModel>

#include <memory>

class QListView;

namespace Ui {
class frmOptions;
}

class frmOptions : public QDialog {
    Q_OBJECT
public:
    explicit frmOptions(QWidget* parent = nullptr);
    ~frmOptions() override;

    /// OK; the dialog may stay.
    void accept() override;
    /// Cancel, Escape and the window's cross.
    void reject() override;

protected:
    void showEvent(QShowEvent* event) override;

private:
    void ShowTabs();
    void FitScreen();
    void ShowGeneral();
    void AddMnemonics();
    void NameLists();
    void ShowFocus();
    void ConnectGeneral();
    void ConnectGame();
    void FollowRow(QListView* list, void (GamePage::*follow)(int));
    void ConnectTabs();
    void TurnTab(int by);
    void EnterTab(int index);
    void ShowPage();
    void ShowOptions();
    void ShowDescription(int option);
    const QString& Description(const QString& option);
    void ShowNotice();

    std::unique_ptr<Ui::frmOptions> ui_;
    OptionsPlan plan_;
    QHash<QString, QString> descriptions_; ///< by their options
    QStringListModel mods_;
    QStringListModel shellMaps_;
    bool filling_ = false; ///< the page is being shown: nothing that changes in it is the user's
    QString told_;         ///< the notice that was shown last on this page
};
