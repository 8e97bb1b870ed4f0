// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Other programs that are really started: a game through a stand-in for wine, and an association of the desktop.

#include "core/GameFiles.h"
#include "core/Settings.h"
#include "core/mMain.h"
#include "core/mShellExecuteWait.h"
#include "platform/Files.h"
#include "platform/Paths.h"
#include "platform/ProcessEnd.h"
#include "platform/RuntimeError.h"
#include "tests/support/Printing.h"
#include "tests/support/ScriptedHost.h"
#include "tests/support/ScriptedNavigator.h"
#include "tests/support/World.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QFile>
#include <QThread>
#include <QTimer>

#include <map>
#include <string>
#include <vector>

using namespace Qt::StringLiterals;
using mShellExecuteWait::OpenWithShell;

namespace {

class Programs : public testing::Test {
protected:
    int count_ = 1;
    std::string name_ = "test";
    std::vector<char*> arguments_{name_.data(), nullptr};
    QCoreApplication application_{count_, arguments_.data()};
    World world_;
    ScriptedHost host_;
    ScriptedNavigator navigator_;

    // A wait is a real one here: other programs are.
    Programs() {
        host_.OnWait = [] { QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents); };
    }

    ~Programs() override {
        for (const auto& [name, value] : before_)
            qputenv(name.constData(), value);
    }

    void SetVariable(const QByteArray& name, const QByteArray& value) {
        before_.try_emplace(name, qgetenv(name.constData()));
        qputenv(name.constData(), value);
    }

    [[nodiscard]] QByteArray Native(const QString& path) const {
        return Paths::EncodeNative(Paths::ToNative(world_.Root() + u'\\' + path));
    }

    void WriteScript(const QString& path, const QByteArray& text) const {
        const QString script = world_.WriteFile(path, "#!/bin/sh\n" + text);
        QFile::setPermissions(Paths::ToNative(script), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }

    /// What the other program wrote, as soon as it has renamed it into place.
    [[nodiscard]] QByteArray WaitForFile(const QString& path) const {
        const QString file = world_.Root() + u'\\' + path;
        for (int round = 0; round < 500 && !Files::FileExists(file); ++round)
            QThread::msleep(10);
        return World::ReadFile(file);
    }

    /// Makes a script the one program for every file: what is of no other type is at least a row of bytes.
    void Associate(const QByteArray& script) {
        for (const char* name : {"XDG_DATA_HOME", "XDG_DATA_DIRS", "XDG_CONFIG_HOME", "XDG_CONFIG_DIRS"})
            SetVariable(name, Native(u"desktop"_s));
        SetVariable("XDG_CURRENT_DESKTOP", "");
        WriteScript(u"open.sh"_s, script);
        world_.WriteFile(u"desktop\\applications\\open.desktop"_s,
                         "[Desktop Entry]\nType=Application\nExec=" + Native(u"open.sh"_s) + " %f\n");
        world_.WriteFile(u"desktop\\mimeapps.list"_s,
                         "[Default Applications]\napplication/octet-stream=open.desktop\n");
    }

private:
    std::map<QByteArray, QByteArray> before_;
};

} // namespace

TEST_F(Programs, LaunchPreparesTheShellMapAndThenStartsTheGameWithItsOptionsInOrder) {
    WriteScript(u"bin\\wine"_s, "printf '%s\\n' \"$@\" > " + Native(u"started"_s) + ".part\nmv " +
                                    Native(u"started"_s) + ".part " + Native(u"started"_s) + "\n");
    SetVariable("PATH", Native(u"bin"_s) + ':' + qgetenv("PATH"));
    world_.InstallGame(1);
    world_.WriteFile(u"games\\Zero Hour\\Generals.exe"_s, "MZ");
    WriteSetting(u"ZHStartupOptions"_s, u" -quickstart -noshaders"_s);
    WriteSetting(u"ZHLoadMod"_s, u"Mod.big"_s);
    bool started = false;
    QList<GameIndex> activated;
    GameFiles::ActivateShellMap = [&](GameIndex game) {
        activated << game;
        started = Files::FileExists(world_.Root() + u"\\started"_s);
        throw RuntimeError(ErrorNumber::InvalidCall, u"ignored"_s);
    };
    mMain::Show(mMain::Prepare(u"/launch /zh"_s));
    EXPECT_EQ(WaitForFile(u"started"_s),
              Native(u"games\\Zero Hour\\Generals.exe"_s) + "\n-quickstart\n-noshaders\n-mod\nMod.big\n");
    EXPECT_EQ(activated, QList<GameIndex>{1});
    EXPECT_FALSE(started) << "the game was started before its shell map was prepared";
}

TEST_F(Programs, OpeningWithWaitReturnsWhenTheProgramHasEndedWhateverItsExitCode) {
    Associate("sleep 0.1\nprintf changed > \"$1\"\nexit 3\n");
    const QString path = world_.WriteFile(u"read me.txt"_s, "before");
    int ticks = 0;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, [&ticks] { ++ticks; });
    timer.start(10);
    OpenWithShell(path, 0, true);
    EXPECT_EQ(World::ReadFile(path), QByteArray("changed"));
    EXPECT_GT(ticks, 0) << "the event loop stood still";
    EXPECT_TRUE(host_.Messages.empty());
}

TEST_F(Programs, OpeningWithoutWaitReturnsAtOnceWithTheProcess) {
    Associate("while [ ! -e \"$1.go\" ]; do sleep 0.01; done\n");
    const QString path = world_.WriteFile(u"a.txt"_s, "text");
    const Processes::Handle process = OpenWithShell(path, 0, false);
    ASSERT_NE(process, 0U);
    EXPECT_EQ(Processes::ExitCode(process), std::nullopt);
    EXPECT_EQ(host_.Waits, 0);
    world_.WriteFile(u"a.txt.go"_s, {});
    mShellExecuteWait::WaitFor(process);
}

TEST_F(Programs, AWaitIsGivenUpAndTheProgramRunsOn) {
    Associate("while [ ! -e \"$1.go\" ]; do sleep 0.01; done\nprintf changed > \"$1.part\"; mv \"$1.part\" \"$1\"\n");
    const QString path = world_.WriteFile(u"a.txt"_s, "text");
    int asked = 0;
    QTimer timer; // events for the wait to look behind
    timer.start(10);
    OpenWithShell(path, 0, true, [&asked] { return ++asked < 3; });
    EXPECT_EQ(World::ReadFile(path), QByteArray("text"));
    world_.WriteFile(u"a.txt.go"_s, {});
    for (int round = 0; round < 500 && World::ReadFile(path) != "changed"; ++round)
        QThread::msleep(10);
    EXPECT_EQ(World::ReadFile(path), QByteArray("changed"));
}

TEST_F(Programs, AProgramThatWasOpenedCanBeFollowedWithoutAWait) {
    Associate("exit 4\n");
    const Processes::Opened opened = mShellExecuteWait::Open(world_.WriteFile(u"a.txt"_s, "text"), 0);
    EXPECT_TRUE(mShellExecuteWait::IsOpened(opened));
    ASSERT_NE(opened.Process, 0U);
    bool ended = false;
    const ProcessEnd end(opened.Process);
    QObject::connect(&end, &ProcessEnd::Ended, [&ended] { ended = true; });
    EXPECT_TRUE(host_.Host::WaitUntil([&ended] { return ended; }));
}

TEST_F(Programs, AFileWithoutAProgramSaysSoWhereTheSystemHasNoChooser) {
    Associate("exit 0\n");
    world_.WriteFile(u"desktop\\mimeapps.list"_s, "");
    EXPECT_EQ(OpenWithShell(world_.WriteFile(u"a.w3d"_s, QByteArray("\x01\x00\xFF\xFE", 4)), 0, true), 0U);
    ASSERT_EQ(host_.Messages.size(), 1U);
    EXPECT_EQ(host_.Messages.front().Text, u"Information d'association du fichier incomplète."_s);
    EXPECT_EQ(host_.Messages.front().Sign, Host::Icon::Exclamation);
    const QString other = world_.WriteFile(u"b.w3d"_s, QByteArray("\x01\x00\xFF\xFE", 4));
    EXPECT_FALSE(mShellExecuteWait::IsOpened(mShellExecuteWait::Open(other, 0)));
}
