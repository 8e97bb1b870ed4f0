// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/CopiedTime.h"

#include "platform/Files.h"
#include "tests/platform/InAFolder.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <array>

using namespace Qt::StringLiterals;

namespace {

class CopiedTimes : public InAFolder {
protected:
    [[nodiscard]] QByteArray Native(const QString& name) const {
        return Paths::EncodeNative(Paths::ToNativeAsGiven(At(name)));
    }

    /// Gives a file a time of long ago.
    void Age(const QString& name) const {
        const std::array<timespec, 2> times{timespec{.tv_sec = 1'000'000'000, .tv_nsec = 0},
                                            timespec{.tv_sec = 1'000'000'000, .tv_nsec = 123'456'789}};
        ASSERT_EQ(::utimensat(AT_FDCWD, Native(name).constData(), times.data(), 0), 0);
    }

    [[nodiscard]] timespec TimeOf(const QString& name) const {
        struct stat status {};

        EXPECT_EQ(::stat(Native(name).constData(), &status), 0);
        return status.st_mtim;
    }
};

} // namespace

TEST_F(CopiedTimes, ACopyHasTheTimeWhateverItsName) {
    const QString noText = u"a"_s + QChar(0xDC80) + u".rep"_s; // a byte that stands for no letter
    for (const auto& [from, copy] : {std::pair{u"f"_s, u"g"_s}, {noText, u"h"_s}, {u"f"_s, noText + u'2'}}) {
        Make(from, "old");
        Age(from);
        Make(copy, "old");
        CopiedTime::Keep(At(from), At(copy));
        EXPECT_EQ(TimeOf(copy).tv_sec, 1'000'000'000) << copy.toStdString();
        EXPECT_EQ(TimeOf(copy).tv_nsec, 123'456'789) << "to the last digit";
    }
}

TEST_F(CopiedTimes, AnOpenCopyHasItWhenItIsClosed) {
    Make(u"f"_s, "old");
    Age(u"f"_s);
    const File from = File::Open(At(u"f"_s), File::Access::Read);
    File copy = File::Open(At(u"g"_s), File::Access::New);
    copy.Write(0, "old");
    CopiedTime::Keep(from, copy);
    copy.Close();
    EXPECT_EQ(TimeOf(u"g"_s).tv_sec, 1'000'000'000);
    EXPECT_EQ(TimeOf(u"g"_s).tv_nsec, 123'456'789);
}

TEST_F(CopiedTimes, WithoutTheFileTheCopyIsAsItWas) {
    Make(u"g"_s, "old");
    Age(u"g"_s);
    CopiedTime::Keep(At(u"none"_s), At(u"g"_s));
    EXPECT_EQ(TimeOf(u"g"_s).tv_sec, 1'000'000'000);
    CopiedTime::Keep(At(u"g"_s), At(u"none"_s));
    EXPECT_FALSE(Files::FileExists(At(u"none"_s)));
}
