// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// File systems without permissions of their own refuse to change them; a save goes on as long as nobody gets in who
/// did not before.
#include "platform/WriteAside.h"
#include "tests/platform/InAFolder.h"

#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cerrno>

using namespace Qt::StringLiterals;

namespace {

int refusal = 0; ///< the error that every change of a mode meets; 0 for none

class WriteAsideModes : public InAFolder {
protected:
    ~WriteAsideModes() override { refusal = 0; }

    /// The number of the error that a save over a file of that mode meets under that refusal; 0 when it is saved.
    int SaveOver(mode_t mode, int error) {
        Make(u"f"_s, "old");
        EXPECT_EQ(::chmod(Paths::EncodeNative(Paths::ToNative(At(u"f"_s))).constData(), mode), 0);
        refusal = error;
        const int number = NumberRaisedBy([&] { WriteWhole(At(u"f"_s), "new"); });
        refusal = 0;
        return number;
    }
};

} // namespace

/// Stands before the system library's in this program.
extern "C" int fchmod(int file, mode_t mode) noexcept { // NOLINT(readability-inconsistent-declaration-parameter-name)
    errno = refusal;
    return refusal != 0 ? -1 : static_cast<int>(::syscall(SYS_fchmod, file, mode));
}

TEST_F(WriteAsideModes, AFileThatLetsNobodyMoreInIsSaved) {
    for (const int error : {EPERM, ENOTSUP, ENOSYS}) {
        EXPECT_EQ(SaveOver(0644, error), 0);
        EXPECT_EQ(BytesOf(u"f"_s), "new");
    }
}

TEST_F(WriteAsideModes, AFileThatLetsSomebodyInWhoWasNotIsRefused) {
    EXPECT_EQ(SaveOver(0200, EPERM), 70);
    EXPECT_EQ(BytesOf(u"f"_s), "old");
}

TEST_F(WriteAsideModes, AnyOtherFailureIsOne) {
    EXPECT_NE(SaveOver(0644, EIO), 0);
    EXPECT_EQ(BytesOf(u"f"_s), "old");
}
