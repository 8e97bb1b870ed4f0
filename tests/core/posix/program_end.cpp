// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/mMain.h"
#include "tests/support/UnsavedDocument.h"

#include <gtest/gtest.h>

TEST(ProgramEnd, TheEndOfTheProgramKeepsWhatIsUnsaved) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    const auto end = [] {
        const UnsavedDocument unsaved;
        mMain::EndProgram();
    };
    EXPECT_EXIT(end(), testing::ExitedWithCode(0), "kept kept ");
}
