// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The Host of a program without windows: questions have no one to answer them, progress is not shown.
#pragma once

#include "core/Host.h"

class ScriptHost : public Host {
public:
    ScriptHost();
    ~ScriptHost() override;

    Answer Message(const QString& text, Icon icon, Buttons buttons, const QString& title,
                   std::optional<Answer> defaultAnswer) override;
    std::optional<QString> InputBox(const QString& prompt, const QString& title, const QString& text) override;

    void Beep() override {}

    std::optional<QString> OpenFileName(const FileDialog& dialog) override;
    std::optional<QString> SaveFileName(const FileDialog& dialog) override;

    std::optional<QString> ChooseFolder(const QString& title, const QString& folder) override;
    [[nodiscard]] std::unique_ptr<Progress> ShowProgress() override;

    void Yield() override {}
};
