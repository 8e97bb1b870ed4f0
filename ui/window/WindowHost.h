// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The Host of the windowed program: message boxes, input boxes, file dialogs and the progress window.
#pragma once

#include "core/Host.h"
#include "ui/window/ProgressWindow.h"

#include <QElapsedTimer>

class QFileDialog;

class WindowHost : public Host {
public:
    /// `maker` makes the progress window each time it is shown.
    explicit WindowHost(ProgressWindowMaker maker);
    ~WindowHost() override;

    Answer Message(const QString& text, Icon icon, Buttons buttons, const QString& title) override;
    std::optional<QString> InputBox(const QString& prompt, const QString& title, const QString& text) override;
    void Beep() override;
    std::optional<QString> OpenFileName(const FileDialog& dialog) override;
    std::optional<QString> SaveFileName(const FileDialog& dialog) override;
    void ShowProgress() override;
    void SetProgressText(const QString& text) override;
    void SetProgressValue(int percent) override;
    void HideProgress() override;
    void UnloadProgress() override;
    [[nodiscard]] bool ProgressCancelled() const override;
    void CancelProgress() override;
    void StopProgressTimer() override;
    /// At most once in a few milliseconds, however often it is called.
    void Yield() override;

private:
    ProgressWindowMaker maker_;
    QElapsedTimer yielded_; ///< since the last time; not valid before the first
    std::unique_ptr<ProgressWindow> progress_;
};
