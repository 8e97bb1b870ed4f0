// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/OwnFolder.h"

#include "tests/platform/Scratch.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(OwnFolderTest, IsBelowTheUsersConfiguration) {
    const Variable file("BRINDOCK_REGISTRY", std::nullopt);
    const Variable configuration("XDG_CONFIG_HOME", "/nowhere/config");
    EXPECT_EQ(OwnFolder(), u"\\nowhere\\config\\brindock"_s);
    const Variable unusable("XDG_CONFIG_HOME", "relative");
    const Variable home("HOME", "/nowhere/home");
    EXPECT_EQ(OwnFolder(), u"\\nowhere\\home\\.config\\brindock"_s);
}
