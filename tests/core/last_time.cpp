// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// What is kept for the user's comfort from one time to the next.
#include "core/LastTime.h"
#include "platform/OwnFolder.h"
#include "tests/support/World.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QJsonArray>

using namespace Qt::StringLiterals;

namespace {

class KeptForNextTime : public testing::Test {
protected:
    World world_;
};

} // namespace

TEST_F(KeptForNextTime, IsThereAgain) {
    EXPECT_TRUE(LastTime::Of(u"a"_s).isUndefined());
    LastTime::Keep(u"a"_s, 7);
    LastTime::Keep(u"b"_s, QJsonArray{1, 2});
    EXPECT_EQ(LastTime::Of(u"a"_s).toInt(), 7);
    EXPECT_EQ(LastTime::Of(u"b"_s).toArray().size(), 2);
}

TEST_F(KeptForNextTime, BeginsAnewWhenItsFileIsNoneOfOurs) {
    LastTime::Keep(u"a"_s, 7);
    world_.WriteFile(u"lasttime.json"_s, "{ \"a\": 7, nonsense");
    EXPECT_TRUE(LastTime::Of(u"a"_s).isUndefined());
    LastTime::Keep(u"b"_s, 8);
    EXPECT_EQ(LastTime::Of(u"b"_s).toInt(), 8);
}

TEST_F(KeptForNextTime, IsNotMissedWhereNothingCanBeWritten) {
    QDir(OwnFolder().replace(u'\\', u'/')).mkdir(u"lasttime.json"_s);
    LastTime::Keep(u"a"_s, 7);
    EXPECT_TRUE(LastTime::Of(u"a"_s).isUndefined());
    EXPECT_TRUE(LastTime::Files(u"big"_s).isEmpty());
    EXPECT_EQ(LastTime::Folder(u"big"_s), QString());
}

TEST_F(KeptForNextTime, HasTheLastFileFirstAndNoneTwice) {
    for (const QString& path : {u"c:\\a.big"_s, u"c:\\b.big"_s, u"C:\\A.big"_s})
        LastTime::NoteFile(u"big"_s, path);
    EXPECT_EQ(LastTime::Files(u"big"_s), QStringList({u"C:\\A.big"_s, u"c:\\b.big"_s}));
    EXPECT_TRUE(LastTime::Files(u"csf"_s).isEmpty());
}

TEST_F(KeptForNextTime, HasSoManyFilesAndNoMore) {
    for (int i = 0; i < 2 * LastTime::MostFiles; ++i)
        LastTime::NoteFile(u"big"_s, QString::number(i));
    EXPECT_EQ(LastTime::Files(u"big"_s).size(), LastTime::MostFiles);
    EXPECT_EQ(LastTime::Files(u"big"_s).first(), QString::number(2 * LastTime::MostFiles - 1));
}

TEST_F(KeptForNextTime, HasOnlyFoldersThatAreThere) {
    LastTime::NoteFolder(u"big"_s, world_.Root() + u"\\gone"_s);
    EXPECT_EQ(LastTime::Folder(u"big"_s), QString());
    LastTime::NoteFolder(u"big"_s, world_.Root());
    EXPECT_EQ(LastTime::Folder(u"big"_s), world_.Root());
}
