// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/posix/WineHive.h"

#include "tests/platform/Scratch.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using Kind = RegistryValue::Kind;

namespace {

constexpr auto Head = "WINE REGISTRY Version 2\n;; All keys relative to REGISTRY\\\\Machine\n\n#arch=win64\n\n";

class WineHiveTest : public testing::Test {
protected:
    void Holds(const QByteArray& bytes) const { scratch_.Write(u"system.reg"_s, bytes); }

    [[nodiscard]] RegistryValue Value(const QString& name, const QString& key = u"Software\\A"_s) const {
        return hive_.Read(key, name);
    }

    [[nodiscard]] std::string Text(const QString& name, const QString& key = u"Software\\A"_s) const {
        const RegistryValue value = Value(name, key);
        return value.Type == Kind::Text ? value.Text.toStdString() : "no text";
    }

    Scratch scratch_;
    WineHive hive_{scratch_.Native(u"system.reg"_s).toUtf8()};
};

} // namespace

TEST_F(WineHiveTest, AValueIsReadFromAmongOthers) {
    Holds(QByteArray(Head) +
          "[Software\\\\A] 1700000000\n#time=1da1b2c3\n@=\"default\"\n\"InstallPath\"=\"C:\\\\Games\\\\X\\\\\"\n"
          "\n[Software\\\\A\\\\B] 1\n\"InstallPath\"=\"below\"\n\n[Software\\\\AB] 1\n\"other\"=\"x\"\n");
    EXPECT_EQ(Text(u"InstallPath"_s), "C:\\Games\\X\\");
    EXPECT_EQ(Text(u""_s), "default");
    EXPECT_EQ(Text(u"InstallPath"_s, u"Software\\A\\B"_s), "below");
    EXPECT_EQ(Value(u"other"_s).Type, Kind::Missing);
    EXPECT_EQ(Value(u"x"_s, u"Software"_s).Type, Kind::Missing);
}

TEST_F(WineHiveTest, KeysAndNamesAreFoundWithoutRegardToCase) {
    Holds("[SOFTWARE\\\\a] 1\n\"INSTALLpath\"=\"x\"\n[Caf\\xe9] 1\n\"n\"=\"y\"\n");
    EXPECT_EQ(Text(u"InstallPath"_s), "x");
    EXPECT_EQ(Text(u"n"_s, u"CAFÉ"_s), "y");
}

TEST_F(WineHiveTest, EscapesAreUndone) {
    Holds("[Software\\\\A] "
          "1\n\"q\"=\"a\\\"b\\\\c\"\n\"x\"=\"\\xe9\\x20ac-\\x0041B\"\n\"c\"=\"\\n\\r\\t\\33\\0001\"\n\"b\\x5d\"=\"[\\[]"
          "\"\n");
    EXPECT_EQ(Text(u"q"_s), "a\"b\\c");
    EXPECT_EQ(Text(u"x"_s), "é€-AB");
    EXPECT_EQ(Value(u"c"_s).Text, u"\n\r\t\x1B"_s + QChar(0) + u'1');
    EXPECT_EQ(Text(u"b]"_s), "[[]");
}

TEST_F(WineHiveTest, LettersOfNoEightBitPageAreRead) {
    Holds("[Software\\\\A] 1\n\"cyrillic\"=\"C:\\\\\\x0418\\x0433\\x0440\\x044b\\\\\"\n\"chinese\"=\"\\x6e38\\x620f\"\n"
          "\"typed\"=\"\xD0\x98\"\n");
    EXPECT_EQ(Value(u"cyrillic"_s).Text, u"C:\\\u0418\u0433\u0440\u044B\\"_s);
    EXPECT_EQ(Value(u"chinese"_s).Text, u"\u6E38\u620F"_s);
    EXPECT_EQ(Value(u"typed"_s).Text, u"\u0418"_s);
}

TEST_F(WineHiveTest, BracketsInAKeysNameAreFound) {
    Holds("[Software\\\\A \\[1\\]] 1\n\"n\"=\"x\"\n[Software\\\\A [2]] 1\n\"n\"=\"y\"\n");
    EXPECT_EQ(Text(u"n"_s, u"Software\\A [1]"_s), "x");
    EXPECT_EQ(Text(u"n"_s, u"Software\\A [2]"_s), "y");
}

TEST_F(WineHiveTest, OtherTypesAreToldApart) {
    Holds("[Software\\\\A] 1\n\"e\"=str(2):\"%A%\"\n\"m\"=str(7):\"a\\0\"\n\"d\"=dword:0000002a\n\"h\"=hex:01,\\\n  "
          "02\n\"after\"=\"x\"\n");
    EXPECT_EQ(Value(u"e"_s).Type, Kind::Other);
    EXPECT_EQ(Value(u"m"_s).Type, Kind::Other);
    EXPECT_EQ(Value(u"h"_s).Type, Kind::Other);
    EXPECT_EQ(Value(u"d"_s).Number, 42U);
    EXPECT_EQ(Text(u"after"_s), "x");
}

TEST_F(WineHiveTest, AMissingHiveOrOneThatIsAFolderHasNoValues) {
    EXPECT_EQ(Value(u"n"_s).Type, Kind::Missing);
    scratch_.Write(u"system.reg/file"_s, "x");
    EXPECT_EQ(Value(u"n"_s).Type, Kind::Missing);
}

TEST_F(WineHiveTest, GarbageReadsAsFarAsItMakesSense) {
    Holds(QByteArray(1, 0) +
          "\xFF[Software\\\\A]\n\"n\"=\"not at a line's start\"\n[\n[]\n]\n[Software\\\\A\n\"n\"=\"broken\"\n[\\x\\]\n"
          "[Software\\\\B] x\n\"n\n\"n\"\n\"n\"=\"open\n=\n\"m\"=\"\\\"\n[Software\\\\A]\n\"n\"=\"found\"\n[");
    EXPECT_EQ(Text(u"n"_s), "found");
    EXPECT_EQ(Text(u"n"_s, u"Software\\B"_s), "no text");
    EXPECT_EQ(Text(u"m"_s, u"Software\\B"_s), "no text");
}

TEST_F(WineHiveTest, AHiveCutOffAnywhereGivesTheWholeValueOrNone) {
    const QByteArray whole =
        QByteArray(Head) + "[Software\\\\A] 1\n#time=1\n\"h\"=hex:01,\\\n  02\n\"n\"=\"C:\\\\a \\xe9\\\"\"\n[B] 2\n";
    for (qsizetype length = 0; length <= whole.size(); ++length) {
        Holds(whole.first(length));
        const RegistryValue value = Value(u"n"_s);
        EXPECT_TRUE(value.Type != Kind::Text || value.Text == u"C:\\a é\""_s) << "after " << length << " bytes";
    }
    EXPECT_EQ(Text(u"n"_s), "C:\\a é\"");
}

TEST_F(WineHiveTest, AChangeOfTheFileIsSeenAtOnceAlsoAtTheSameSize) {
    for (const char* digit : {"1", "2", "3"}) {
        Holds(QByteArray("[Software\\\\A] 1\n\"n\"=\"") + digit + "\"\n");
        EXPECT_EQ(Text(u"n"_s), digit);
    }
}

TEST_F(WineHiveTest, AKeyWrittenTwiceGivesTheValuesOfBoth) {
    Holds("[Software\\\\A] 1\n\"n\"=\"x\"\n[Software\\\\A] 2\n\"m\"=\"y\"\n");
    EXPECT_EQ(Text(u"n"_s), "x");
    EXPECT_EQ(Text(u"m"_s), "y");
}
