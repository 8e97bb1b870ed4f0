// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// What the update window does, without the window: the check, the download, and what its buttons and timers ask for.
#pragma once

#include "update/UpdateCheck.h"
#include "update/UpdateDownload.h"

class UpdateClient {
public:
    /// Both outlive this object.
    UpdateClient(HttpClient& http, UpdateView& view, std::chrono::milliseconds patience = UpdateCheck::Patience);

    /// The window loads. Comes back when the check is over or has found something.
    void Load() { check_.Load(); }

    /// The buttons.
    void DownloadPressed() { Download.Pressed(); }

    void CancelPressed();

    /// The window has been closed, however.
    void WindowClosed();

    /// `tmrZOrder`: the menu stays locked for as long as the window is loaded.
    void KeepInFront();

    UpdateSession Session;
    UpdateDownload Download;

private:
    UpdateCheck check_;
};
