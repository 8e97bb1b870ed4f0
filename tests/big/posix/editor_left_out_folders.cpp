// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// A dropped folder with a part that may not be listed.
#include "platform/Paths.h"
#include "tests/big/document_fixture.h"
#include "tests/platform/posix/AnotherUser.h"

#include <QFile>

using namespace Qt::StringLiterals;

class EditorLeftOutFolders : public EditorDocument {};

TEST_F(EditorLeftOutFolders, AFolderBelowThatMayNotBeListedIsTold) {
    OpenSample();
    Place.WriteFile(u"from\\open\\a.txt"_s, "a");
    Place.WriteFile(u"from\\closed\\b.txt"_s, "b");
    const QString closed = Paths::ToNative(Place.Root() + u"\\from\\closed"_s);
    QFile::setPermissions(Paths::ToNative(Place.Root()),
                          QFile::ReadGroup | QFile::ExeGroup | QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    QFile::setPermissions(closed, {});
    {
        const AnotherUser user;
        Editor.DropFiles({Place.Root() + u"\\from"_s});
    }
    QFile::setPermissions(closed, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    EXPECT_NE(NodeOf(u"from\\open\\"_s), FolderTree::None);
    ASSERT_EQ(Speaker.Listed.size(), 2);
    EXPECT_EQ(Speaker.Listed[0], u"LeftOut2"_s);
    EXPECT_TRUE(Speaker.Listed[1].startsWith(closed)) << Speaker.Listed[1].toStdString();
}

TEST_F(EditorLeftOutFolders, TheRootOfAllFoldersHasNoNameToStandUnder) {
    OpenSample();
    Editor.DropFiles({u"\\"_s});
    EXPECT_EQ(Speaker.Listed, QStringList({u"LeftOut2"_s, u"/"_s}));
    EXPECT_EQ(mBIG::BigEntries.size(), 3U);
}
