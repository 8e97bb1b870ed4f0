// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "update/UpdateClient.h"

#include "core/Navigator.h"

UpdateClient::UpdateClient(HttpClient& http, UpdateView& view, std::chrono::milliseconds patience)
    : Session(http, view),
      Download(Session),
      check_(Session, patience) {}

void UpdateClient::CancelPressed() {
    if (!Session.Downloading)
        return Session.CloseWindow();
    // The download closes the window; it may wait for a server that never answers.
    Session.DownloadCancelRequested = true;
    Session.Http.Cancel();
}

void UpdateClient::WindowClosed() {
    Session.Closed = true;
    Session.Http.Cancel();
    Navigator::Current().EnableToolsMenu(true);
}

void UpdateClient::KeepInFront() {
    Session.View.BringToFront();
    Navigator::Current().EnableToolsMenu(false);
}
