// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/support/ScriptedHost.h"

#include <stdexcept>

namespace {

template <typename Value>
Value Next(std::deque<Value>& script, const QString& question) {
    if (script.empty())
        throw std::logic_error("A question beyond the script: " + question.toStdString());
    Value value = script.front();
    script.pop_front();
    return value;
}

} // namespace

ScriptedHost::ScriptedHost() {
    Use(this);
}

ScriptedHost::~ScriptedHost() {
    Use(nullptr);
}

Host::Answer ScriptedHost::Message(const QString& text, Icon icon, Buttons buttons, const QString& title) {
    Messages.push_back({text, title, icon, buttons, ProgressShown, TimerRunning});
    return buttons == Buttons::Ok ? Answer::Ok : Next(Answers, text);
}

std::optional<QString> ScriptedHost::InputBox(const QString& prompt, const QString&, const QString&) {
    return Next(InputTexts, prompt);
}

void ScriptedHost::Beep() {
    ++Beeps;
}

std::optional<QString> ScriptedHost::OpenFileName(const FileDialog& dialog) {
    Dialogs.push_back(dialog);
    return Next(FileNames, dialog.Title);
}

std::optional<QString> ScriptedHost::SaveFileName(const FileDialog& dialog) {
    Dialogs.push_back(dialog);
    return Next(FileNames, dialog.Title);
}

void ScriptedHost::ShowProgress() {
    ProgressShown = true;
    Cancelled = false;
    TimerRunning = true;
}

void ScriptedHost::SetProgressText(const QString& text) {
    ProgressTexts.append(text);
}

void ScriptedHost::SetProgressValue(int percent) {
    ProgressValues.push_back(percent);
}

void ScriptedHost::HideProgress() {
    ProgressShown = false;
}

void ScriptedHost::CancelProgress() {
    Cancelled = true;
    TimerRunning = false;
}

void ScriptedHost::StopProgressTimer() {
    TimerRunning = false;
}

void ScriptedHost::UnloadProgress() {
    ProgressShown = false;
    TimerRunning = false;
}

void ScriptedHost::Yield() {
    ++Yields;
    if (OnYield)
        OnYield();
}
