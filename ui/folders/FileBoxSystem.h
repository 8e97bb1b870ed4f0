// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// What the folder tree asks of the machine. Tests script it.
#pragma once

#include "platform/ShellFolders.h"

#include <QString>

#include <functional>
#include <vector>

class FileBoxSystem {
public:
    /// The shell folders whose names and icons the registry tells.
    enum class ShellFolder { Machine, Documents, Network };

    FileBoxSystem() = default;
    FileBoxSystem(const FileBoxSystem&) = delete;
    FileBoxSystem& operator=(const FileBoxSystem&) = delete;
    virtual ~FileBoxSystem() = default;

    /// How the system calls it; empty when it does not say.
    [[nodiscard]] virtual QString NameOf(ShellFolder folder) const;

    /// Inside paths; empty when there is none.
    [[nodiscard]] virtual QString Documents() const;
    [[nodiscard]] virtual QString NetworkPlaces() const;
    [[nodiscard]] virtual std::vector<ShellFolders::Place> OtherPlaces() const;
    [[nodiscard]] virtual std::vector<ShellFolders::Drive> Drives() const;

    /// As ShellFolders::ForEachEntry.
    virtual void ForEachEntry(const QString& folder, const std::function<bool(const ShellFolders::Entry&)>& take) const;
};
