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

void ScriptedNavigator::RecordModal(const QString& call, QObject* owner) {
    Owner = owner;
    Record(call);
}

void ScriptedNavigator::ShowToolsMenu() {
    Record(u"ShowToolsMenu"_s);
}

bool ScriptedNavigator::ShowBigEditor() {
    Record(u"ShowBigEditor"_s);
    return WindowsComeUp;
}

void ScriptedNavigator::OpenBigFile(const QString& path) {
    Record(u"OpenBigFile "_s + path);
}

void ScriptedNavigator::ExtractBigFile(const QString& path) {
    Record(u"ExtractBigFile "_s + path);
}

bool ScriptedNavigator::ShowCSFEditor() {
    Record(u"ShowCSFEditor"_s);
    return WindowsComeUp;
}

void ScriptedNavigator::OpenCSFFile(const QString& path) {
    Record(u"OpenCSFFile "_s + path);
}

bool ScriptedNavigator::ShowPersonalFiles() {
    Record(u"ShowPersonalFiles"_s);
    return WindowsComeUp;
}

void ScriptedNavigator::ShowAddFiles(QObject* owner, const QString& file) {
    RecordModal(file.isEmpty() ? u"ShowAddFiles"_s : u"ShowAddFiles "_s + file, owner);
}

void ScriptedNavigator::ShowExportFiles(QObject* owner) {
    RecordModal(u"ShowExportFiles"_s, owner);
}

void ScriptedNavigator::ShowOptions(QObject* owner) {
    RecordModal(u"ShowOptions"_s, owner);
}

void ScriptedNavigator::ShowAbout(QObject* owner) {
    RecordModal(u"ShowAbout"_s, owner);
}

void ScriptedNavigator::EnableToolsMenu(bool enabled) {
    ToolsMenuEnabled = enabled;
}

bool ScriptedNavigator::MayEndProgram() {
    Record(u"MayEndProgram"_s);
    return ProgramMayEnd;
}

void ScriptedNavigator::CheckForUpdates(bool automatic) {
    Record(automatic ? u"CheckForUpdates automatic"_s : u"CheckForUpdates manual"_s);
}
