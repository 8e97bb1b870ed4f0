// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// A Navigator that opens nothing and records what was asked for.
#pragma once

#include "core/Navigator.h"

#include <QStringList>

#include <functional>

class ScriptedNavigator : public Navigator {
public:
    ScriptedNavigator();
    ~ScriptedNavigator() override;

    QStringList Calls;                          ///< the routine's name, then a blank and its argument where it has one
    QObject* Owner = nullptr;                   ///< of the last modal window
    bool WindowsComeUp = true;                  ///< what the three tools answer
    bool ToolsMenuEnabled = true;               ///< as it was told last
    bool ProgramMayEnd = true;                  ///< what the open tools answer
    std::function<void(const QString&)> OnCall; ///< runs inside each call with what is recorded of it

    void ShowToolsMenu() override;
    bool ShowBigEditor() override;
    bool ShowCSFEditor() override;
    bool ShowPersonalFiles() override;
    void OpenBigFile(const QString& path) override;
    void ExtractBigFile(const QString& path) override;
    void OpenCSFFile(const QString& path) override;
    void ShowOptions(QObject* owner) override;
    void ShowAbout(QObject* owner) override;
    void ShowAddFiles(QObject* owner, const QString& file) override;
    void ShowExportFiles(QObject* owner) override;
    void CheckForUpdates(bool automatic) override;
    void EnableToolsMenu(bool enabled) override;
    bool MayEndProgram() override;

private:
    void Record(const QString& call);
    void RecordModal(const QString& call, QObject* owner);
};
