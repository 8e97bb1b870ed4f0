// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The Host of a program without windows: questions have no one to answer them, progress is not shown.
#pragma once

#include "core/Host.h"

class ScriptHost : public Host {
public:
    ScriptHost();
    ~ScriptHost() override;

    Answer Message(const QString& text, Icon icon, Buttons buttons, const QString& title) override;
    std::optional<QString> InputBox(const QString& prompt, const QString& title, const QString& text) override;

    void Beep() override {}

    std::optional<QString> OpenFileName(const FileDialog& dialog) override;
    std::optional<QString> SaveFileName(const FileDialog& dialog) override;

    void ShowProgress() override {}

    void SetProgressText(const QString& /*text*/) override {}

    void SetProgressValue(int /*percent*/) override {}

    void HideProgress() override {}

    void UnloadProgress() override {}

    [[nodiscard]] bool ProgressCancelled() const override { return false; }

    void CancelProgress() override {}

    void StopProgressTimer() override {}

    void Yield() override {}
};
