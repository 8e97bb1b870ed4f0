// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// What the check and the download of one update window share: the client, the window, and the flags by which they
/// speak with what runs inside their waits.
#pragma once

#include "update/HttpClient.h"
#include "update/UpdateView.h"

#include <functional>

struct UpdateSession {
    UpdateSession(HttpClient& http, UpdateView& view);

    HttpClient& Http;
    UpdateView& View;
    QString PublicKey;                    ///< the one of `updater.cfg` as the check began; empty: nothing is signed
    bool ServerFailed = false;            ///< the last request failed
    bool Downloading = false;             ///< from the request for the update to its last byte
    bool DownloadCancelRequested = false; ///< by the user
    bool GivenUp = false;                 ///< the automatic check has waited long enough
    bool Closed = false;                  ///< the window is gone, or the program ends
    std::function<double()> SecondsOfDay; ///< the time; the system's, to some milliseconds

    /// Nobody waits for the check any more.
    [[nodiscard]] bool Stopped() const { return Closed || GivenUp; }

    /// Requests a file and waits for the answer's head.
    void Get(const QString& url);

    /// The length that the server tells of a file; 0 where there is none, or more than 32 bits.
    qint32 RemoteFileSize(const QString& url);

    /// The body of a small file, no more than `most` bytes of it; empty when the transfer failed.
    QByteArray GetSmall(const QString& url, qsizetype most);

    void CloseWindow();

    /// The server could not be reached: says so and closes the window.
    void Fail();

    /// Says why nothing is started and closes the window.
    void Refuse(const QString& text);
};
