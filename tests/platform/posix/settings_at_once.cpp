// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Settings and INI files that several processes change at the same time.

#include "platform/FileRegistry.h"
#include "platform/FolderLock.h"
#include "platform/INIRuntime.h"
#include "tests/platform/Scratch.h"

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <functional>
#include <vector>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr int writers = 6;
constexpr int values = 15;

QString Name(int writer, int value) {
    return u"value %1 of %2"_s.arg(value).arg(writer);
}

/// Runs each writer in a process of its own.
void AtOnce(const std::function<void(int writer)>& write) {
    std::vector<pid_t> processes;
    for (int writer = 0; writer < writers; ++writer) {
        processes.push_back(::fork());
        if (processes.back() == 0) {
            write(writer);
            ::_exit(0);
        }
    }
    for (const pid_t process : processes) {
        int status = 0;
        ::waitpid(process, &status, 0);
        EXPECT_EQ(status, 0);
    }
}

} // namespace

TEST(SettingsAtOnce, NoProcessLosesAnothersValue) {
    const Scratch scratch;
    const QString path = scratch.Native(u"registry.reg"_s);
    AtOnce([&](int writer) {
        FileRegistry registry(path);
        for (int value = 0; value < values; ++value)
            registry.Write(RootKey::CurrentUser, u"A"_s, Name(writer, value), {RegistryValue::Kind::Number, {}, 7});
    });
    const FileRegistry registry(path);
    for (int writer = 0; writer < writers; ++writer)
        for (int value = 0; value < values; ++value)
            EXPECT_EQ(registry.Read(RootKey::CurrentUser, u"A"_s, Name(writer, value)).Number, 7U)
                << Name(writer, value).toStdString();
}

TEST(SettingsAtOnce, NoProcessLosesAnothersLineOfAnIniFile) {
    const Scratch scratch;
    const QString path = scratch.Inside(u"map.ini"_s);
    AtOnce([&](int writer) {
        for (int value = 0; value < values; ++value)
            INIRuntime().WriteINI(u"A"_s, Name(writer, value), u"7"_s, path);
    });
    for (int writer = 0; writer < writers; ++writer)
        for (int value = 0; value < values; ++value)
            EXPECT_EQ(INIRuntime().ReadINI(u"A"_s, Name(writer, value), path), u"7"_s)
                << Name(writer, value).toStdString();
}

TEST(SettingsAtOnce, AWriterThatIsStoppedStopsNoOther) {
    const Scratch scratch;
    const FolderLock stopped(scratch.Inside({}));
    ASSERT_TRUE(stopped.Held());
    const FolderLock second = FolderLock::WaitedFor(scratch.Inside({}), 20ms);
    EXPECT_EQ(second.State(), FolderLock::Result::Taken);
}
