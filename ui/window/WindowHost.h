// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The Host of the windowed program: message boxes, input boxes, file dialogs and the progress window.
#pragma once

#include "core/Host.h"

#include <QElapsedTimer>

class frmProgress;

class WindowHost : public Host {
public:
    WindowHost();
    ~WindowHost() override;

    Answer Message(const QString& text, Icon icon, Buttons buttons, const QString& title,
                   std::optional<Answer> defaultAnswer) override;
    void MessageWithList(const QString& text, const QStringList& lines) override;
    std::optional<QString> InputBox(const QString& prompt, const QString& title, const QString& text) override;
    void Beep() override;
    std::optional<QString> OpenFileName(const FileDialog& dialog) override;
    QStringList OpenFileNames(const FileDialog& dialog) override;
    std::optional<QString> SaveFileName(const FileDialog& dialog) override;
    std::optional<QString> ChooseFolder(const QString& title, const QString& folder) override;
    [[nodiscard]] std::unique_ptr<Progress> ShowProgress() override;
    /// At most once in a few milliseconds, however often it is called. What runs in a yield yields no more.
    void Yield() override;

private:
    QElapsedTimer yielded_; ///< since the last time; not valid before the first
    bool yielding_ = false;
    std::unique_ptr<frmProgress> left_; ///< the progress window that was told to stay on the screen
};
