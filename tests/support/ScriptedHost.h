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
        std::optional<Answer> Default;
    };

    ScriptedHost();
    ~ScriptedHost() override;

    std::deque<Answer> Answers;                    ///< for Message with more than one button
    std::deque<std::optional<QString>> InputTexts; ///< for InputBox
    std::deque<std::optional<QString>> FileNames;  ///< for OpenFileName and SaveFileName
    std::deque<QStringList> FileLists;             ///< for OpenFileNames; without one it asks for one file
    std::deque<std::optional<QString>> Folders;    ///< for ChooseFolder
    std::vector<Shown> Messages;                   ///< every message box, in order
    QStringList Listed;                            ///< the text of the last list that can be copied, and its lines
    std::function<void()> OnMessage;               ///< runs while each message box is shown
    std::vector<FileDialog> Dialogs; ///< every file dialog, in order; a folder chooser has only a title and a folder
    QStringList ProgressTexts;
    std::vector<int> ProgressValues;
    int Beeps = 0;
    int Yields = 0;
    bool ProgressShown = false;
    bool Cancelled = false;        ///< the progress window's; false again when the next one is shown
    bool TimerRunning = false;     ///< the progress window's
    std::function<void()> OnYield; ///< runs inside each Yield
    int Waits = 0;
    std::function<void()> OnWait; ///< runs inside each WaitUntil, again and again until the condition holds

    /// The user presses the button of the progress window.
    void CancelProgress();

    Answer Message(const QString& text, Icon icon, Buttons buttons, const QString& title,
                   std::optional<Answer> defaultAnswer) override;

    void MessageWithList(const QString& text, const QStringList& lines) override { Listed = QStringList{text} + lines; }

    std::optional<QString> InputBox(const QString& prompt, const QString& title, const QString& text) override;
    void Beep() override;
    std::optional<QString> OpenFileName(const FileDialog& dialog) override;
    QStringList OpenFileNames(const FileDialog& dialog) override;
    std::optional<QString> SaveFileName(const FileDialog& dialog) override;
    std::optional<QString> ChooseFolder(const QString& title, const QString& folder) override;
    [[nodiscard]] std::unique_ptr<Progress> ShowProgress() override;
    void Yield() override;
    /// A condition that still does not hold after many rounds fails the test.
    bool WaitUntil(const std::function<bool()>& condition) override;
};
