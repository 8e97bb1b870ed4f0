// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/ReplacedFile.h"
#include "tests/platform/InAFolder.h"

#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

class Replaced : public InAFolder {
protected:
    [[nodiscard]] QByteArray Native(const QString& name) const {
        return Paths::EncodeNative(Paths::ToNativeAsGiven(At(name)));
    }

    void SetMode(const QString& name, mode_t mode) const { ASSERT_EQ(::chmod(Native(name).constData(), mode), 0); }

    [[nodiscard]] mode_t ModeOf(const QString& name) const {
        struct stat status {};

        EXPECT_EQ(::stat(Native(name).constData(), &status), 0);
        return status.st_mode & 07777;
    }
};

} // namespace

TEST_F(Replaced, LinksAreFollowedToTheirEnd) {
    ASSERT_EQ(::symlink("second", Native(u"first"_s).constData()), 0);
    ASSERT_EQ(::symlink("third", Native(u"second"_s).constData()), 0);
    EXPECT_EQ(ReplacedFile::BehindLinks(At(u"first"_s)), At(u"third"_s)) << "nothing stands there yet";
    Make(u"third"_s, "x");
    EXPECT_EQ(ReplacedFile::BehindLinks(At(u"first"_s)), At(u"third"_s));
    EXPECT_EQ(ReplacedFile::BehindLinks(At(u"third"_s)), At(u"third"_s));
}

TEST_F(Replaced, AFileThatNobodyMayWriteIsProtected) {
    const QString path = Make(u"f"_s, "x");
    EXPECT_FALSE(ReplacedFile::IsWriteProtected(path));
    SetMode(u"f"_s, 0444);
    EXPECT_TRUE(ReplacedFile::IsWriteProtected(path));
    EXPECT_FALSE(ReplacedFile::IsWriteProtected(At(u"missing"_s)));
    EXPECT_FALSE(ReplacedFile::IsWriteProtected(At(u""_s))) << "a folder is another matter";
}

TEST_F(Replaced, PermissionsGoOverToTheNewFile) {
    Make(u"old"_s, "x");
    Make(u"new"_s, "y");
    SetMode(u"old"_s, 0640);
    const File file = File::Open(At(u"new"_s), File::Access::ReadWrite);
    EXPECT_TRUE(ReplacedFile::KeepOwnerAndMode(file, At(u"old"_s)));
    EXPECT_EQ(ModeOf(u"new"_s), 0640U);
    EXPECT_FALSE(ReplacedFile::KeepOwnerAndMode(file, At(u"missing"_s)));
}
