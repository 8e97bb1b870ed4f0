// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/NewFiles.h"

#include "platform/Files.h"
#include "tests/platform/InAFolder.h"
#include "tests/support/posix/FileLengthLimit.h"

#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>

using namespace Qt::StringLiterals;

namespace {

int refusal = 0; ///< the error that putting a name where none stands meets; 0 for none
int asked = 0;   ///< how often it was to be done

class NewFilesPosix : public InAFolder {
protected:
    [[nodiscard]] QByteArray Native(const QString& name) const {
        return Paths::EncodeNative(Paths::ToNativeAsGiven(At(name)));
    }

    [[nodiscard]] QStringList Names() const { return Files::ListFolder(At(u"*"_s), true); }

    NewFiles files_{At({})};
};

} // namespace

/// Stands before the system library's in this program.
// NOLINTNEXTLINE(readability-inconsistent-declaration-parameter-name)
extern "C" int renameat2(int from, const char* name, int to, const char* target, unsigned flags) noexcept {
    ++asked;
    errno = refusal;
    return refusal != 0 ? -1 : static_cast<int>(::syscall(SYS_renameat2, from, name, to, target, flags));
}

TEST_F(NewFilesPosix, TheyGetThePermissionsThatNewFilesGet) {
    const mode_t before = ::umask(027);
    EXPECT_TRUE(files_.Put(u"a"_s, "new"));
    ::umask(before);

    struct stat status {};

    ASSERT_EQ(::stat(Native(u"a"_s).constData(), &status), 0);
    EXPECT_EQ(status.st_mode & 07777, mode_t{0640});
}

TEST_F(NewFilesPosix, ALinkStaysAndNothingIsWrittenThroughIt) {
    Make(u"victim"_s, "old");
    ASSERT_EQ(::symlink("victim", Native(u"link"_s).constData()), 0);
    ASSERT_EQ(::symlink("nowhere", Native(u"dangling"_s).constData()), 0);
    EXPECT_FALSE(files_.Put(u"link"_s, "new"));
    EXPECT_FALSE(files_.Put(u"dangling"_s, "new"));
    EXPECT_EQ(BytesOf(u"victim"_s), "old");
    EXPECT_EQ(Names().size(), 3);
}

TEST_F(NewFilesPosix, OnAFullDiskNothingIsLeft) {
    for (rlim_t room = 0; room < 5; ++room) {
        const FileLengthLimit limit(room);
        EXPECT_FALSE(files_.Put(u"a"_s, "bytes")) << room;
        EXPECT_EQ(Names(), QStringList());
    }
    EXPECT_TRUE(files_.Put(u"a"_s, "bytes")) << "the next one finds room again";
}

TEST_F(NewFilesPosix, TheFolderIsTheOneThatWasOpened) {
    Files::MakeFolder(At(u"d"_s));
    Files::MakeFolder(At(u"elsewhere"_s));
    NewFiles files(At(u"d\\"_s));
    ASSERT_EQ(::rename(Native(u"d"_s).constData(), Native(u"moved"_s).constData()), 0);
    ASSERT_EQ(::symlink("elsewhere", Native(u"d"_s).constData()), 0);
    EXPECT_TRUE(files.Put(u"a"_s, "new"));
    EXPECT_EQ(BytesOf(u"moved\\a"_s), "new");
    EXPECT_EQ(Files::ListFolder(At(u"elsewhere\\*"_s)), QStringList());
}

TEST_F(NewFilesPosix, AFolderThatWasMadeAnewIsOpenedAnew) {
    Files::MakeFolder(At(u"d"_s));
    NewFiles files(At(u"d\\"_s));
    EXPECT_TRUE(files.Put(u"a"_s, "old"));
    Files::DeleteFolder(At(u"d"_s));
    EXPECT_FALSE(files.Put(u"a"_s, "new"));
    Files::MakeFolder(At(u"d"_s));
    EXPECT_TRUE(files.Put(u"a"_s, "new"));
    EXPECT_EQ(BytesOf(u"d\\a"_s), "new");
    EXPECT_FALSE(files.Put(u"a"_s, "newer"));
}

TEST_F(NewFilesPosix, AFileSystemThatCanNotTellIsTriedOnce) {
    for (const int error : {EINVAL, ENOSYS}) {
        const pid_t process = ::fork(); // what it learns of the disk is not for the tests behind this one
        if (process == 0) {
            refusal = error;
            asked = 0;
            const bool put = files_.Put(u"a"_s, "new") || files_.Put(u"b"_s, "new");
            const bool another = NewFiles(At({})).Put(u"c"_s, "new");
            ::_exit(put || another ? 99 : asked);
        }
        int status = 0;
        ASSERT_EQ(::waitpid(process, &status, 0), process);
        ASSERT_TRUE(WIFEXITED(status));
        EXPECT_EQ(WEXITSTATUS(status), 1);
        EXPECT_EQ(Names(), QStringList());
    }
}

TEST_F(NewFilesPosix, AnyOtherFailureIsThatFilesAlone) {
    refusal = EIO;
    EXPECT_FALSE(files_.Put(u"a"_s, "new"));
    refusal = 0;
    EXPECT_EQ(Names(), QStringList());
    EXPECT_TRUE(files_.Put(u"a"_s, "new"));
    EXPECT_TRUE(NewFiles(At({})).Put(u"b"_s, "new"));
}
