// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/OwnFolder.h"

#include "tests/platform/Scratch.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(OwnFolderTest, IsTheOneOfTheRegistrysFile) {
    const Scratch scratch;
    const Variable file("BRINDOCK_REGISTRY", QDir::toNativeSeparators(scratch.Native(u"own/registry.reg"_s)).toUtf8());
    EXPECT_EQ(OwnFolder(), Paths::Real(scratch.Inside(u"own/x"_s).chopped(2)));
}
