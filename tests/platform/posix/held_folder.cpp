// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/HeldFolder.h"

#include "platform/Files.h"
#include "platform/WriteAside.h"
#include "tests/platform/InAFolder.h"
#include "tests/support/posix/FileLengthLimit.h"

#include <QScopeGuard>

#include <dlfcn.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdarg>

using namespace Qt::StringLiterals;

namespace {

int refusal = 0;     ///< the error that putting a name where none stands meets; 0 for none
int asked = 0;       ///< how often it was to be done
int openRefusal = 0; ///< the error that opening without links in one call meets; 0 for none

class HeldFoldersPosix : public InAFolder {
protected:
    [[nodiscard]] QByteArray Native(const QString& name) const {
        return Paths::EncodeNative(Paths::ToNativeAsGiven(At(name)));
    }

    [[nodiscard]] QStringList Names() const { return Files::ListFolder(At(u"*"_s), true); }

    void Exchange(const QString& name) const;

    HeldFolder files_{At({})};
};

} // namespace

/// Stands before the system library's in this program.
// NOLINTNEXTLINE(readability-inconsistent-declaration-parameter-name)
extern "C" int renameat2(int from, const char* name, int to, const char* target, unsigned flags) noexcept {
    ++asked;
    errno = refusal;
    return refusal != 0 ? -1 : static_cast<int>(::syscall(SYS_renameat2, from, name, to, target, flags));
}

// NOLINTNEXTLINE(readability-inconsistent-declaration-parameter-name)
extern "C" long syscall(long number, ...) noexcept {
    va_list given;
    va_start(given, number);
    std::array<long, 6> values{};
    for (long& value : values)
        value = va_arg(given, long);
    va_end(given);
    if (number == SYS_openat2 && openRefusal != 0) {
        errno = openRefusal;
        return -1;
    }
    static const auto next = reinterpret_cast<long (*)(long, ...)>(::dlsym(RTLD_NEXT, "syscall"));
    return next(number, values[0], values[1], values[2], values[3], values[4], values[5]);
}

TEST_F(HeldFoldersPosix, TheyGetThePermissionsThatHeldFolderGet) {
    const mode_t before = ::umask(027);
    EXPECT_TRUE(files_.Put(u"a"_s, "new"));
    ::umask(before);

    struct stat status {};

    ASSERT_EQ(::stat(Native(u"a"_s).constData(), &status), 0);
    EXPECT_EQ(status.st_mode & 07777, mode_t{0640});
}

TEST_F(HeldFoldersPosix, ALinkStaysAndNothingIsWrittenThroughIt) {
    Make(u"victim"_s, "old");
    ASSERT_EQ(::symlink("victim", Native(u"link"_s).constData()), 0);
    ASSERT_EQ(::symlink("nowhere", Native(u"dangling"_s).constData()), 0);
    EXPECT_FALSE(files_.Put(u"link"_s, "new"));
    EXPECT_FALSE(files_.Put(u"dangling"_s, "new"));
    EXPECT_EQ(BytesOf(u"victim"_s), "old");
    EXPECT_EQ(Names().size(), 3);
}

TEST_F(HeldFoldersPosix, OnAFullDiskNothingIsLeft) {
    for (rlim_t room = 0; room < 5; ++room) {
        const FileLengthLimit limit(room);
        EXPECT_FALSE(files_.Put(u"a"_s, "bytes")) << room;
        EXPECT_EQ(Names(), QStringList());
    }
    EXPECT_TRUE(files_.Put(u"a"_s, "bytes")) << "the next one finds room again";
}

/// Puts a link to another folder in a folder's place, which is "moved" then.
void HeldFoldersPosix::Exchange(const QString& name) const {
    ASSERT_EQ(::rename(Native(name).constData(), Native(u"moved"_s).constData()), 0);
    ASSERT_EQ(::symlink("elsewhere", Native(name).constData()), 0);
}

TEST_F(HeldFoldersPosix, TheFolderIsTheOneThatWasOpened) {
    Files::MakeFolder(At(u"d"_s));
    Files::MakeFolder(At(u"elsewhere"_s));
    const auto folder = std::make_shared<HeldFolder>(At(u"d\\"_s));
    WriteAside aside({folder, u"b"_s});
    Exchange(u"d"_s);
    EXPECT_TRUE(folder->Put(u"a"_s, "new"));
    aside.Out().Write(0, "aside");
    aside.Commit();
    folder->MakeFolder(u"f"_s);
    EXPECT_TRUE(HeldFolder(*folder, u"f"_s).Put(u"c"_s, "below"));
    EXPECT_EQ(folder->OpenToRead(u"a"_s).Read(0, 9), "new");
    EXPECT_EQ(BytesOf(u"moved\\a"_s), "new");
    EXPECT_EQ(BytesOf(u"moved\\b"_s), "aside");
    EXPECT_EQ(BytesOf(u"moved\\f\\c"_s), "below");
    EXPECT_EQ(Files::ListFolder(At(u"elsewhere\\*"_s), true), QStringList());
}

TEST_F(HeldFoldersPosix, NoLinkIsFollowedBelowIt) {
    Files::MakeFolder(At(u"elsewhere"_s));
    Files::MakeFolder(At(u"elsewhere\\below"_s));
    Make(u"elsewhere\\f"_s, "old");
    ASSERT_EQ(::symlink("elsewhere", Native(u"link"_s).constData()), 0);
    ASSERT_EQ(::symlink("elsewhere/f", Native(u"file"_s).constData()), 0);
    EXPECT_EQ(NumberRaisedBy([&] { HeldFolder(files_, u"link"_s); }), ErrorNumber::PathFileAccess);
    EXPECT_EQ(NumberRaisedBy([&] { HeldFolder(files_, u"link\\below"_s); }), ErrorNumber::PathFileAccess);
    EXPECT_EQ(files_.StandingOf(u"link"_s), HeldFolder::Standing::Link);
    EXPECT_EQ(files_.StandingOf(u"file"_s), HeldFolder::Standing::Link);
    EXPECT_EQ(files_.StateOf(u"file"_s), FileState());
    EXPECT_ANY_THROW(static_cast<void>(files_.OpenToRead(u"file"_s)));
    const auto folder = std::make_shared<HeldFolder>(At({}));
    WriteAside aside({folder, u"file"_s});
    aside.Out().Write(0, "new");
    aside.Commit();
    EXPECT_EQ(BytesOf(u"file"_s), "new");
    EXPECT_EQ(BytesOf(u"elsewhere\\f"_s), "old");
}

TEST_F(HeldFoldersPosix, WhereTheSystemHasNoCallForItEachFolderIsOpenedInItsTurn) {
    Files::MakeFolder(At(u"d"_s));
    Files::MakeFolder(At(u"d\\e"_s));
    ASSERT_EQ(::symlink("d", Native(u"link"_s).constData()), 0);
    openRefusal = ENOSYS;
    const auto forget = qScopeGuard([] { openRefusal = 0; });
    EXPECT_TRUE(HeldFolder(files_, u"d\\e"_s).Put(u"a"_s, "new"));
    EXPECT_EQ(BytesOf(u"d\\e\\a"_s), "new");
    EXPECT_EQ(NumberRaisedBy([&] { HeldFolder(files_, u"link\\e"_s); }), ErrorNumber::PathFileAccess);
    EXPECT_EQ(NumberRaisedBy([&] { HeldFolder(files_, u"d\\none"_s); }), ErrorNumber::PathNotFound);
}

TEST_F(HeldFoldersPosix, AFolderThatWasRemovedIsKnownToBe) {
    Files::MakeFolder(At(u"d"_s));
    const auto folder = std::make_shared<HeldFolder>(At(u"d\\"_s));
    EXPECT_TRUE(folder->Put(u"a"_s, "old"));
    EXPECT_TRUE(folder->Lives());
    Files::DeleteFolder(At(u"d"_s));
    EXPECT_FALSE(folder->Lives());
    Files::MakeFolder(At(u"d"_s));
    EXPECT_FALSE(folder->Lives());
    EXPECT_FALSE(folder->Put(u"a"_s, "new"));
    EXPECT_EQ(NumberRaisedBy([&] { WriteAside({folder, u"a"_s}); }), ErrorNumber::PathNotFound);
    EXPECT_EQ(NumberRaisedBy([&] { folder->MakeFolder(u"f"_s); }), ErrorNumber::PathNotFound);
}

TEST_F(HeldFoldersPosix, AFileSystemThatCanNotTellIsTriedOnce) {
    for (const int error : {EINVAL, ENOSYS}) {
        const pid_t process = ::fork(); // what it learns of the disk is not for the tests behind this one
        if (process == 0) {
            refusal = error;
            asked = 0;
            const bool put = files_.Put(u"a"_s, "new") || files_.Put(u"b"_s, "new");
            const bool another = HeldFolder(At({})).Put(u"c"_s, "new");
            ::_exit(put || another ? 99 : asked);
        }
        int status = 0;
        ASSERT_EQ(::waitpid(process, &status, 0), process);
        ASSERT_TRUE(WIFEXITED(status));
        EXPECT_EQ(WEXITSTATUS(status), 1);
        EXPECT_EQ(Names(), QStringList());
    }
}

TEST_F(HeldFoldersPosix, AnyOtherFailureIsThatFilesAlone) {
    refusal = EIO;
    EXPECT_FALSE(files_.Put(u"a"_s, "new"));
    refusal = 0;
    EXPECT_EQ(Names(), QStringList());
    EXPECT_TRUE(files_.Put(u"a"_s, "new"));
    EXPECT_TRUE(HeldFolder(At({})).Put(u"b"_s, "new"));
}
