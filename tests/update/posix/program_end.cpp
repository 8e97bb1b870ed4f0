// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/support/UnsavedDocument.h"
#include "tests/update/UpdateTest.h"

class ProgramEnd : public UpdateTest {};

TEST_F(ProgramEnd, TheEndOfTheProgramKeepsWhatIsUnsaved) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    const auto end = [this] {
        const UnkeptDocument unkept;
        const UnsavedDocument unsaved;
        programsEnd_();
    };
    EXPECT_EXIT(end(), testing::ExitedWithCode(0), "kept kept ");
}
