// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/FileRegistry.h"

#include "tests/platform/Scratch.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using Kind = RegistryValue::Kind;

namespace {

constexpr auto User = RootKey::CurrentUser;
constexpr auto Machine = RootKey::LocalMachine;

/// A registry file of the test's own, and short ways to ask it.
class FileRegistryTest : public testing::Test {
protected:
    void Holds(const QByteArray& bytes) const { scratch_.Write(u"registry.reg"_s, bytes); }

    [[nodiscard]] QByteArray Bytes() const { return scratch_.Read(u"registry.reg"_s); }

    [[nodiscard]] RegistryValue Value(const QString& name, const QString& key = u"A"_s) const {
        return registry_.Read(User, key, name);
    }

    [[nodiscard]] std::string Text(const QString& name, const QString& key = u"A"_s) const {
        const RegistryValue value = Value(name, key);
        return value.Type == Kind::Text ? value.Text.toStdString() : "no text";
    }

    bool Save(const QString& name, const QString& text, const QString& key = u"A"_s) {
        return registry_.Write(User, key, name, {Kind::Text, text, 0});
    }

    Scratch scratch_;
    FileRegistry registry_{scratch_.Native(u"registry.reg"_s)};
};

} // namespace

TEST_F(FileRegistryTest, AnExportIsRead) {
    Holds("REGEDIT4\r\n\r\n[HKEY_CURRENT_USER\\A]\r\n@=\"default\"\r\n\"path\"=\"C:\\\\Games\\\\Some "
          "\\\"Game\\\"\\\\\"\r\n"
          "\"number\"=dword:0000002a\r\n\"empty\"=\"\"\r\n\"caf\xE9\"=\"\x80\"\r\n");
    EXPECT_EQ(Text(u""_s), "default");
    EXPECT_EQ(Text(u"path"_s), "C:\\Games\\Some \"Game\"\\");
    EXPECT_EQ(Value(u"number"_s).Type, Kind::Number);
    EXPECT_EQ(Value(u"number"_s).Number, 42U);
    EXPECT_EQ(Text(u"empty"_s), "");
    EXPECT_EQ(Text(u"café"_s), "€");
    EXPECT_EQ(Value(u"missing"_s).Type, Kind::Missing);
}

TEST_F(FileRegistryTest, KeysAndNamesAreFoundWithoutRegardToCase) {
    Holds("REGEDIT4\n[hkey_Current_User\\soft\\KEY]\n\"NaMe\"=\"x\"\n");
    EXPECT_EQ(Text(u"nAmE"_s, u"Soft\\Key"_s), "x");
    EXPECT_EQ(Text(u"nAmE"_s, u"Soft\\Key\\"_s), "x");
}

TEST_F(FileRegistryTest, RootsAreToldApart) {
    Holds("[HKEY_LOCAL_MACHINE\\A]\n\"n\"=\"machine\"\n[HKEY_USERS\\A]\n\"n\"=\"users\"\n[HKEY_CLASSES_ROOT\\A]\n\"n\"="
          "\"classes\"\n");
    EXPECT_EQ(registry_.Read(Machine, u"A"_s, u"n"_s).Text, u"machine"_s);
    EXPECT_EQ(registry_.Read(RootKey::Users, u"A"_s, u"n"_s).Text, u"users"_s);
    EXPECT_EQ(registry_.Read(RootKey::ClassesRoot, u"A"_s, u"n"_s).Text, u"classes"_s);
    EXPECT_EQ(Value(u"n"_s).Type, Kind::Missing);
}

TEST_F(FileRegistryTest, AnExportOf64BitWindowsServesTheMachinesSoftware) {
    Holds("[HKEY_LOCAL_MACHINE\\SOFTWARE\\WOW6432Node\\A]\n\"n\"=\"32\"\n[HKEY_LOCAL_MACHINE\\SOFTWARE\\B]\n\"n\"="
          "\"plain\"\n"
          "[HKEY_CURRENT_USER\\Software\\Wow6432Node\\C]\n\"n\"=\"user\"\n");
    EXPECT_EQ(registry_.Read(Machine, u"Software\\A"_s, u"n"_s).Text, u"32"_s);
    EXPECT_EQ(registry_.Read(Machine, u"Software\\B"_s, u"n"_s).Text, u"plain"_s);
    EXPECT_EQ(Value(u"n"_s, u"Software\\C"_s).Type, Kind::Missing);
}

TEST_F(FileRegistryTest, OfBothViewsThatOf32BitProgramsComesFirstAndIsTheOneThatChanges) {
    const QByteArray plain = "[HKEY_LOCAL_MACHINE\\SOFTWARE\\A]\n\"n\"=\"plain\"\n";
    Holds(plain + "[HKEY_LOCAL_MACHINE\\SOFTWARE\\WOW6432Node\\A]\n\"n\"=\"32\"\n");
    EXPECT_EQ(registry_.Read(Machine, u"Software\\A"_s, u"n"_s).Text, u"32"_s);
    EXPECT_TRUE(registry_.Write(Machine, u"Software\\A"_s, u"n"_s, {Kind::Text, u"new"_s, 0}));
    EXPECT_EQ(registry_.Read(Machine, u"Software\\A"_s, u"n"_s).Text, u"new"_s);
    EXPECT_EQ(Bytes(), plain + "[HKEY_LOCAL_MACHINE\\SOFTWARE\\WOW6432Node\\A]\n\"n\"=\"new\"\n");
    Holds(plain);
    EXPECT_TRUE(registry_.Write(Machine, u"Software\\A"_s, u"n"_s, {Kind::Text, u"new"_s, 0}));
    EXPECT_EQ(Bytes(), "[HKEY_LOCAL_MACHINE\\SOFTWARE\\A]\n\"n\"=\"new\"\n");
}

TEST_F(FileRegistryTest, Utf8WithoutAMarkIsUnderstoodAndStaysWithoutOne) {
    const QByteArray text = "REGEDIT4\n[HKEY_CURRENT_USER\\A]\n\"n\"=\"C:\\\\\xD0\x98\xD0\xB3\xD1\x80\xD1\x8B\"\n";
    Holds(text);
    EXPECT_EQ(Text(u"n"_s), "C:\\\xD0\x98\xD0\xB3\xD1\x80\xD1\x8B");
    EXPECT_TRUE(Save(u"j"_s, u"\u6E38"_s));
    EXPECT_EQ(Bytes(), text + "\"j\"=\"\xE6\xB8\xB8\"\n");
    Holds("REGEDIT4\n[HKEY_CURRENT_USER\\A]\n\"n\"=\"\xE9t\xC3\xA9\"\n");
    EXPECT_EQ(Text(u"n"_s), "\xC3\xA9t\xC3\x83\xC2\xA9") << "One letter of the page, and the file is in it.";
}

TEST_F(FileRegistryTest, LettersThatLookLikeUtf8ComeBack) {
    EXPECT_TRUE(Save(u"n"_s, u"\u00C3\u00A9"_s));
    EXPECT_EQ(Value(u"n"_s).Text, u"\u00C3\u00A9"_s);
    EXPECT_TRUE(Save(u"j"_s, u"\u00E9"_s));
    EXPECT_EQ(Value(u"n"_s).Text, u"\u00C3\u00A9"_s);
    EXPECT_EQ(Value(u"j"_s).Text, u"\u00E9"_s);
}

TEST_F(FileRegistryTest, TheLastOfSeveralValuesCountsAsAnImportWouldHaveIt) {
    Holds("[HKEY_CURRENT_USER\\A]\n\"n\"=\"1\"\n[HKEY_CURRENT_USER\\B]\n[HKEY_CURRENT_USER\\A]\n\"n\"=\"2\"\n");
    EXPECT_EQ(Text(u"n"_s), "2");
}

TEST_F(FileRegistryTest, DeletionsAreFollowed) {
    Holds("[HKEY_CURRENT_USER\\A]\n\"n\"=\"1\"\n\"n\"=-\n[HKEY_CURRENT_USER\\B\\C]\n\"n\"=\"1\"\n[-HKEY_CURRENT_"
          "USER\\B]\n\"n\"=\"2\"\n");
    EXPECT_EQ(Value(u"n"_s).Type, Kind::Missing);
    EXPECT_EQ(Value(u"n"_s, u"B\\C"_s).Type, Kind::Missing);
    EXPECT_EQ(Value(u"n"_s, u"B"_s).Type, Kind::Missing);
}

TEST_F(FileRegistryTest, HexadecimalListsWithContinuationAreAnotherType) {
    Holds("[HKEY_CURRENT_USER\\A]\n\"blob\"=hex:01,02,\\\n  \"x\",\\\n  03\n\"e\"=hex(2):25,00\n\"after\"=\"x\"\n");
    EXPECT_EQ(Value(u"blob"_s).Type, Kind::Other);
    EXPECT_EQ(Value(u"e"_s).Type, Kind::Other);
    EXPECT_EQ(Text(u"after"_s), "x");
}

TEST_F(FileRegistryTest, TextsAndNumbersInHexadecimalAreRead) {
    Holds("REGEDIT4\n[HKEY_CURRENT_USER\\A]\n\"t\"=hex(1):61,0a,\\\n  e9\n\"n\"=hex(4):2a,01,00,00\n");
    EXPECT_EQ(Text(u"t"_s), "a\né");
    EXPECT_EQ(Value(u"n"_s).Number, 298U);
    Holds("Windows Registry Editor Version 5.00\n[HKEY_CURRENT_USER\\A]\n\"t\"=hex(1):61,00,e9,00,00,00\n");
    EXPECT_EQ(Value(u"t"_s).Text, u"aé"_s + QChar(0));
}

TEST_F(FileRegistryTest, ABackslashBeforeAnotherLetterStandsForItself) {
    Holds("[HKEY_CURRENT_USER\\A]\n\"n\"=\"C:\\Games\\new\"\n");
    EXPECT_EQ(Text(u"n"_s), "C:\\Games\\new");
}

TEST_F(FileRegistryTest, Utf16AndUtf8ExportsAreReadAndKeepTheirEncoding) {
    const QString text = u"Windows Registry Editor Version 5.00\r\n\r\n[HKEY_CURRENT_USER\\A]\r\n\"n\"=\"é€\"\r\n"_s;
    const auto wide = [](const QString& content) {
        return "\xFF\xFE" + QByteArray(reinterpret_cast<const char*>(content.utf16()), content.size() * 2);
    };
    Holds(wide(text));
    EXPECT_EQ(Text(u"n"_s), "é€");
    EXPECT_TRUE(Save(u"j"_s, u"à"_s));
    EXPECT_EQ(Bytes(), wide(text + u"\"j\"=\"à\"\r\n"_s));
    Holds("\xEF\xBB\xBF" + text.toUtf8());
    EXPECT_EQ(Text(u"n"_s), "é€");
    EXPECT_TRUE(Save(u"j"_s, u"à"_s));
    EXPECT_EQ(Bytes(), "\xEF\xBB\xBF" + text.toUtf8() + "\"j\"=\"\xC3\xA0\"\r\n");
}

TEST_F(FileRegistryTest, GarbageReadsAsFarAsItMakesSense) {
    Holds(QByteArray(1, 0) +
          "\xFF garbage\n\"n\"=\"no key\"\n[HKEY_CURRENT_USER\\A\n\"n\"=\"under a broken key\"\n[]\n[-]\n]\n=\n\"\n@\n"
          "[HKEY_CURRENT_USER\\A]\njunk\n\"open\"=\"never "
          "closed\n\"nothing\"\n\"d\"=dword:xyz\n\"long\"=dword:123456789\n"
          "\"h\"=hex:zz\n\"u\"=unknown\n  \"n\" = \"found\" ; comment\n");
    EXPECT_EQ(Text(u"n"_s), "found");
    EXPECT_EQ(Value(u"open"_s).Type, Kind::Other);
    EXPECT_EQ(Value(u"nothing"_s).Type, Kind::Missing);
    for (const QString& name : {u"d"_s, u"long"_s, u"h"_s, u"u"_s})
        EXPECT_EQ(Value(name).Type, Kind::Other) << name.toStdString();
}

TEST_F(FileRegistryTest, AFileCutOffAnywhereGivesTheWholeValueOrNone) {
    const QByteArray whole =
        "REGEDIT4\r\n\r\n[HKEY_CURRENT_USER\\A]\r\n\"n\"=\"C:\\\\x\\\"\"\r\n\"h\"=hex:01,\\\r\n  02\r\n";
    for (qsizetype length = 0; length <= whole.size(); ++length) {
        Holds(whole.first(length));
        const RegistryValue value = Value(u"n"_s);
        EXPECT_TRUE(value.Type != Kind::Text || value.Text == u"C:\\x\""_s) << "after " << length << " bytes";
    }
    EXPECT_EQ(Text(u"n"_s), "C:\\x\"");
}

TEST_F(FileRegistryTest, AFirstWriteMakesFolderFileAndKey) {
    FileRegistry registry(scratch_.Native(u"x"_s) + u"/y/z/registry.reg"_s);
    EXPECT_TRUE(registry.Write(User, u"Software\\A"_s, u"n"_s, {Kind::Text, u"a\\\"é"_s, 0}));
    EXPECT_TRUE(registry.Write(User, u"Software\\A"_s, u"d"_s, {Kind::Number, {}, 42}));
    EXPECT_EQ(scratch_.Read(u"x/y/z/registry.reg"_s), "REGEDIT4\r\n\r\n[HKEY_CURRENT_USER\\Software\\A]\r\n"
                                                      "\"n\"=\"a\\\\\\\"\xE9\"\r\n\"d\"=dword:0000002a\r\n");
}

TEST_F(FileRegistryTest, AWriteReplacesInPlaceAndKeepsWhatIsNotUnderstood) {
    Holds("; mine\n\n[HKEY_CURRENT_USER\\A]\n??\n \"N\" = dword:1\n\"b\"=hex:01,\\\n  02\n\n[broken\nx\n");
    EXPECT_TRUE(Save(u"n"_s, u"new"_s));
    EXPECT_TRUE(Save(u"b"_s, u""_s));
    EXPECT_TRUE(Save(u"more"_s, u"1"_s));
    EXPECT_EQ(Bytes(),
              "; mine\n\n[HKEY_CURRENT_USER\\A]\n??\n\"n\"=\"new\"\n\"b\"=\"\"\n\"more\"=\"1\"\n\n[broken\nx\n");
}

TEST_F(FileRegistryTest, AWriteAfterADeletionStands) {
    Holds(
        "[HKEY_CURRENT_USER\\A]\n\"n\"=\"1\"\n[-HKEY_CURRENT_USER\\A]\n[HKEY_CURRENT_USER\\B]\n\"n\"=\"1\"\n\"n\"=-\n");
    EXPECT_TRUE(Save(u"n"_s, u"2"_s));
    EXPECT_TRUE(Save(u"n"_s, u"3"_s, u"B"_s));
    EXPECT_EQ(Text(u"n"_s), "2");
    EXPECT_EQ(Text(u"n"_s, u"B"_s), "3");
}

TEST_F(FileRegistryTest, TextsWithControlCharactersComeBack) {
    const QString text = u"a\r\nb\t\"\\é"_s + QChar(0) + u"c"_s;
    EXPECT_TRUE(Save(u"n"_s, text));
    EXPECT_EQ(Value(u"n"_s).Text, text);
    EXPECT_TRUE(Bytes().contains("\"n\"=hex(1):61,0d,0a,62,09,22,5c,e9,00,63\r\n"));
}

TEST_F(FileRegistryTest, AChangeOfTheFileIsSeenAtOnceAlsoAtTheSameSize) {
    for (const char* digit : {"1", "2", "3"}) {
        Holds(QByteArray("[HKEY_CURRENT_USER\\A]\n\"n\"=\"") + digit + "\"\n");
        EXPECT_EQ(Text(u"n"_s), digit);
    }
}

TEST_F(FileRegistryTest, AKeyIsAddedOnceAndRemovedWithItsValues) {
    EXPECT_TRUE(registry_.AddKey(User, u"A"_s));
    EXPECT_TRUE(registry_.AddKey(User, u"a"_s));
    EXPECT_EQ(Bytes(), "REGEDIT4\r\n\r\n[HKEY_CURRENT_USER\\A]\r\n");
    EXPECT_TRUE(Save(u"n"_s, u"1"_s));
    EXPECT_TRUE(Save(u"n"_s, u"2"_s, u"AB"_s));
    EXPECT_TRUE(registry_.RemoveKey(User, u"A"_s));
    EXPECT_EQ(Value(u"n"_s).Type, Kind::Missing);
    EXPECT_EQ(Text(u"n"_s, u"AB"_s), "2");
}

TEST_F(FileRegistryTest, AKeyWithKeysBelowItStays) {
    EXPECT_TRUE(Save(u"n"_s, u"1"_s));
    EXPECT_TRUE(Save(u"n"_s, u"2"_s, u"A\\B"_s));
    EXPECT_FALSE(registry_.RemoveKey(User, u"A"_s));
    EXPECT_EQ(Text(u"n"_s), "1");
    EXPECT_TRUE(registry_.RemoveKey(User, u"A\\B"_s));
    EXPECT_TRUE(registry_.RemoveKey(User, u"A"_s));
    EXPECT_EQ(Value(u"n"_s).Type, Kind::Missing);
}

TEST_F(FileRegistryTest, ARemovedValueIsGoneWithAllItsLines) {
    Holds("[HKEY_CURRENT_USER\\A]\n\"n\"=\"1\"\n\"j\"=\"3\"\n\"N\"=\"2\"\n");
    EXPECT_TRUE(registry_.RemoveValue(User, u"A"_s, u"n"_s));
    EXPECT_EQ(Bytes(), "[HKEY_CURRENT_USER\\A]\n\"j\"=\"3\"\n");
}

TEST_F(FileRegistryTest, ABlankLineEndsAListThatWasCutOff) {
    Holds("[HKEY_CURRENT_USER\\A]\n\"h\"=hex:01,\\\n\n\"n\"=\"1\"\n");
    EXPECT_EQ(Text(u"n"_s), "1");
}

TEST_F(FileRegistryTest, WhatIsWrittenBehindAListThatWasCutOffIsNoPartOfIt) {
    for (const QByteArray lineEnd : {"", "\n"}) {
        Holds("[HKEY_CURRENT_USER\\A]\n\"h\"=hex:01,\\" + lineEnd);
        EXPECT_TRUE(Save(u"n"_s, u"1"_s));
        EXPECT_EQ(Bytes(), "[HKEY_CURRENT_USER\\A]\n\"h\"=hex:01,\\\n\n\"n\"=\"1\"\n");
        EXPECT_EQ(Text(u"n"_s), "1");
        EXPECT_TRUE(Save(u"n"_s, u"2"_s, u"B"_s));
        EXPECT_EQ(Text(u"n"_s, u"B"_s), "2");
    }
}

TEST_F(FileRegistryTest, APlaceThatCanNotBeWrittenIsToldByTheResult) {
    scratch_.Write(u"file"_s, "x");
    FileRegistry belowAFile(scratch_.Native(u"file"_s) + u"/registry.reg"_s);
    EXPECT_FALSE(belowAFile.Write(User, u"A"_s, u"n"_s, {Kind::Text, u"1"_s, 0}));
    EXPECT_EQ(scratch_.Read(u"file"_s), "x");
    scratch_.Write(u"folder/inside"_s, "x");
    FileRegistry folder(scratch_.Native(u"folder"_s));
    EXPECT_FALSE(folder.Write(User, u"A"_s, u"n"_s, {Kind::Text, u"1"_s, 0}));
    EXPECT_EQ(folder.Read(User, u"A"_s, u"n"_s).Type, Kind::Missing);
}
