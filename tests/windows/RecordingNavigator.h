// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// A Navigator that opens nothing and notes what it was asked for.
#pragma once

#include "core/Navigator.h"

#include <QStringList>

#include <functional>
#include <set>

class RecordingNavigator : public Navigator {
public:
    RecordingNavigator() { Use(this); }

    ~RecordingNavigator() override { Use(nullptr); }

    QStringList Asked;
    std::set<Tool> Built{Tool::BigEditor, Tool::CSFEditor, Tool::PersonalFiles, Tool::Options};
    std::function<void()> OnShow; ///< runs while a tool is shown

    void ShowToolsMenu() override { Note(QStringLiteral("ToolsMenu")); }

    void ShowBigEditor() override { Note(QStringLiteral("BigEditor")); }

    void OpenBigFile(const QString& path) override { Note(path); }

    void ExtractBigFile(const QString& path) override { Note(path); }

    void ShowCSFEditor() override { Note(QStringLiteral("CSFEditor")); }

    void OpenCSFFile(const QString& path) override { Note(path); }

    void ShowPersonalFiles() override { Note(QStringLiteral("PersonalFiles")); }

    void ShowAddFiles() override { Note(QStringLiteral("AddFiles")); }

    void ShowOptions(QObject* /*owner*/) override { Note(QStringLiteral("Options")); }

    void ShowAbout(QObject* /*owner*/) override { Note(QStringLiteral("About")); }

    void CheckForUpdates(bool /*automatic*/) override { Note(QStringLiteral("Updates")); }

    void ActivateShellMap(GameIndex /*game*/) override { Note(QStringLiteral("ShellMap")); }

    [[nodiscard]] bool IsBuilt(Tool tool) const override { return Built.contains(tool); }

private:
    void Note(const QString& what) {
        Asked += what;
        if (OnShow)
            OnShow();
    }
};
