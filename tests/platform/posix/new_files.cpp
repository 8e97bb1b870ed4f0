// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/NewFiles.h"

#include "platform/Files.h"
#include "tests/platform/InAFolder.h"
#include "tests/support/posix/FileLengthLimit.h"

#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

class NewFilesPosix : public InAFolder {
protected:
    [[nodiscard]] QByteArray Native(const QString& name) const {
        return Paths::EncodeNative(Paths::ToNativeAsGiven(At(name)));
    }

    [[nodiscard]] QStringList Names() const { return Files::ListFolder(At(u"*"_s), true); }

    NewFiles files_{At({})};
};

} // namespace

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
