// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/Processes.h"
#include "platform/RuntimeError.h"
#include "platform/posix/DesktopEntries.h"

#include "tests/platform/Scratch.h"

#include <QElapsedTimer>
#include <QThread>
#include <gtest/gtest.h>

#include <unistd.h>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

/// A home and data folders of the test's own, and a search path on which a script stands for wine.
class ProcessesTest : public testing::Test {
protected:
    ProcessesTest() {
        Script(u"bin/wine"_s,
               "printf '%s|' \"$WINEPREFIX\" \"$@\" > \"$RECORD.part\"; mv \"$RECORD.part\" \"$RECORD\"");
    }

    ~ProcessesTest() override { Paths::ForgetPrefixes(); }

    ProcessesTest(const ProcessesTest&) = delete;
    ProcessesTest& operator=(const ProcessesTest&) = delete;

    QString Script(const QString& name, const QByteArray& commands) const {
        scratch_.Write(name, "#!/bin/sh\n" + commands + "\n");
        QFile::setPermissions(scratch_.Native(name),
                              QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
        return scratch_.Native(name);
    }

    /// Makes an application the one for a type.
    void Associate(const QByteArray& type, const QByteArray& exec, const QByteArray& more = {}) const {
        scratch_.Write(u"data/applications/some-app.desktop"_s,
                       "[Other]\nExec=no\n[Desktop Entry]\nType=Application\nExec=" + exec + "\n" + more);
        scratch_.Write(u"conf/mimeapps.list"_s,
                       "[Default Applications]\n" + type + "=missing.desktop;some-app.desktop;\n");
    }

    /// What the script recorded, once it has.
    [[nodiscard]] QByteArray Recorded() const {
        QElapsedTimer waited;
        waited.start();
        while (!QFile::exists(scratch_.Native(u"record"_s)) && waited.elapsed() < 10000)
            QThread::msleep(5);
        return scratch_.Read(u"record"_s);
    }

    static std::optional<int> Waited(Processes::Handle process) {
        QElapsedTimer waited;
        waited.start();
        std::optional<int> code = Processes::ExitCode(process);
        for (; !code && waited.elapsed() < 10000; code = Processes::ExitCode(process))
            QThread::msleep(5);
        return code;
    }

    Scratch scratch_;
    Variable path_{"PATH", scratch_.Native(u"bin"_s).toUtf8() + ":" + qgetenv("PATH")};
    Variable record_{"RECORD", scratch_.Native(u"record"_s).toUtf8()};
    Variable winePrefix_{"WINEPREFIX", "of the environment"};
    Variable home_{"HOME", scratch_.Native(u"home/x"_s).chopped(2).toUtf8()};
    Variable configuration_{"XDG_CONFIG_HOME", scratch_.Native(u"conf/x"_s).chopped(2).toUtf8()};
    Variable configurations_{"XDG_CONFIG_DIRS", "/nowhere"};
    Variable data_{"XDG_DATA_HOME", scratch_.Native(u"data/x"_s).chopped(2).toUtf8()};
    Variable desktop_{"XDG_CURRENT_DESKTOP", std::nullopt};
};

} // namespace

TEST_F(ProcessesTest, AGameRunsThroughWineInThePrefixOfItsPathWithItsArgumentsInOrder) {
    scratch_.Write(u"prefix/drive_c/Games/X/Generals.EXE"_s, "x");
    Paths::UsePrefix(u"C:\\Games\\"_s, scratch_.Native(u"prefix/x"_s).chopped(2));
    Processes::StartCommand(u"\"c:\\games\\x\\generals.exe\"  -win -xres 800 -mod \"a b.big\""_s);
    const QByteArray prefix = scratch_.Native(u"prefix/x"_s).chopped(2).toUtf8();
    EXPECT_EQ(Recorded(), prefix + "|" + prefix + "/drive_c/Games/X/Generals.EXE|-win|-xres|800|-mod|a b.big|");
}

TEST_F(ProcessesTest, WithoutAPrefixTheEnvironmentsOwnStays) {
    const QString program = scratch_.Write(u"x.exe"_s, "x");
    Processes::StartCommand(u'"' + program + u"\" "_s);
    EXPECT_EQ(Recorded(), "of the environment|" + scratch_.Native(u"x.exe"_s).toUtf8() + "|");
}

TEST_F(ProcessesTest, AProgramOfThisSystemRunsWithoutWine) {
    Script(u"tool"_s, "echo \"$@\" > \"$RECORD\"");
    Processes::StartCommand(scratch_.Inside(u"tool"_s) + u" a b"_s);
    while (Recorded().isEmpty())
        QThread::msleep(5);
    EXPECT_EQ(Recorded(), "a b\n");
}

TEST_F(ProcessesTest, TheCommandIsShownAsItWouldRun) {
    const QString program = scratch_.Write(u"Some.exe"_s, "x");
    EXPECT_EQ(Processes::CommandFor(u'"' + program.chopped(8) + u"sOME.exe\" -a \"b c\""_s),
              (QStringList{u"wine"_s, scratch_.Native(u"Some.exe"_s), u"-a"_s, u"b c"_s}));
}

TEST_F(ProcessesTest, AProgramThatIsNotThereRaisesFileNotFound) {
    for (const QString& command :
         {u'"' + scratch_.Inside(u"missing.exe"_s) + u"\" -a"_s, scratch_.Inside(u"missing"_s), u""_s}) {
        try {
            Processes::StartCommand(command);
            ADD_FAILURE() << command.toStdString() << " was started";
        } catch (const RuntimeError& error) {
            EXPECT_EQ(error.Number(), ErrorNumber::FileNotFound);
        }
    }
}

TEST_F(ProcessesTest, WithoutWineAGameRaisesFileNotFound) {
    const Variable noWine("PATH", "/nowhere");
    const QString program = scratch_.Write(u"x.exe"_s, "x");
    EXPECT_THROW(Processes::StartCommand(program), RuntimeError);
}

TEST_F(ProcessesTest, AGameWithoutAFolderIsNotStarted) {
    EXPECT_THROW(Processes::StartCommand(u"\"generals.exe\" "_s), RuntimeError);
    EXPECT_FALSE(QFile::exists(scratch_.Native(u"record"_s)));
}

TEST_F(ProcessesTest, AFileIsOpenedByItsTypesApplicationWhoseEndCanBeWaitedFor) {
    const QString file = scratch_.Write(u"a b.txt"_s, "text");
    Associate("text/plain",
              "\"" + Script(u"bin/my app"_s, "printf '%s|' \"$@\" > \"$RECORD\"; exit 3").toUtf8() + "\" --open %f");
    const Processes::Opened opened = Processes::OpenWithAssociation(file, 0);
    EXPECT_EQ(opened.InstApp, 33);
    ASSERT_NE(opened.Process, 0U);
    EXPECT_EQ(Waited(opened.Process), 3);
    Processes::Close(opened.Process);
    EXPECT_EQ(scratch_.Read(u"record"_s), "--open|" + scratch_.Native(u"a b.txt"_s).toUtf8() + "|");
}

TEST_F(ProcessesTest, ARunningProgramHasNoExitCodeYetAndASignalGivesOne) {
    const QString file = scratch_.Write(u"a.txt"_s, "text");
    Associate("text/plain",
              Script(u"bin/app"_s, "while [ ! -e \"$RECORD\" ]; do sleep 0.01; done; kill -9 $$").toUtf8());
    const Processes::Opened opened = Processes::OpenWithAssociation(file, 0);
    ASSERT_NE(opened.Process, 0U);
    EXPECT_FALSE(Processes::ExitCode(opened.Process).has_value());
    scratch_.Write(u"record"_s, "x");
    EXPECT_EQ(Waited(opened.Process), 128 + 9);
}

TEST_F(ProcessesTest, AProcessRunsUntilItHasEnded) {
    EXPECT_TRUE(Processes::IsRunning(::getpid()));
    EXPECT_TRUE(Processes::IsRunning(1)) << "Another user's may run too.";
    const QString file = scratch_.Write(u"a.txt"_s, "text");
    Associate("text/plain", Script(u"bin/app"_s, "while [ ! -e \"$RECORD\" ]; do sleep 0.01; done").toUtf8());
    const Processes::Opened opened = Processes::OpenWithAssociation(file, 0);
    ASSERT_NE(opened.Process, 0U);
    EXPECT_TRUE(Processes::IsRunning(static_cast<qint64>(opened.Process)));
    scratch_.Write(u"record"_s, "x");
    EXPECT_EQ(Waited(opened.Process), 0);
    EXPECT_FALSE(Processes::IsRunning(static_cast<qint64>(opened.Process)));
}

TEST_F(ProcessesTest, NumbersThatNoProcessHasRunNowhere) {
    for (const qint64 number : {qint64{0}, qint64{-1}, qint64{2147483647}, (qint64{1} << 32) + ::getpid()})
        EXPECT_FALSE(Processes::IsRunning(number)) << number;
}

TEST_F(ProcessesTest, ATypeWithoutItsOwnApplicationOpensWithThatOfAMoreGeneralType) {
    const QString file = scratch_.Write(u"a.html"_s, "<html></html>");
    Associate("text/plain", Script(u"bin/app"_s, "exit 0").toUtf8());
    const Processes::Opened opened = Processes::OpenWithAssociation(file, 0);
    ASSERT_NE(opened.Process, 0U);
    EXPECT_EQ(Waited(opened.Process), 0);
}

TEST_F(ProcessesTest, WithoutAnApplicationTheAnswerIsNoAssociation) {
    const Variable noData("XDG_DATA_DIRS", scratch_.Native(u"none/x"_s).toUtf8());
    const QString file = scratch_.Write(u"a.txt"_s, "text");
    EXPECT_EQ(Processes::OpenWithAssociation(file, 0).InstApp, 31);
    EXPECT_EQ(Processes::OpenWithAssociation(file, 0).Process, 0U);
    Associate("text/plain", "/nowhere/at/all");
    EXPECT_EQ(Processes::OpenWithAssociation(file, 0).InstApp, 31);
}

TEST_F(ProcessesTest, AProgramForATerminalRunsInOne) {
    const QString file = scratch_.Write(u"a.txt"_s, "text");
    const QByteArray record = "printf '%s|' \"$(basename \"$0\")\" \"$@\" > \"$RECORD\"";
    Associate("text/plain", "editor %f", "Terminal=true\n");
    {
        const Variable onlyOurs("PATH", scratch_.Native(u"bin"_s).toUtf8());
        EXPECT_EQ(Processes::OpenWithAssociation(file, 0).InstApp, 31) << "Without a terminal there is no program.";
    }
    Script(u"bin/x-terminal-emulator"_s, record);
    Script(u"bin/xdg-terminal-exec"_s, record);
    for (const char* const begin : {"xdg-terminal-exec|", "x-terminal-emulator|-e|"}) {
        const Processes::Opened opened = Processes::OpenWithAssociation(file, 0);
        ASSERT_NE(opened.Process, 0U);
        EXPECT_EQ(Waited(opened.Process), 0);
        EXPECT_EQ(scratch_.Read(u"record"_s),
                  QByteArray(begin) + "editor|" + scratch_.Native(u"a.txt"_s).toUtf8() + "|");
        QFile::remove(scratch_.Native(u"bin/xdg-terminal-exec"_s));
    }
}

TEST_F(ProcessesTest, AnEntryForDBusRunsByItsExecTextAndIsPassedOverWithoutOne) {
    // The system's types without its applications.
    ASSERT_TRUE(QFile::link(u"/usr/share/mime"_s, scratch_.Native(u"mime"_s)));
    const Variable typesOnly("XDG_DATA_DIRS", scratch_.Native(u"x"_s).chopped(2).toUtf8());
    const QString file = scratch_.Write(u"a.txt"_s, "text");
    const QByteArray app = Script(u"bin/app"_s, "exit 5").toUtf8();
    Associate("text/plain", app + " --gapplication-service", "DBusActivatable=true\n");
    const Processes::Opened opened = Processes::OpenWithAssociation(file, 0);
    ASSERT_NE(opened.Process, 0U);
    EXPECT_EQ(Waited(opened.Process), 5);
    Associate("text/plain", "", "DBusActivatable=true\n");
    EXPECT_EQ(Processes::OpenWithAssociation(file, 0).InstApp, 31);
}

TEST_F(ProcessesTest, AnEntryThatWasTakenOutOfUseIsPassedOver) {
    const Variable noData("XDG_DATA_DIRS", scratch_.Native(u"none/x"_s).toUtf8());
    const QString file = scratch_.Write(u"a.txt"_s, "text");
    const QByteArray app = Script(u"bin/app"_s, "exit 0").toUtf8();
    Associate("text/plain", app, "Hidden=true\n");
    EXPECT_EQ(Processes::OpenWithAssociation(file, 0).InstApp, 31);
    Associate("text/plain", app);
    scratch_.Write(u"data/applications/mimeinfo.cache"_s, "[MIME Cache]\ntext/plain=some-app.desktop;\n");
    scratch_.Write(u"conf/mimeapps.list"_s, "[Removed Associations]\ntext/plain=some-app.desktop;\n");
    EXPECT_EQ(Processes::OpenWithAssociation(file, 0).InstApp, 31);
    scratch_.Write(u"conf/mimeapps.list"_s, "");
    EXPECT_EQ(Waited(Processes::OpenWithAssociation(file, 0).Process), 0);
}

// The file itself must not be run in a program's place.
TEST_F(ProcessesTest, AnEntryWithoutAProgramIsPassedOver) {
    const Variable noData("XDG_DATA_DIRS", scratch_.Native(u"none/x"_s).toUtf8());
    const QString file = scratch_.Write(u"a.txt"_s, "#!/bin/sh\nexit 0\n");
    QFile::setPermissions(scratch_.Native(u"a.txt"_s), QFile::ReadOwner | QFile::ExeOwner);
    const QByteArray app = Script(u"bin/app"_s, "exit 0").toUtf8();
    for (const QByteArray& exec : {QByteArray("%f"), QByteArray("%i"), app + QByteArray(" \0", 2)}) {
        Associate("text/plain", exec);
        EXPECT_EQ(Processes::OpenWithAssociation(file, 0).InstApp, 31) << exec.toStdString();
    }
}

TEST_F(ProcessesTest, AMissingFileAndAMissingPathAreTold) {
    EXPECT_EQ(Processes::OpenWithAssociation(scratch_.Inside(u"missing.txt"_s), 0).InstApp, 2);
    const QString file = scratch_.Write(u"a.txt"_s, "text");
    EXPECT_EQ(Processes::OpenWithAssociation(file + u"\\b.txt"_s, 0).InstApp, 3);
}

TEST_F(ProcessesTest, ThereIsNoChooserForPrograms) {
    EXPECT_THROW(Processes::ChooseProgramFor(u"\\a.txt"_s), RuntimeError);
}

TEST_F(ProcessesTest, TheCommandLineIsTheArgumentsJoinedByBlanks) {
    std::array<QByteArray, 4> words{"brindock", "/tbig", "C:\\a b.big", "\xC3\xA9"};
    std::array<char*, 4> arguments{words[0].data(), words[1].data(), words[2].data(), words[3].data()};
    EXPECT_EQ(Processes::CommandLine(4, arguments.data()), u"/tbig C:\\a b.big é"_s);
    EXPECT_EQ(Processes::CommandLine(1, arguments.data()), QString());
    EXPECT_EQ(Processes::CommandLine(0, nullptr), QString());
}

TEST_F(ProcessesTest, APathOnTheCommandLineIsAnInsidePath) {
    const QString inside = scratch_.Write(u"launch/gen"_s, "x");
    QByteArray word = scratch_.Native(u"launch/gen"_s).toUtf8();
    std::array<QByteArray, 2> words{"brindock", "/tbig"};
    std::array<char*, 3> arguments{words[0].data(), words[1].data(), word.data()};
    EXPECT_EQ(Processes::CommandLine(3, arguments.data()), u"/tbig "_s + inside);
}

TEST_F(ProcessesTest, AWordWithASlashInItIsAPathEvenWhereNothingIsThere) {
    std::array<QByteArray, 7> words{"brindock", "/tbig",   "/home/me/launcher/gen/typo.big", "mods/launch", "/gen",
                                    "./zh",     "//launch"};
    std::array<char*, 7> arguments{};
    std::ranges::transform(words, arguments.begin(), [](QByteArray& word) { return word.data(); });
    EXPECT_EQ(Processes::CommandLine(7, arguments.data()),
              u"/tbig \\home\\me\\launcher\\gen\\typo.big mods\\launch /gen .\\zh \\\\launch"_s);
}

TEST_F(ProcessesTest, TheProcessEndsWithItsExitCodeAtOnce) {
    EXPECT_EXIT(Processes::End(7), testing::ExitedWithCode(7), "");
}

TEST(ExecText, FieldCodesAreReplaced) {
    using List = QByteArrayList;
    EXPECT_EQ(DesktopEntries::ExpandExec(u"app --x %f"_s, u"/a b"_s), (List{"app", "--x", "/a b"}));
    EXPECT_EQ(DesktopEntries::ExpandExec(u"app %U"_s, u"/a b"_s), (List{"app", "file:///a%20b"}));
    EXPECT_EQ(DesktopEntries::ExpandExec(u"app %i %c 100%% --file=%F"_s, u"/a"_s), (List{"app", "100%", "--file=/a"}));
    EXPECT_EQ(DesktopEntries::ExpandExec(u"app"_s, u"/a"_s), (List{"app", "/a"}));
    EXPECT_EQ(DesktopEntries::ExpandExec(u"\"/my app\" \"a \\\\\"b\" \"\" %f %"_s, u"/a"_s),
              (List{"/my app", "a \"b", "", "/a", "%"}));
}
