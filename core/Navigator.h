// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// How one room's window opens another's. The application wires it.
#pragma once

#include <QString>

class QObject;

class Navigator {
public:
    Navigator() = default;
    Navigator(const Navigator&) = delete;
    Navigator& operator=(const Navigator&) = delete;
    virtual ~Navigator() = default;

    virtual void ShowToolsMenu() = 0;
    /// These three take the tools menu's place; false when no window came up, and who asked stays.
    virtual bool ShowBigEditor() = 0;
    virtual bool ShowCSFEditor() = 0;
    virtual bool ShowPersonalFiles() = 0;
    virtual void OpenBigFile(const QString& path) = 0;
    virtual void ExtractBigFile(const QString& path) = 0;
    virtual void OpenCSFFile(const QString& path) = 0;

    /// Modal over `owner`, a window, and back when they are closed.
    virtual void ShowOptions(QObject* owner) = 0;
    virtual void ShowAbout(QObject* owner) = 0;
    /// For the ExportRecords.
    virtual void ShowExportFiles(QObject* owner) = 0;
    /// As these, with a file to add (inside path; empty: the user chooses one); without an owner a window of its own,
    /// and back at once.
    virtual void ShowAddFiles(QObject* owner, const QString& file) = 0;

    /// An automatic check comes back when it is over or has found something, one by the user at once.
    virtual void CheckForUpdates(bool automatic) = 0;

    /// The tools menu takes clicks and keys, or no longer; nothing where it is not visible.
    virtual void EnableToolsMenu(bool enabled) = 0;

    /// Asks each open tool about unsaved changes, before the program ends without closing them; false when one of them
    /// has to stay.
    virtual bool MayEndProgram() = 0;

    /// The one in use; asking for a missing one raises 91.
    static Navigator& Current();
    static void Use(Navigator* navigator);
};
