// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Shell maps on a disk that tells not everything: what can't be read is not taken for empty.
#include "tests/personal/shellmap_support.h"
#include "tests/platform/posix/AnotherUser.h"

#include <sys/stat.h>

using namespace Qt::StringLiterals;
using mShellMaps::ActivateShellMap;
using mShellMaps::RemoveShellMap;

namespace {

class ShellMapRefusals : public ShellMapTest {
protected:
    static void SetPermissions(const QString& path, mode_t mode) {
        ASSERT_EQ(::chmod(Paths::EncodeNative(Paths::ToNativeAsGiven(path)).constData(), mode), 0);
    }

    /// Everybody may do everything in the world of the test.
    void OpenWorld() const {
        SetPermissions(world_.Root(), 0777);
        for (const QString& folder : {world_.Root() + u"\\games"_s, EntryOf(0).InstallPath.chopped(1),
                                      Folder({}).chopped(1), Folder(Name(1)), Folder(Name(2)), Folder(Name(3))})
            SetPermissions(folder, 0777);
    }
};

} // namespace

TEST_F(ShellMapRefusals, AFolderThatCantBeListedIsNotOverwrittenByTheNextOne) {
    for (const int number : {1, 2, 3})
        Store(number);
    OpenWorld();
    SetPermissions(Folder(Name(2)), 0333); // what is in it can be changed, and not seen
    {
        const AnotherUser user;
        RemoveShellMap(1, 0);
    }
    SetPermissions(Folder(Name(2)), 0777);
    EXPECT_EQ(Bytes(Name(2) + u"\\shellmap1.map"_s), "2");
    EXPECT_EQ(Bytes(Name(3) + u"\\shellmap1.map"_s), "3");
}

TEST_F(ShellMapRefusals, SettingsThatCantBeReadEmptyNothing) {
    Store(1);
    SetMode(u"Load001"_s);
    ActivateShellMap(0);
    ASSERT_EQ(FilesIn(u"ShellMap1"_s).value_or(QStringList()).size(), 2);
    const QString registry = world_.Root() + u"\\registry.reg"_s;
    Files::DeleteForced(registry);
    Files::MakeFolder(registry);
    ActivateShellMap(0);
    EXPECT_EQ(FilesIn(u"ShellMap1"_s).value_or(QStringList()).size(), 2);
}
