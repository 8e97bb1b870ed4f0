// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/NewFiles.h"

#include "platform/Files.h"
#include "tests/platform/InAFolder.h"

using namespace Qt::StringLiterals;

namespace {

class NewFilesTest : public InAFolder {
protected:
    [[nodiscard]] QStringList Names() const {
        QStringList names = Files::ListFolder(At(u"*"_s), true);
        names.sort();
        return names;
    }

    NewFiles files_{At({})};
};

} // namespace

TEST_F(NewFilesTest, FilesOfAnyNameAndSizeArePutAndNothingElseIsLeft) {
    const QByteArray large = QByteArray("0123456789").repeated(100000);
    EXPECT_TRUE(files_.Put(u"a"_s, "bytes"));
    EXPECT_TRUE(files_.Put(u"[\u0416] \u00E4 \U0001F5FA.map"_s, ""));
    EXPECT_TRUE(files_.Put(u"large"_s, large));
    EXPECT_EQ(BytesOf(u"a"_s), "bytes");
    EXPECT_EQ(BytesOf(u"[\u0416] \u00E4 \U0001F5FA.map"_s), "");
    EXPECT_EQ(BytesOf(u"large"_s), large);
    EXPECT_EQ(Names().size(), 3);
}

TEST_F(NewFilesTest, WhatStandsThereStaysHoweverOften) {
    Make(u"a"_s, "old");
    Files::MakeFolder(At(u"d"_s));
    for (int time = 0; time < 3; ++time) {
        EXPECT_FALSE(files_.Put(u"a"_s, "new"));
        EXPECT_FALSE(files_.Put(u"d"_s, "new"));
    }
    EXPECT_TRUE(files_.Put(u"b"_s, "new")) << "others go in all the same";
    EXPECT_FALSE(files_.Put(u"b"_s, "newer"));
    EXPECT_EQ(BytesOf(u"a"_s), "old");
    EXPECT_EQ(BytesOf(u"b"_s), "new");
    EXPECT_EQ(Names(), (QStringList{u"a"_s, u"b"_s, u"d"_s}));
}

TEST_F(NewFilesTest, MoreThanANameAsideServesArePut) {
    for (int number = 0; number < 600; ++number)
        ASSERT_TRUE(files_.Put(QString::number(number), QByteArray::number(number)));
    EXPECT_EQ(Names().size(), 600);
    EXPECT_EQ(BytesOf(u"599"_s), "599");
}

TEST_F(NewFilesTest, NothingIsPutIntoAFolderThatIsNone) {
    Make(u"f"_s, "old");
    EXPECT_FALSE(NewFiles(At(u"none\\"_s)).Put(u"a"_s, "new"));
    EXPECT_FALSE(NewFiles(At(u"f\\"_s)).Put(u"a"_s, "new"));
    EXPECT_EQ(Names(), QStringList{u"f"_s});
}
