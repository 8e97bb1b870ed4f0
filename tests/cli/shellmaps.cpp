// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/Settings.h"
#include "tests/cli/ListCommandTest.h"

using namespace Qt::StringLiterals;

namespace {

class ShellMapCommands : public ListCommandTest {
protected:
    ShellMapCommands() : ListCommandTest(u"shellmaps"_s) {}

    void Store(const QString& number, const QByteArray& name) const {
        Install(u"Maps\\QvShellMap"_s + number + u"\\QvInfos.ini"_s,
                "[Infos]\r\nName=" + name + "\r\nComments=of " + name + "\r\n");
        Install(u"Maps\\QvShellMap"_s + number + u"\\shellmap1.map"_s, name);
    }

    [[nodiscard]] static QString Folder(const QString& name) { return Game[0].InstallPath + u"Maps\\"_s + name; }
};

} // namespace

TEST_F(ShellMapCommands, ListPrintsNumberNameAndComments) {
    Store(u"010"_s, "Ten");
    Store(u"002"_s, "Two");
    Store(u"Old"_s, "Aside");
    EXPECT_EQ(Output({u"list"_s, u"gen"_s}), QByteArray("2\tTwo\tof Two\n10\tTen\tof Ten\nOld\tAside\tof Aside\n"));
    const QJsonArray shellMaps = Json({u"list"_s, u"gen"_s});
    ASSERT_EQ(shellMaps.size(), 3);
    const QJsonObject first = shellMaps[0].toObject();
    EXPECT_EQ(first[u"number"_s].toInt(), 2);
    EXPECT_EQ(first[u"name"_s].toString(), u"Two"_s);
    EXPECT_EQ(first[u"comments"_s].toString(), u"of Two"_s);
    EXPECT_EQ(first[u"path"_s].toString(), Paths::ToNative(Folder(u"QvShellMap002"_s)));
    EXPECT_TRUE(shellMaps[2].toObject()[u"number"_s].isNull());
}

TEST_F(ShellMapCommands, DeleteClosesTheGapsBehindTheNumbersAsTheyWere) {
    for (int number = 1; number <= 5; ++number)
        Store(u"00%1"_s.arg(number), QByteArray::number(number));
    EXPECT_EQ(Output({u"delete"_s, u"gen"_s, u"2"_s, u"004"_s, u"4"_s, u"--yes"_s}), QByteArray());
    EXPECT_EQ(Output({u"list"_s, u"gen"_s}), QByteArray("1\t1\tof 1\n2\t3\tof 3\n3\t5\tof 5\n"));
}

TEST_F(ShellMapCommands, DeleteWantsAYesAndNumbersThatAreThere) {
    Store(u"001"_s, "One");
    EXPECT_TRUE(Failure({u"delete"_s, u"gen"_s, u"1"_s}, 2).contains("--yes"));
    EXPECT_TRUE(Failure({u"delete"_s, u"gen"_s, u"1"_s, u"2"_s, u"--yes"_s}).contains("2"));
    for (const QString& number : {u"Old"_s, u"1000"_s, u"-1"_s, u""_s})
        EXPECT_FALSE(Failure({u"delete"_s, u"gen"_s, number, u"--yes"_s}, 2).isEmpty()) << number.toStdString();
    EXPECT_EQ(Output({u"list"_s, u"gen"_s}), QByteArray("1\tOne\tof One\n"));
}

TEST_F(ShellMapCommands, AShellMapThatStaysIsNamed) {
    Store(u"001"_s, "One");
    Install(u"Maps\\QvShellMap002"_s);
    EXPECT_TRUE(Failure({u"delete"_s, u"gen"_s, u"2"_s, u"--yes"_s}).contains("QvShellMap002"));
}

TEST_F(ShellMapCommands, ActivateDoesWhatALaunchDoesBeforeTheGameStarts) {
    Store(u"001"_s, "One");
    Install(u"Maps\\ShellMap1\\mine.map"_s);
    WriteSetting(u"GenShellMapMode"_s, u"Load001"_s);
    EXPECT_EQ(Output({u"activate"_s, u"gen"_s}), QByteArray());
    EXPECT_TRUE(Files::FileExists(Folder(u"ShellMap1\\shellmap1.map"_s)));
    EXPECT_FALSE(Files::FileExists(Folder(u"ShellMap1\\mine.map"_s)));
    WriteSetting(u"GenShellMapMode"_s, {});
    EXPECT_EQ(Output({u"activate"_s, u"gen"_s}), QByteArray());
    EXPECT_FALSE(Files::FolderExists(Folder(u"ShellMap1"_s)));
    EXPECT_EQ(Output({u"activate"_s, u"bfme2"_s}), QByteArray()) << "a game that is not installed";
}

TEST_F(ShellMapCommands, DescribeWritesWhatIsGivenAndLeavesTheRest) {
    Store(u"001"_s, "One");
    EXPECT_EQ(Output({u"describe"_s, u"gen"_s, u"1"_s, u"--name"_s, u"First"_s}), QByteArray());
    EXPECT_EQ(World::ReadFile(Folder(u"QvShellMap001\\QvInfos.ini"_s)),
              QByteArray("[Infos]\r\nName=First\r\nComments=of One\r\n"));
    EXPECT_EQ(Output({u"describe"_s, u"gen"_s, u"001"_s, u"--comments"_s, u"Night"_s}), QByteArray());
    EXPECT_EQ(Output({u"list"_s, u"gen"_s}), QByteArray("1\tFirst\tNight\n"));
    EXPECT_TRUE(Failure({u"describe"_s, u"gen"_s, u"2"_s, u"--name"_s, u"x"_s}).contains("2"));
    EXPECT_FALSE(Files::FolderExists(Folder(u"QvShellMap002"_s)));
}
