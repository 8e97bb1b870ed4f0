// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/OwnFolder.h"

#include "tests/platform/Scratch.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(OwnFolderXdg, TheBaseDirectoriesAreTakenAsTheyAreNamed) {
    const Scratch scratch;
    const Variable none("BRINDOCK_REGISTRY", "");
    const Variable home("HOME", scratch.Native(u"home"_s).toUtf8());
    const QString inside = scratch.Inside(u"x"_s).chopped(1);
    {
        const Variable cache("XDG_CACHE_HOME", scratch.Native(u"c"_s).toUtf8());
        const Variable state("XDG_STATE_HOME", scratch.Native(u"s"_s).toUtf8());
        EXPECT_EQ(OwnCacheFolder(), inside + u"c\\brindock"_s);
        EXPECT_EQ(OwnStateFolder(), inside + u"s\\brindock"_s);
    }
    const Variable cache("XDG_CACHE_HOME", "");
    const Variable state("XDG_STATE_HOME", "relative");
    EXPECT_EQ(OwnCacheFolder(), inside + u"home\\.cache\\brindock"_s);
    EXPECT_EQ(OwnStateFolder(), inside + u"home\\.local\\state\\brindock"_s) << "a relative one is no base directory";
}
