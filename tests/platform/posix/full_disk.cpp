// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

// A disk that takes no more bytes leaves the files as they were.

#include "platform/INIRuntime.h"
#include "platform/RegistryRuntime.h"

#include "tests/platform/Scratch.h"

#include <gtest/gtest.h>

#include <sys/resource.h>

#include <csignal>

using namespace Qt::StringLiterals;

namespace {

/// Lets no file grow beyond so many bytes until the end of the scope.
class FullDisk {
public:
    explicit FullDisk(rlim_t bytes) : handler_(std::signal(SIGXFSZ, SIG_IGN)) {
        ::getrlimit(RLIMIT_FSIZE, &old_);
        const rlimit small{bytes, old_.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &small);
    }

    ~FullDisk() {
        ::setrlimit(RLIMIT_FSIZE, &old_);
        std::signal(SIGXFSZ, handler_);
    }

    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;

private:
    rlimit old_{};
    void (*handler_)(int);
};

QStringList NamesIn(const QString& folder) {
    return QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
}

} // namespace

TEST(FullDiskTest, AnIniFileStaysWholeAndTheAnswerIsZero) {
    const Scratch scratch;
    const QByteArray before = "[A]\r\nk=1\r\nlonger=than the disk takes\r\n";
    const QString file = scratch.Write(u"f/file.ini"_s, before);
    for (rlim_t bytes = 0; bytes < static_cast<rlim_t>(before.size()); ++bytes) {
        const FullDisk full(bytes);
        EXPECT_EQ(INIRuntime().WriteINI(u"A"_s, u"k"_s, u"2"_s, file), u"0"_s) << bytes;
    }
    EXPECT_EQ(scratch.Read(u"f/file.ini"_s), before);
    EXPECT_EQ(NamesIn(scratch.Native(u"f"_s)), QStringList{u"file.ini"_s});
}

TEST(FullDiskTest, TheRegistryFileStaysWholeAndNothingIsRaised) {
    const Scratch scratch;
    const QByteArray before = "REGEDIT4\r\n\r\n[HKEY_CURRENT_USER\\A]\r\n\"n\"=\"1\"\r\n";
    scratch.Write(u"f/own.reg"_s, before);
    const Variable named("BRINDOCK_REGISTRY", scratch.Native(u"f/own.reg"_s).toUtf8());
    RegistryRuntime registry;
    for (rlim_t bytes = 0; bytes < static_cast<rlim_t>(before.size()); ++bytes) {
        const FullDisk full(bytes);
        registry.SaveString(RootKey::CurrentUser, u"A"_s, u"n"_s, u"2"_s);
    }
    EXPECT_EQ(scratch.Read(u"f/own.reg"_s), before);
    EXPECT_EQ(registry.GetString(RootKey::CurrentUser, u"A"_s, u"n"_s), u"1"_s);
    EXPECT_EQ(NamesIn(scratch.Native(u"f"_s)), QStringList{u"own.reg"_s});
}
