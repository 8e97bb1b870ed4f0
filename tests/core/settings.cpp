// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/Settings.h"
#include "core/mMain.h"
#include "tests/support/Printing.h"
#include "tests/support/World.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

const QString Key = u"Software\\Halvern\\Brindock\\2005"_s;

class Settings : public testing::Test {
protected:
    World world_;
};

} // namespace

TEST_F(Settings, AMissingValueReadsAsEmptyText) {
    EXPECT_EQ(ReadSetting(u"BigView"_s), QString());
}

TEST_F(Settings, AWrittenValueReadsBack) {
    WriteSetting(u"GenStartupOptions"_s, u" -nologo -noshellmap"_s);
    EXPECT_EQ(ReadSetting(u"GenStartupOptions"_s), u" -nologo -noshellmap"_s);
    EXPECT_EQ(mMain::Registry().GetString(RootKey::CurrentUser, Key, u"GenStartupOptions"_s),
              u" -nologo -noshellmap"_s);
}

TEST_F(Settings, ReadsAreLive) {
    WriteSetting(u"BigView"_s, u"1"_s);
    RegistryRuntime().SaveString(RootKey::CurrentUser, Key, u"BigView"_s, u"3"_s);
    EXPECT_EQ(ReadSetting(u"BigView"_s), u"3"_s);
}

TEST_F(Settings, ANumberInTheRegistryReadsAsEmptyText) {
    mMain::Registry().SaveDword(RootKey::CurrentUser, Key, u"ViewFileIcons"_s, 1);
    EXPECT_EQ(ReadSetting(u"ViewFileIcons"_s), QString());
}

TEST_F(Settings, EmptyTextIsStoredAndReadsAsEmptyText) {
    WriteSetting(u"GenLoadMod"_s, u"mod.big"_s);
    WriteSetting(u"GenLoadMod"_s, QString());
    EXPECT_EQ(ReadSetting(u"GenLoadMod"_s), QString());
    EXPECT_FALSE(mMain::Registry().FoundIn(RootKey::CurrentUser, Key, u"GenLoadMod"_s).isEmpty());
}

TEST_F(Settings, AnINIValueOf300CharactersReadsAsItsFirst254) {
    const QString file = world_.WriteFile(u"long.ini"_s, "[S]\r\nK=" + QByteArray(300, 'x') + "\r\n");
    EXPECT_EQ(mMain::INI().ReadINI(u"S"_s, u"K"_s, file), QString(254, u'x'));
}

TEST_F(Settings, AnINIFileThatIsAFolderOrHasNoNameReadsAsEmptyText) {
    EXPECT_EQ(mMain::INI().ReadINI(u"S"_s, u"K"_s, world_.ProgramFolder()), QString());
    EXPECT_EQ(mMain::INI().ReadINI(u"S"_s, u"K"_s, world_.ProgramFolder() + u'\\'), QString());
    EXPECT_EQ(mMain::INI().ReadINI(u"S"_s, u"K"_s, world_.ProgramFolder() + u"\\none.ini"_s), QString());
}
