// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Which window a tool is: the application's side of the Navigator.
#pragma once

#include "core/Navigator.h"

/// Opens the windows of the rooms that are built. A tool that is not built yet leaves the user in the tools menu.
class Suite : public Navigator {
public:
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
};
