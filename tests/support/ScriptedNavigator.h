// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// A Navigator that opens nothing and records what was asked for.
#pragma once

#include "core/Navigator.h"

#include <QStringList>

#include <functional>
#include <set>

class ScriptedNavigator : public Navigator {
public:
    ScriptedNavigator();
    ~ScriptedNavigator() override;

    QStringList Calls;                          ///< the routine's name, then a blank and its argument where it has one
    std::set<Tool> NotBuilt;                    ///< every tool that is not named here counts as built
    std::function<void(const QString&)> OnCall; ///< runs inside each call with what is recorded of it

    void ShowToolsMenu() override;
    void ShowBigEditor() override;
    void OpenBigFile(const QString& path) override;
    void ExtractBigFile(const QString& path) override;
    void ShowCSFEditor() override;
    void OpenCSFFile(const QString& path) override;
    void ShowPersonalFiles() override;
    void ShowAddFiles() override;
    void ShowOptions(QObject* owner) override;
    void ShowAbout(QObject* owner) override;
    void CheckForUpdates(bool automatic) override;
    void ActivateShellMap(GameIndex game) override;
    [[nodiscard]] bool IsBuilt(Tool tool) const override;

private:
    void Record(const QString& call);
};
