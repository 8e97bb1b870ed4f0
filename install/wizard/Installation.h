// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Puts what was found and ticked into the folders of a game. Nothing is rolled back, and what fails is passed over and
/// told in the outcome.
#pragma once

#include "install/FileWatch.h"
#include "install/InstallSource.h"
#include "install/wizard/InstallOutcome.h"

#include <QString>

#include <optional>

/// The last page while files are installed.
class InstallationView {
public:
    InstallationView() = default;
    InstallationView(const InstallationView&) = delete;
    InstallationView& operator=(const InstallationView&) = delete;
    virtual ~InstallationView() = default;

    /// lblProgress.
    virtual void ShowText(const QString& text) = 0;
    /// ProgressBar1, 0 to 100.
    virtual void ShowProgress(int percent) = 0;
    /// All is done: cmdCancel is disabled, cmdNext enabled.
    virtual void ShowFinished() = 0;
};

namespace Installation {

struct Options {
    FileWatch* Watch = nullptr;        ///< told of each file of the game's folders that is written; null: the journal
    std::optional<QString> Password{}; ///< to try before anybody is asked for one
    bool Asks = true;                  ///< false: every question is answered with Yes, and nobody sees it
};

/// Asks what is to be asked, installs and tells `outcome` as it goes on. Files that are written are on the disk when it
/// returns. Yields. Raises, as this is told, when a single mod or the INI file beside it can't be copied; the outcome
/// holds what was done until then.
void InstallFiles(const InstallSource& source, GameIndex game, InstallationView& view, InstallOutcome& outcome,
                  const Options& options = {});

} // namespace Installation
