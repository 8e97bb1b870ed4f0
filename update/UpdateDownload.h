// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The download of what the check found, and the end of the program that follows it.
#pragma once

#include "update/TransferFigures.h"
#include "update/UpdateSession.h"

class BlockWriter;

class UpdateDownload {
public:
    explicit UpdateDownload(UpdateSession& session) : session_(session) {}

    /// Starts a downloaded program (an inside path), and ends this one.
    std::function<void(const QString& path)> Start = StartProgram;
    std::function<void()> End = EndProgram;

    /// The button Download. Asks about unsaved changes first.
    void Pressed();

    /// Fetches a file into the download folder, starts it and ends the program.
    void DownloadUpdate(const QString& url);

    /// `tmrRate` and `tmrTime`. The second raises 11 before the first byte.
    void ShowRate();
    void ShowTimes();

private:
    static void StartProgram(const QString& path);
    static void EndProgram();

    void Receive(BlockWriter& file);
    void CountChunk(qsizetype bytes);
    void Finish(const QString& url, const QString& path);

    UpdateSession& session_;
    TransferFigures figures_;
    int shownPercent_ = 0;
};
