// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The progress window as the Host sees it. The application hands in the real one.
#pragma once

#include <QString>

#include <functional>
#include <memory>

class QWidget;

class ProgressWindow {
public:
    ProgressWindow() = default;
    ProgressWindow(const ProgressWindow&) = delete;
    ProgressWindow& operator=(const ProgressWindow&) = delete;
    virtual ~ProgressWindow() = default;

    /// The window itself, owned by this object and not yet shown.
    virtual QWidget* Widget() = 0;
    virtual void SetText(const QString& text) = 0;
    /// 0 to 100.
    virtual void SetValue(int percent) = 0;
    [[nodiscard]] virtual bool Cancelled() const = 0;
    /// As its button: stops the timer and sets Cancelled.
    virtual void Cancel() = 0;
    /// The window comes to the front by itself no longer.
    virtual void StopTimer() = 0;
};

using ProgressWindowMaker = std::function<std::unique_ptr<ProgressWindow>()>;
