// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Folders that go meanwhile, which a folder that is held does not on Windows, and more of them than Wine makes in time.

#include "core/FolderGateway.h"

#include "platform/Files.h"
#include "platform/RuntimeError.h"
#include "tests/support/World.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class GatewayFolders : public testing::Test {
protected:
    [[nodiscard]] QString At(const QString& name) const { return world_.Root() + u'\\' + name; }

    World world_;
};

} // namespace

TEST_F(GatewayFolders, NamesThatLeadThroughManyFoldersAllGetThere) {
    FolderGateway gateway(At(u"out"_s));
    const QString deep = u"a\\"_s.repeated(1500);
    for (int number = 0; number < 8; ++number) { // more folders than are remembered
        const FilePlace place = gateway.PlaceFor(QString::number(number) + u'\\' + deep + u'f');
        EXPECT_TRUE(place.Folder->Put(place.Name, "x"));
    }
    for (int number = 0; number < 8; number += 7) {
        const FilePlace place = gateway.PlaceFor(QString::number(number) + u"\\A\\"_s + deep.sliced(2) + u'F');
        EXPECT_EQ(place.Name, u"f"_s) << "what was forgotten is found again as it stands there";
        EXPECT_EQ(place.Folder->StandingOf(place.Name), HeldFolder::Standing::File);
    }
}

TEST_F(GatewayFolders, AFolderThatWasRemovedMeanwhileMustBeThereAgain) {
    FolderGateway gateway(At(u"out"_s));
    EXPECT_TRUE(gateway.PlaceFor(u"d\\f"_s).Folder->Put(u"f"_s, "old"));
    Files::DeleteFolder(At(u"out\\d"_s));
    EXPECT_THROW(gateway.PlaceFor(u"d\\g"_s), RuntimeError);
    Files::MakeFolder(At(u"out\\d"_s));
    EXPECT_TRUE(gateway.PlaceFor(u"d\\f"_s).Folder->Put(u"f"_s, "new"));
    EXPECT_EQ(World::ReadFile(At(u"out\\d\\f"_s)), "new");
}
