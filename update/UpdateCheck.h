// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The check: asks the server which release is the latest, and shows what it found.
#pragma once

#include "update/UpdateSession.h"

#include <QTimer>

#include <chrono>

class UpdateCheck {
public:
    /// An automatic check holds back the first window, so it gives up after a while.
    static constexpr std::chrono::milliseconds Patience{5000};

    explicit UpdateCheck(UpdateSession& session, std::chrono::milliseconds patience = Patience);

    /// What the window does when it loads.
    void Load();

private:
    void CheckServer();
    [[nodiscard]] bool FetchInfo();
    [[nodiscard]] bool IsSigned();
    [[nodiscard]] bool IsSomethingAvailable() const;
    void ShowNothing();
    void ShowUpdate();
    void FindPatch();
    void FindRelease();

    UpdateSession& session_;
    QTimer patience_;
};
