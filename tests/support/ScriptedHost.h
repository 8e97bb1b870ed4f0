// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// A Host that answers from a script and records what was shown. A question beyond the script fails the test.
#pragma once

#include "core/Host.h"

#include <QStringList>

#include <deque>
#include <functional>
#include <vector>

class ScriptedHost : public Host {
public:
    struct Shown {
        QString Text;
        QString Title;
        Icon Sign;
        Buttons Choice;
        bool OverProgress; ///< the progress window was on the screen
        bool OverTimer;    ///< and came to the front by itself
    };

    ScriptedHost();
    ~ScriptedHost() override;

    std::deque<Answer> Answers;                    ///< for Message with more than one button
    std::deque<std::optional<QString>> InputTexts; ///< for InputBox
    std::deque<std::optional<QString>> FileNames;  ///< for OpenFileName and SaveFileName
    std::vector<Shown> Messages;                   ///< every message box, in order
    std::vector<FileDialog> Dialogs;               ///< every file dialog, in order
    QStringList ProgressTexts;
    std::vector<int> ProgressValues;
    int Beeps = 0;
    int Yields = 0;
    bool ProgressShown = false;
    bool Cancelled = false;        ///< the progress window's; false again when the next one is shown
    bool TimerRunning = false;     ///< the progress window's
    std::function<void()> OnYield; ///< runs inside each Yield

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

    [[nodiscard]] bool ProgressCancelled() const override { return Cancelled; }

    void CancelProgress() override;
    void StopProgressTimer() override;
    void Yield() override;
};
