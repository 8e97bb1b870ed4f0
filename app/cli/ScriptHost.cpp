// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/cli/ScriptHost.h"

#include "app/cli/Output.h"

ScriptHost::ScriptHost() {
    Host::Use(this);
}

ScriptHost::~ScriptHost() {
    Host::Use(nullptr);
}

Host::Answer ScriptHost::Message(const QString& text, Icon /*icon*/, Buttons buttons, const QString& /*title*/) {
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
