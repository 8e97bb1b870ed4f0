// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/File.h"
#include "platform/Files.h"
#include "tests/platform/InAFolder.h"

#include <fcntl.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include <array>
#include <cstring>

using namespace Qt::StringLiterals;
using Access = File::Access;

namespace {

class FileKinds : public InAFolder {
protected:
    [[nodiscard]] QByteArray Native(const QString& name) const {
        return Paths::EncodeNative(Paths::ToNativeAsGiven(At(name)));
    }

    void MakeSocket(const QString& name) const {
        const QByteArray path = Native(name);
        sockaddr_un address{};
        address.sun_family = AF_UNIX;
        ASSERT_LT(static_cast<std::size_t>(path.size()), sizeof(address.sun_path));
        std::memcpy(&address.sun_path, path.constData(), static_cast<std::size_t>(path.size()));
        const int made = ::socket(AF_UNIX, SOCK_STREAM, 0);
        ASSERT_GE(made, 0);
        ASSERT_EQ(::bind(made, reinterpret_cast<const sockaddr*>(&address), sizeof(address)), 0);
        ::close(made);
    }
};

} // namespace

TEST_F(FileKinds, PipesSocketsAndDevicesAreRefusedWithTheirName) {
    ASSERT_EQ(::mkfifo(Native(u"pipe"_s).constData(), 0666), 0);
    MakeSocket(u"socket"_s);
    for (const QString& path : {At(u"pipe"_s), At(u"socket"_s), u"\\dev\\null"_s, u"\\dev\\zero"_s}) {
        for (const Access access : {Access::Read, Access::ReadWrite, Access::Replace})
            EXPECT_EQ(NumberRaisedBy([&] { File::Open(path, access); }), 75) << qPrintable(path);
        EXPECT_TRUE(MessageOf([&] { File::Open(path, Access::Read); }).contains(Paths::LastPart(path)));
        EXPECT_EQ(StateOf(path), FileState());
    }
}

TEST_F(FileKinds, ANewFileIsNotMadeThroughALink) {
    ASSERT_EQ(::symlink("elsewhere", Native(u"link"_s).constData()), 0);
    EXPECT_EQ(NumberRaisedBy([&] { File::Open(At(u"link"_s), Access::New); }), 58);
    EXPECT_NE(::access(Native(u"elsewhere"_s).constData(), F_OK), 0);
}

TEST_F(FileKinds, AFolderRaises75) {
    ASSERT_EQ(::mkdir(Native(u"folder"_s).constData(), 0777), 0);
    for (const Access access : {Access::Read, Access::ReadWrite, Access::Replace})
        EXPECT_EQ(NumberRaisedBy([&] { File::Open(At(u"folder"_s), access); }), 75);
}

TEST_F(FileKinds, TheStateOfALinkIsThatOfTheFileBehindIt) {
    Make(u"f"_s, "bytes");
    ASSERT_EQ(::symlink("f", Native(u"link"_s).constData()), 0);
    EXPECT_EQ(StateOf(At(u"link"_s)), StateOf(At(u"f"_s)));
}

TEST_F(FileKinds, TheStateTellsAWriteInTheSameSecond) {
    File file = File::Open(Make(u"f"_s, "bytes"), Access::ReadWrite);
    const FileState before = file.State();
    ::usleep(20'000); // the file system's clock goes on in steps
    file.Write(0, "BYTES");
    EXPECT_NE(file.State().Time, before.Time);
    EXPECT_EQ(file.State().Length, before.Length);
}

TEST_F(FileKinds, AWriteBefore1970IsRoundedDownToTheMillisecond) {
    Make(u"f"_s, "1");
    const std::array<timespec, 2> times{{{0, UTIME_OMIT}, {-2, 250'900'000}}};
    ASSERT_EQ(::utimensat(AT_FDCWD, Native(u"f"_s).constData(), times.data(), 0), 0);
    EXPECT_EQ(File::Open(At(u"f"_s), Access::Read).Modified().toMSecsSinceEpoch(), -1750);
    EXPECT_EQ(Files::ModifiedTime(At(u"f"_s)).toMSecsSinceEpoch(), -1750);
}

TEST_F(FileKinds, WhoMayReadAFileMayStartItOnceItIsExecutable) {
    Make(u"program"_s, "#!/bin/sh\n");
    for (const auto& [before, after] :
         {std::pair{0644, 0755}, {0600, 0700}, {0640, 0750}, {0200, 0300}, {0755, 0755}}) {
        ASSERT_EQ(::chmod(Native(u"program"_s).constData(), static_cast<mode_t>(before)), 0);
        Files::MakeExecutable(At(u"program"_s));

        struct stat status {};

        ASSERT_EQ(::stat(Native(u"program"_s).constData(), &status), 0);
        EXPECT_EQ(status.st_mode & 0777, static_cast<mode_t>(after)) << before;
    }
    EXPECT_EQ(NumberRaisedBy([&] { Files::MakeExecutable(At(u"missing"_s)); }), 53);
}
