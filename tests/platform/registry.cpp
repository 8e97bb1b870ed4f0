// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/RegistryRuntime.h"

#include "tests/platform/Scratch.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

constexpr auto User = RootKey::CurrentUser;
const auto Key = u"Software\\Halvern\\Brindock\\2005"_s;

/// The registry in a file of the test's own, on either system.
class RegistryTest : public testing::Test {
protected:
    void Holds(const QByteArray& values) const {
        scratch_.Write(u"own.reg"_s, "REGEDIT4\n[HKEY_CURRENT_USER\\Software\\Halvern\\Brindock\\2005]\n" + values);
    }

    [[nodiscard]] std::string Text(const QString& name) const {
        return registry_.GetString(User, Key, name).toStdString();
    }

    Scratch scratch_;
    Variable file_{"BRINDOCK_REGISTRY", scratch_.Native(u"own.reg"_s).toUtf8()};
    Variable prefixes_{"BRINDOCK_WINE_PREFIXES", ""};
    RegistryRuntime registry_;
};

} // namespace

TEST_F(RegistryTest, ATextComesBack) {
    registry_.SaveString(User, Key, u"TradFileName"_s, u"Français.lng"_s);
    EXPECT_EQ(Text(u"TradFileName"_s), "Français.lng");
    EXPECT_EQ(Text(u"tradfilename"_s), "Français.lng");
}

TEST_F(RegistryTest, AMissingValueReadsAsEmptyText) {
    EXPECT_EQ(Text(u"TradFileName"_s), "");
    EXPECT_EQ(registry_.GetDword(User, Key, u"TradFileName"_s), 0U);
    EXPECT_EQ(registry_.FoundIn(User, Key, u"TradFileName"_s), QString());
}

TEST_F(RegistryTest, ADwordUnderASettingsNameReadsAsEmptyText) {
    registry_.SaveDword(User, Key, u"AutoCheckForUpdates"_s, 1);
    EXPECT_EQ(Text(u"AutoCheckForUpdates"_s), "");
    EXPECT_EQ(registry_.GetDword(User, Key, u"AutoCheckForUpdates"_s), 1U);
}

TEST_F(RegistryTest, ATextReadsAsTheNumberZero) {
    registry_.SaveString(User, Key, u"n"_s, u"12"_s);
    EXPECT_EQ(registry_.GetDword(User, Key, u"n"_s), 0U);
}

TEST_F(RegistryTest, AnyOtherTypeReadsAsEmptyText) {
    Holds("\"n\"=hex(2):25,41,25,00\n\"b\"=hex:61,62\n");
    EXPECT_EQ(Text(u"n"_s), "");
    EXPECT_EQ(Text(u"b"_s), "");
}

TEST_F(RegistryTest, EmptyTextIsStoredAndReadsLikeAMissingValue) {
    registry_.SaveString(User, Key, u"GenLoadMod"_s, QString());
    EXPECT_TRUE(scratch_.Read(u"own.reg"_s).contains("\"GenLoadMod\"=\"\"\r\n"));
    EXPECT_EQ(Text(u"GenLoadMod"_s), "");
}

TEST_F(RegistryTest, ATextIsReadUpToItsFirstZero) {
    registry_.SaveString(User, Key, u"n"_s, u"ab"_s + QChar(0) + u"cd"_s);
    EXPECT_EQ(Text(u"n"_s), "ab");
}

TEST_F(RegistryTest, TextsCrossInTheAnsiCodePage) {
    registry_.SaveString(User, Key, u"n"_s, u"Ω€"_s);
    EXPECT_EQ(Text(u"n"_s), "?€");
}

TEST_F(RegistryTest, ADwordTakesAll32Bits) {
    registry_.SaveDword(User, Key, u"n"_s, 0xFEDCBA98U);
    EXPECT_EQ(registry_.GetDword(User, Key, u"n"_s), 0xFEDCBA98U);
}

TEST_F(RegistryTest, ADeletedValueIsMissing) {
    registry_.SaveString(User, Key, u"n"_s, u"1"_s);
    registry_.DeleteValue(User, Key, u"N"_s);
    EXPECT_EQ(registry_.FoundIn(User, Key, u"n"_s), QString());
    registry_.DeleteValue(User, Key, u"never there"_s);
}

TEST_F(RegistryTest, AKeyIsMadeAndDeletedUnlessKeysAreBelowIt) {
    registry_.SaveKey(User, u"A"_s);
    EXPECT_TRUE(scratch_.Read(u"own.reg"_s).contains("[HKEY_CURRENT_USER\\A]\r\n"));
    registry_.SaveString(User, u"A\\B"_s, u"n"_s, u"1"_s);
    registry_.DeleteKey(User, u"A"_s);
    EXPECT_TRUE(scratch_.Read(u"own.reg"_s).contains("[HKEY_CURRENT_USER\\A]\r\n"));
    registry_.DeleteKey(User, u"A\\B"_s);
    registry_.DeleteKey(User, u"A"_s);
    EXPECT_FALSE(scratch_.Read(u"own.reg"_s).contains("HKEY"));
}

TEST_F(RegistryTest, AValueIsFoundInTheFile) {
    registry_.SaveString(User, Key, u"n"_s, u"1"_s);
    EXPECT_EQ(registry_.FoundIn(User, Key, u"n"_s), scratch_.Native(u"own.reg"_s));
    EXPECT_EQ(registry_.PrefixOf(User, Key, u"n"_s), QString());
}

TEST_F(RegistryTest, AChangeByAnotherProgramIsSeenAtOnce) {
    Holds("\"n\"=\"1\"\n");
    EXPECT_EQ(Text(u"n"_s), "1");
    Holds("\"n\"=\"2\"\n");
    EXPECT_EQ(Text(u"n"_s), "2");
    EXPECT_TRUE(QFile::remove(scratch_.Native(u"own.reg"_s)));
    EXPECT_EQ(Text(u"n"_s), "");
}

TEST_F(RegistryTest, APlaceThatCanNotBeWrittenChangesNothingAndRaisesNothing) {
    scratch_.Write(u"file"_s, "x");
    const Variable below("BRINDOCK_REGISTRY", (scratch_.Native(u"file"_s) + u"/own.reg"_s).toUtf8());
    RegistryRuntime registry;
    registry.SaveString(User, Key, u"n"_s, u"1"_s);
    registry.SaveDword(User, Key, u"n"_s, 1);
    registry.SaveKey(User, Key);
    registry.DeleteValue(User, Key, u"n"_s);
    registry.DeleteKey(User, Key);
    EXPECT_EQ(registry.GetString(User, Key, u"n"_s), QString());
    EXPECT_EQ(scratch_.Read(u"file"_s), "x");
}
