// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// How a window takes away what came into a game with one of its files. Who keeps the journal of installs implements
/// it, and the application wires it.
#pragma once

#include <QString>

class Uninstaller {
public:
    Uninstaller() = default;
    Uninstaller(const Uninstaller&) = delete;
    Uninstaller& operator=(const Uninstaller&) = delete;
    virtual ~Uninstaller() = default;

    /// Whether an install is known that brought this file (an inside path), or a file in this folder.
    [[nodiscard]] virtual bool Knows(const QString& path) = 0;
    /// Shows what would go, stay and come back, asks, and does it; shows what failed. Of several installs the last one
    /// is meant. True when files may be others now.
    virtual bool Uninstall(const QString& path) = 0;

    /// The one in use; null where there is none.
    static Uninstaller* Current();
    static void Use(Uninstaller* uninstaller);
};
