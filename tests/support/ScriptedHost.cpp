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

class ScriptedProgress : public Progress {
public:
    explicit ScriptedProgress(ScriptedHost& host) : host_(host) {
        host_.ProgressShown = true;
        host_.Cancelled = false;
        host_.TimerRunning = true;
    }

    ~ScriptedProgress() override {
        if (released_)
            return;
        host_.ProgressShown = false;
        host_.TimerRunning = false;
    }

    void SetText(const QString& text) override { host_.ProgressTexts.append(text); }

    void SetValue(int percent) override { host_.ProgressValues.push_back(percent); }

    void Hide() override { host_.ProgressShown = false; }

    [[nodiscard]] bool Cancelled() const override { return host_.Cancelled; }

    void Cancel() override { host_.CancelProgress(); }

    void StopTimer() override { host_.TimerRunning = false; }

    void Release() override { released_ = true; }

private:
    ScriptedHost& host_;
    bool released_ = false;
};

} // namespace

ScriptedHost::ScriptedHost() {
    Use(this);
}

ScriptedHost::~ScriptedHost() {
    Use(nullptr);
}

Host::Answer ScriptedHost::Message(const QString& text, Icon icon, Buttons buttons, const QString& title,
                                   std::optional<Answer> defaultAnswer) {
    Messages.push_back({text, title, icon, buttons, ProgressShown, TimerRunning, defaultAnswer});
    if (OnMessage)
        OnMessage();
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

QStringList ScriptedHost::OpenFileNames(const FileDialog& dialog) {
    if (FileLists.empty())
        return Host::OpenFileNames(dialog);
    Dialogs.push_back(dialog);
    QStringList paths = FileLists.front();
    FileLists.pop_front();
    return paths;
}

std::optional<QString> ScriptedHost::SaveFileName(const FileDialog& dialog) {
    Dialogs.push_back(dialog);
    return Next(FileNames, dialog.Title);
}

std::optional<QString> ScriptedHost::ChooseFolder(const QString& title, const QString& folder) {
    Dialogs.push_back({.Title = title, .Filter = {}, .DefaultExtension = {}, .DefaultName = {}, .Folder = folder});
    return Next(Folders, title);
}

std::unique_ptr<Progress> ScriptedHost::ShowProgress() {
    return std::make_unique<ScriptedProgress>(*this);
}

void ScriptedHost::CancelProgress() {
    Cancelled = true;
    TimerRunning = false;
}

void ScriptedHost::Yield() {
    ++Yields;
    if (OnYield)
        OnYield();
}

bool ScriptedHost::WaitUntil(const std::function<bool()>& condition) {
    constexpr int mostRounds = 1000;
    ++Waits;
    for (int round = 0; round < mostRounds; ++round) {
        if (condition())
            return true;
        if (OnWait)
            OnWait();
    }
    throw std::logic_error("A wait that nothing ends.");
}
