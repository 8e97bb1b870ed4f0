// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// What the update window shows, as the client sees it. The window implements it, tests record it.
#pragma once

#include <QString>

class UpdateView {
public:
    /// One of them is shown at a time.
    enum class Panel { Searching, NoUpdate, Found, Download };
    enum class Field { Version, Type, Size, FileName, Percent, Rate, RemainingTime, ElapsedTime, DownloadSize };

    UpdateView() = default;
    UpdateView(const UpdateView&) = delete;
    UpdateView& operator=(const UpdateView&) = delete;
    virtual ~UpdateView() = default;

    virtual void ShowWindow() = 0;
    virtual void ShowPanel(Panel panel) = 0;
    virtual void SetText(Field field, const QString& text) = 0;
    /// 0 to 100.
    virtual void SetProgress(int percent) = 0;
    /// The button Download; one that is enabled has the focus.
    virtual void EnableDownload(bool enabled) = 0;
    /// `tmrRate` and `tmrTime`.
    virtual void RunTimers(bool running) = 0;
    virtual void BringToFront() = 0;
    /// Closes the window, which tells the client so.
    virtual void CloseWindow() = 0;
};
