// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/FolderGateway.h"

#include "platform/Files.h"
#include "platform/RuntimeError.h"
#include "tests/support/World.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class Gateway : public testing::Test {
protected:
    [[nodiscard]] QString At(const QString& name) const { return world_.Root() + u'\\' + name; }

    /// What stands behind the folder in the target that the gateway gives.
    static QString Below(const QString& target) { return target.sliced(target.indexOf(u"\\out\\") + 5); }

    World world_;
};

bool Refused(const QString& name) {
    return !FolderGateway::RefusalOf(name).isEmpty();
}

} // namespace

TEST_F(Gateway, PlainNamesPass) {
    for (const QString& name : {u"a"_s, u"Data\\INI\\x.ini"_s, u"a b/c.d.e"_s, u"Carte d'été.map"_s, u".hidden"_s,
                                u"console.txt"_s, u"com0"_s, u"com10.txt"_s, u"nul2"_s, u"a..b"_s})
        EXPECT_FALSE(Refused(name)) << name.toStdString();
}

TEST_F(Gateway, NamesThatLeaveTheFolderAreRefused) {
    for (const QString& name : {u"..\\x"_s, u"a\\..\\..\\x"_s, u"../x"_s, u"a/../x"_s, u".."_s, u"a\\.\\b"_s, u"\\x"_s,
                                u"/etc/x"_s, u"\\\\server\\share\\x"_s, u"C:\\x"_s, u"c:x"_s, QString()})
        EXPECT_TRUE(Refused(name)) << name.toStdString();
}

TEST_F(Gateway, AFoldersNameHoldsNoSeparator) {
    for (const QString& name : {u".."_s, u""_s, u"a\\b"_s, u"a/b"_s, u"C:"_s, u"con"_s, u"a."_s, u"a "_s})
        EXPECT_FALSE(FolderGateway::RefusalOfFolder(name).isEmpty()) << name.toStdString();
    EXPECT_EQ(FolderGateway::RefusalOfFolder(u"[RANK] Arctic Arena ZH v1"_s), QString());
}

TEST_F(Gateway, NamesThatFilesCanNotHaveAreRefused) {
    for (const QString& name : {u"CON"_s, u"nul.txt"_s, u"a\\Aux.ini"_s, u"LPT1"_s, u"com\u00B9.txt"_s, u"con .txt"_s,
                                u"conin$"_s, u"x."_s, u"x "_s, u"dir.\\x"_s, u"a*b"_s, u"a?b"_s, u"a<b"_s, u"a|b"_s,
                                u"a\"b"_s, u"a:stream"_s, u"tab\tbed"_s, u"a\\\\b"_s})
        EXPECT_TRUE(Refused(name)) << name.toStdString();
}

TEST_F(Gateway, NamesLongerThanAPathCanBeAreRefusedBeforeAnyFolderIsMade) {
    EXPECT_FALSE(Refused(u"a\\"_s.repeated(2047) + u'x'));
    EXPECT_TRUE(Refused(u"a\\"_s.repeated(2047) + u"xx"_s));
    FolderGateway gateway(At(u"out"_s));
    EXPECT_THROW(gateway.TargetFor(u"a\\"_s.repeated(500000) + u'x'), RuntimeError);
    EXPECT_FALSE(Files::FolderExists(At(u"out\\a"_s)));
}

TEST_F(Gateway, MakesTheFoldersOfAName) {
    FolderGateway gateway(At(u"out"_s));
    EXPECT_EQ(Below(gateway.TargetFor(u"Data\\INI/x.ini"_s)), u"Data\\INI\\x.ini"_s);
    EXPECT_TRUE(Files::FolderExists(At(u"out\\Data\\INI"_s)));
}

TEST_F(Gateway, TakesFoldersAndFilesInTheCaseTheyHave) {
    world_.WriteFile(u"out\\DATA\\Old.ini"_s, "x");
    FolderGateway gateway(At(u"out"_s));
    EXPECT_EQ(Below(gateway.TargetFor(u"data\\old.INI"_s)), u"DATA\\Old.ini"_s);
    EXPECT_EQ(Below(gateway.TargetFor(u"Data\\New.ini"_s)), u"DATA\\New.ini"_s);
    EXPECT_EQ(Below(gateway.TargetFor(u"data\\NEW.ini"_s)), u"DATA\\New.ini"_s) << "handed out before";
}

TEST_F(Gateway, AFolderOfTheFilesNameOrAFileOfTheFoldersNameFails) {
    world_.WriteFile(u"out\\file"_s, "x");
    FolderGateway gateway(At(u"out"_s));
    EXPECT_ANY_THROW(gateway.TargetFor(u"file\\below"_s));
    EXPECT_THROW(gateway.TargetFor(u"folder\\"_s), RuntimeError);
    EXPECT_THROW(gateway.TargetFor(u"..\\x"_s), RuntimeError);
}

TEST_F(Gateway, MakesAFolderByItsNameWithASeparatorBehindItOrWithout) {
    world_.WriteFile(u"out\\DATA\\file"_s, "x");
    FolderGateway gateway(At(u"out"_s));
    gateway.MakeFolder(u"data/INI/"_s);
    gateway.MakeFolder(u"data\\Art"_s);
    gateway.MakeFolder(u"data/ini"_s);
    EXPECT_TRUE(Files::FolderExists(At(u"out\\DATA\\INI"_s)));
    EXPECT_TRUE(Files::FolderExists(At(u"out\\DATA\\Art"_s)));
    for (const QString& name : {u"../x/"_s, u"/"_s, u"a/nul/"_s, QString(), u"data/file"_s, u"data/file/x"_s})
        EXPECT_ANY_THROW(gateway.MakeFolder(name)) << name.toStdString();
    EXPECT_FALSE(Files::FolderExists(At(u"x"_s)));
    EXPECT_FALSE(Files::FolderExists(At(u"out\\a"_s)));
}

TEST_F(Gateway, AFolderThatCanNotBeMadeRaises) {
    world_.WriteFile(u"file"_s, "x");
    EXPECT_THROW(FolderGateway{At(u"file\\out"_s)}, RuntimeError);
    EXPECT_THROW(FolderGateway{At(u"file"_s)}, RuntimeError);
}
