// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/folders/FileBoxSystem.h"

#include "core/mMain.h"

using namespace Qt::StringLiterals;

QString FileBoxSystem::NameOf(ShellFolder folder) const {
    switch (folder) {
    case ShellFolder::Machine:
        return mMain::Registry().GetString(RootKey::ClassesRoot, u"CLSID\\{20D04FE0-3AEA-1069-A2D8-08002B30309D}"_s,
                                           {});
    case ShellFolder::Documents:
        return mMain::Registry().GetString(RootKey::ClassesRoot, u"CLSID\\{450D8FBA-AD25-11D0-98A8-0800361B1103}"_s,
                                           {});
    case ShellFolder::Network:
        break;
    }
    return mMain::Registry().GetString(RootKey::ClassesRoot, u"CLSID\\{208D2C60-3AEA-1069-A2D7-08002B30309D}"_s, {});
}

QString FileBoxSystem::Documents() const {
    return ShellFolders::Documents();
}

QString FileBoxSystem::NetworkPlaces() const {
    return ShellFolders::NetworkPlaces();
}

std::vector<ShellFolders::Place> FileBoxSystem::OtherPlaces() const {
    return ShellFolders::OtherPlaces();
}

std::vector<ShellFolders::Drive> FileBoxSystem::Drives() const {
    return ShellFolders::Drives();
}

void FileBoxSystem::ForEachEntry(const QString& folder,
                                 const std::function<bool(const ShellFolders::Entry&)>& take) const {
    ShellFolders::ForEachEntry(folder, take);
}
