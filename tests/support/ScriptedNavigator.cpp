// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/support/ScriptedNavigator.h"

using namespace Qt::StringLiterals;

ScriptedNavigator::ScriptedNavigator() {
    Use(this);
}

ScriptedNavigator::~ScriptedNavigator() {
    Use(nullptr);
}

void ScriptedNavigator::Record(const QString& call) {
    Calls.append(call);
    if (OnCall)
        OnCall(call);
}

void ScriptedNavigator::ShowToolsMenu() {
    Record(u"ShowToolsMenu"_s);
}

void ScriptedNavigator::ShowBigEditor() {
    Record(u"ShowBigEditor"_s);
}

void ScriptedNavigator::OpenBigFile(const QString& path) {
    Record(u"OpenBigFile "_s + path);
}

void ScriptedNavigator::ExtractBigFile(const QString& path) {
    Record(u"ExtractBigFile "_s + path);
}

void ScriptedNavigator::ShowCSFEditor() {
    Record(u"ShowCSFEditor"_s);
}

void ScriptedNavigator::OpenCSFFile(const QString& path) {
    Record(u"OpenCSFFile "_s + path);
}

void ScriptedNavigator::ShowPersonalFiles() {
    Record(u"ShowPersonalFiles"_s);
}

void ScriptedNavigator::ShowAddFiles() {
    Record(u"ShowAddFiles"_s);
}

void ScriptedNavigator::ShowOptions(QObject*) {
    Record(u"ShowOptions"_s);
}

void ScriptedNavigator::ShowAbout(QObject*) {
    Record(u"ShowAbout"_s);
}

void ScriptedNavigator::CheckForUpdates(bool automatic) {
    Record(automatic ? u"CheckForUpdates automatic"_s : u"CheckForUpdates manual"_s);
}

void ScriptedNavigator::ActivateShellMap(GameIndex game) {
    Record(u"ActivateShellMap "_s + QString::number(game));
}

bool ScriptedNavigator::IsBuilt(Tool tool) const {
    return !NotBuilt.contains(tool);
}
