// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/cli/ScriptHost.h"

#include "app/cli/Output.h"

namespace {

class NoProgress : public Progress {
public:
    void SetText(const QString& /*text*/) override {}

    void SetValue(int /*percent*/) override {}

    void Hide() override {}

    [[nodiscard]] bool Cancelled() const override { return false; }

    void Cancel() override {}

    void StopTimer() override {}

    void Release() override {}
};

} // namespace

ScriptHost::ScriptHost() {
    Host::Use(this);
}

ScriptHost::~ScriptHost() {
    Host::Use(nullptr);
}

Host::Answer ScriptHost::Message(const QString& text, Icon /*icon*/, Buttons buttons, const QString& /*title*/,
                                 std::optional<Answer> /*defaultAnswer*/) {
    Report(RuntimeError(ErrorNumber::InvalidCall, text.simplified()));
    return buttons == Buttons::Ok ? Answer::Ok : buttons == Buttons::YesNo ? Answer::No : Answer::Cancel;
}

std::optional<QString> ScriptHost::InputBox(const QString& /*prompt*/, const QString& /*title*/,
                                            const QString& /*text*/) {
    return std::nullopt;
}

std::optional<QString> ScriptHost::OpenFileName(const FileDialog& /*dialog*/) {
    return std::nullopt;
}

std::optional<QString> ScriptHost::SaveFileName(const FileDialog& /*dialog*/) {
    return std::nullopt;
}

std::optional<QString> ScriptHost::ChooseFolder(const QString& /*title*/, const QString& /*folder*/) {
    return std::nullopt;
}

std::unique_ptr<Progress> ScriptHost::ShowProgress() {
    return std::make_unique<NoProgress>();
}
