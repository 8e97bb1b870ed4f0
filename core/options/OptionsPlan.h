// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The options dialog without a control: its tabs and pages, and what is stored when. A game's page is stored as it is
/// left, the general page with OK, language and icons only with a restart; whatever ends the dialog but OK puts the
/// games' settings back.
#pragma once

#include "core/Notice.h"
#include "core/options/GamePage.h"
#include "core/options/LanguageFiles.h"

#include <QString>

#include <array>
#include <functional>
#include <vector>

class OptionsPlan {
public:
    struct Tab {
        QString Key; ///< "Options", or a game's, which is the key of its name too
        QString Caption;
        GameIndex Game = -1; ///< -1: the general page
    };

    /// The games' settings, as they are put back.
    using Snapshot = std::array<QString, 12>;

    /// Reads all settings. A step that fails is passed over.
    OptionsPlan();

    [[nodiscard]] const std::vector<Tab>& Tabs() const { return tabs_; }

    [[nodiscard]] const std::vector<LanguageFile>& Languages() const { return languages_; }

    /// The selected one of them; -1 for none.
    [[nodiscard]] int Language() const { return language_; }

    bool ChecksForUpdates = false;
    bool ExactOffsets = false;

    [[nodiscard]] bool ViewsIcons() const { return viewsIcons_; }

    /// A click on a language, also on the one that is selected, needs a restart.
    void ChooseLanguage(int language);
    void ShowIcons(bool shown);

    /// Leaves the selected tab, whose game's settings are stored, and enters another.
    void SelectTab(const QString& key);

    /// The page of the selected tab's game; what it shows is nothing while the general page is selected.
    GamePage Page;

    [[nodiscard]] GameIndex SelectedGame() const { return game_; }

    /// What leaving the selected page is about to replace, with a link that keeps it; no text where that is nothing.
    /// `kept` runs behind the link.
    [[nodiscard]] Notice LossNotice(const std::function<void()>& kept);

    /// OK: stores, and asks about the restart where one is needed. False when the dialog stays, which is cancelled
    /// again then. Raises 53 when the program can't be started anew.
    bool Accept();

    /// Any other end: puts the games' settings back.
    void Cancel() const;

private:
    void Load();
    void AddTabs();
    void SaveSelected() const;
    bool Restart();

    /// What is stored for the program's boxes when the dialog opens.
    struct Boxes {
        QString Updates;
        QString Icons;
        QString Exact;
    };

    std::vector<Tab> tabs_;
    std::vector<LanguageFile> languages_;
    int language_ = -1;
    Boxes before_;
    bool viewsIcons_ = false;
    bool restartNeeded_ = false;
    GameIndex game_ = -1;
    Snapshot snapshot_;
};
