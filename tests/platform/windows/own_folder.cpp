// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/OwnFolder.h"

#include "tests/platform/Scratch.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(OwnFolderTest, IsInTheLocalApplicationData) {
    const Variable file("BRINDOCK_REGISTRY", std::nullopt);
    EXPECT_EQ(OwnFolder().toLower(), (qEnvironmentVariable("LOCALAPPDATA") + u"\\Brindock 2005"_s).toLower());
}
