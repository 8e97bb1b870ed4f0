// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// A machine for the folder tree that tests write down.
#pragma once

#include "ui/folders/FileBoxSystem.h"

#include <QMap>
#include <QStringList>

class ScriptedMachine : public FileBoxSystem {
public:
    using Entry = ShellFolders::Entry;

    static Entry Folder(const QString& name) { return {name, {}, true, false, false}; }

    static Entry File(const QString& name) { return {name, {}, false, false, false}; }

    static Entry Hidden(Entry entry) {
        entry.IsHidden = true;
        return entry;
    }

    /// A shortcut's file.
    static Entry Shortcut(const QString& name, const QString& target, bool toFolder) {
        return {name, target, false, false, toFolder};
    }

    /// A symbolic link to a folder.
    static Entry Link(const QString& name, const QString& target) { return {name, target, true, false, true}; }

    QMap<ShellFolder, QString> Names;
    QString DocumentsFolder = QStringLiteral("C:\\Users\\Me\\Documents");
    QString NetworkFolder = QStringLiteral("C:\\Users\\Me\\NetHood");
    std::vector<ShellFolders::Place> Others;
    std::vector<ShellFolders::Drive> AllDrives{{QStringLiteral("A:\\"), QStringLiteral("A:\\"), Kind::Removable},
                                               {QStringLiteral("C:\\"), QStringLiteral("C:\\"), Kind::Fixed},
                                               {QStringLiteral("D:\\"), QStringLiteral("D:\\"), Kind::CdRom},
                                               {QStringLiteral("N:\\"), QStringLiteral("N:\\"), Kind::Remote}};
    QMap<QString, std::vector<Entry>> Entries; ///< by the folder's path, which ends in a backslash
    mutable QStringList Walked;                ///< the folders that were enumerated, in order

    [[nodiscard]] QString NameOf(ShellFolder folder) const override { return Names.value(folder); }

    [[nodiscard]] QString Documents() const override { return DocumentsFolder; }

    [[nodiscard]] QString NetworkPlaces() const override { return NetworkFolder; }

    [[nodiscard]] std::vector<ShellFolders::Place> OtherPlaces() const override { return Others; }

    [[nodiscard]] std::vector<ShellFolders::Drive> Drives() const override { return AllDrives; }

    void ForEachEntry(const QString& folder, const std::function<bool(const Entry&)>& take) const override {
        Walked += folder;
        for (const Entry& entry : Entries.value(folder))
            if (!take(entry))
                return;
    }

private:
    using Kind = ShellFolders::DriveKind;
};
