// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// How one room's window opens another's. The application wires it; what is not built answers by doing nothing harmful.
#pragma once

#include "core/Game.h"

#include <QString>

class QObject;

class Navigator {
public:
    Navigator() = default;
    Navigator(const Navigator&) = delete;
    Navigator& operator=(const Navigator&) = delete;
    virtual ~Navigator() = default;

    virtual void ShowToolsMenu() = 0;
    virtual void ShowBigEditor() = 0;
    virtual void OpenBigFile(const QString& path) = 0;
    virtual void ExtractBigFile(const QString& path) = 0;
    virtual void ShowCSFEditor() = 0;
    virtual void OpenCSFFile(const QString& path) = 0;
    virtual void ShowPersonalFiles() = 0;
    virtual void ShowAddFiles() = 0;

    /// Modal over `owner`, which may be null.
    virtual void ShowOptions(QObject* owner) = 0;
    virtual void ShowAbout(QObject* owner) = 0;

    virtual void CheckForUpdates(bool automatic) = 0;
    virtual void ActivateShellMap(GameIndex game) = 0;

    /// The tool windows that are built; the menu shows the others all the same.
    enum class Tool { BigEditor, CSFEditor, PersonalFiles, AddFiles, Options, Updates, Extraction };
    [[nodiscard]] virtual bool IsBuilt(Tool tool) const = 0;

    /// The one in use; asking for a missing one raises 91.
    static Navigator& Current();
    /// False before the application has wired one: a game is launched without.
    static bool IsInUse();
    static void Use(Navigator* navigator);
};
