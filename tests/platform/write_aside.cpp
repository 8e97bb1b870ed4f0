// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/WriteAside.h"

#include "platform/Files.h"
#include "platform/PrivateName.h"
#include "tests/platform/InAFolder.h"

#include <QSet>

using namespace Qt::StringLiterals;

namespace {

class WriteAsideTest : public InAFolder {
protected:
    [[nodiscard]] QStringList Names() const {
        QStringList names = Files::ListFolder(At(u"*"_s), true);
        names.sort();
        return names;
    }
};

} // namespace

TEST_F(WriteAsideTest, TheOldFileStandsUntilTheCommit) {
    Make(u"f"_s, "old");
    WriteAside aside(At(u"f"_s));
    aside.Out().Write(0, "new bytes");
    EXPECT_EQ(BytesOf(u"f"_s), "old");
    aside.Commit();
    EXPECT_EQ(BytesOf(u"f"_s), "new bytes");
    EXPECT_EQ(Names(), QStringList{u"f"_s});
}

TEST_F(WriteAsideTest, ATargetThatWasNotThereIsMade) {
    WriteAside aside(At(u"f"_s));
    aside.Out().Write(0, "new");
    aside.Commit(false);
    EXPECT_EQ(BytesOf(u"f"_s), "new");
    EXPECT_EQ(Names(), QStringList{u"f"_s});
}

TEST_F(WriteAsideTest, WithoutACommitNothingIsLeft) {
    Make(u"f"_s, "old");
    {
        WriteAside aside(At(u"f"_s));
        aside.Out().Write(0, "new");
        EXPECT_EQ(Names().size(), 2);
        EXPECT_EQ(ReadWhole(aside.AsidePath()), "new");
    }
    EXPECT_EQ(BytesOf(u"f"_s), "old");
    EXPECT_EQ(Names(), QStringList{u"f"_s});
}

TEST_F(WriteAsideTest, TheNameAsideIsAnotherOneEachTime) {
    QSet<QString> names;
    for (int round = 0; round < 100; ++round) {
        const WriteAside aside(At(u"f"_s));
        const QString name = Paths::LastPart(aside.AsidePath());
        EXPECT_EQ(name.size(), u"~brindock-"_s.size() + 32);
        EXPECT_TRUE(IsPrivateName(name));
        names.insert(name.right(16));
        names.insert(name.chopped(16).right(16));
    }
    EXPECT_EQ(names.size(), 200);
}

TEST_F(WriteAsideTest, NoOtherNameIsTakenForOneAside) {
    const QString name = PrivateName();
    EXPECT_TRUE(IsPrivateName(name + u"255"_s));
    for (const QString& other : {QString(), u"~brindock-"_s, name.chopped(1), name + u'a', name + u".map"_s,
                                 name.toUpper(), u'x' + name, name.sliced(1)})
        EXPECT_FALSE(IsPrivateName(other)) << other.toStdString();
}

TEST_F(WriteAsideTest, AFolderIsNoTarget) {
    Files::MakeFolder(At(u"folder"_s));
    EXPECT_EQ(NumberRaisedBy([&] { WriteAside(At(u"folder"_s)); }), 75);
    EXPECT_EQ(NumberRaisedBy([&] { WriteAside(At(u"none\\f"_s)); }), 76);
    EXPECT_EQ(Names(), QStringList{u"folder"_s});
}

TEST_F(WriteAsideTest, MessagesNameTheTarget) {
    const QString path = At(u"none\\target"_s);
    EXPECT_TRUE(MessageOf([&] { WriteAside aside(path); }).contains(u"target"_s));
    Make(u"target"_s, "old");
    WriteAside aside(At(u"target"_s));
    EXPECT_TRUE(aside.Out().Name().endsWith(u"target"_s));
}

TEST_F(WriteAsideTest, WhatFailsAtTheCommitLeavesTheTargetAsItWas) {
    WriteAside aside(At(u"f"_s));
    aside.Out().Write(0, "new");
    Files::MakeFolder(At(u"f"_s)); // meanwhile
    const QString message = MessageOf([&] { aside.Commit(); });
    EXPECT_TRUE(message.contains(u"f:"_s)) << qPrintable(message);
    EXPECT_FALSE(message.contains(u"~brindock"_s)) << qPrintable(message);
    EXPECT_TRUE(Files::FolderExists(At(u"f"_s)));
}

TEST_F(WriteAsideTest, WhatFailsAtTheCommitIsRemovedWithItsScope) {
    {
        WriteAside aside(At(u"f"_s));
        Files::MakeFolder(At(u"f"_s));
        EXPECT_NE(NumberRaisedBy([&] { aside.Commit(); }), 0);
    }
    EXPECT_EQ(Names(), QStringList{u"f"_s});
}

TEST_F(WriteAsideTest, AWholeFileIsSavedInOneCall) {
    Make(u"f"_s, "a longer old file");
    WriteWhole(At(u"f"_s), "new");
    EXPECT_EQ(BytesOf(u"f"_s), "new");
    EXPECT_EQ(NumberRaisedBy([&] { WriteWhole(At(u"none\\f"_s), "new"); }), 76);
}
