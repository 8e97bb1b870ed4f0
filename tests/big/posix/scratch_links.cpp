// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "big/document/ScratchFolders.h"
#include "core/ProgramFolders.h"
#include "platform/Files.h"
#include "platform/Paths.h"
#include "tests/support/World.h"

#include <gtest/gtest.h>

#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

/// More than any process has.
const QString Nobody = u"2147483646"_s;

class ScratchLinks : public testing::Test {
protected:
    ScratchLinks() { world_.Start(); }

    /// A link (inside path) to a folder of the user's.
    void Link(const QString& link, const QString& folder) {
        ASSERT_EQ(::symlink(Paths::ToNative(folder).toUtf8().constData(), Paths::ToNative(link).toUtf8().constData()),
                  0);
    }

    [[nodiscard]] QString At(const QString& name) const { return world_.Root() + u'\\' + name; }

    World world_;
};

} // namespace

TEST_F(ScratchLinks, NothingIsRemovedBehindAScratchFolderThatIsALink) {
    world_.WriteFile(u"mine\\2\\file"_s, "1");
    world_.WriteFile(u"mine\\Drag%1\\file"_s.arg(Nobody), "2");
    Files::DeleteFolder(ProgramFolders::SharedScratchFolder());
    Link(ProgramFolders::SharedScratchFolder(), At(u"mine"_s));
    ScratchFolders::RemoveAbandoned();
    EXPECT_TRUE(Files::FileExists(At(u"mine\\2\\file"_s)));
    EXPECT_TRUE(Files::FileExists(At(u"mine\\Drag%1\\file"_s.arg(Nobody))));
}

TEST_F(ScratchLinks, NothingIsRemovedBehindALinkInTheScratchFolder) {
    world_.WriteFile(u"mine\\file"_s, "1");
    Files::MakeFolders(ProgramFolders::SharedScratchFolder());
    for (const QString& name : {u"2"_s, u"Drag"_s + Nobody})
        Link(ProgramFolders::SharedScratchFolder() + u'\\' + name, At(u"mine"_s));
    ScratchFolders::RemoveAbandoned();
    EXPECT_TRUE(Files::FileExists(At(u"mine\\file"_s)));
}

TEST_F(ScratchLinks, AFolderWithANumberThatNoProgramHasStays) {
    const QString file = ProgramFolders::SharedScratchFolder() + u"\\2004\\photo"_s;
    world_.WriteFile(file.sliced(world_.Root().size() + 1), "1");
    ScratchFolders::RemoveAbandoned();
    EXPECT_TRUE(Files::FileExists(file));
}
