// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/HeldFolder.h"

#include "platform/Files.h"
#include "platform/WriteAside.h"
#include "tests/platform/InAFolder.h"

#include <QFile>

using namespace Qt::StringLiterals;

namespace {

class HeldFolders : public InAFolder {
protected:
    [[nodiscard]] QStringList Names() const {
        QStringList names = Files::ListFolder(At(u"*"_s), true);
        names.sort();
        return names;
    }

    HeldFolder files_{At({})};
};

} // namespace

TEST_F(HeldFolders, FilesOfAnyNameAndSizeArePutAndNothingElseIsLeft) {
    const QByteArray large = QByteArray("0123456789").repeated(100000);
    EXPECT_TRUE(files_.Put(u"a"_s, "bytes"));
    EXPECT_TRUE(files_.Put(u"[\u0416] \u00E4 \U0001F5FA.map"_s, ""));
    EXPECT_TRUE(files_.Put(u"large"_s, large));
    EXPECT_EQ(BytesOf(u"a"_s), "bytes");
    EXPECT_EQ(BytesOf(u"[\u0416] \u00E4 \U0001F5FA.map"_s), "");
    EXPECT_EQ(BytesOf(u"large"_s), large);
    EXPECT_EQ(Names().size(), 3);
}

TEST_F(HeldFolders, WhatStandsThereStaysHoweverOften) {
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

TEST_F(HeldFolders, MoreThanANameAsideServesArePut) {
    for (int number = 0; number < 600; ++number)
        ASSERT_TRUE(files_.Put(QString::number(number), QByteArray::number(number)));
    EXPECT_EQ(Names().size(), 600);
    EXPECT_EQ(BytesOf(u"599"_s), "599");
}

TEST_F(HeldFolders, WhatIsNoFolderIsNotOpened) {
    Make(u"f"_s, "old");
    Files::MakeFolder(At(u"d"_s));
    EXPECT_EQ(NumberRaisedBy([&] { HeldFolder(At(u"none\\"_s)); }), ErrorNumber::PathNotFound);
    EXPECT_EQ(NumberRaisedBy([&] { HeldFolder(At(u"f\\"_s)); }), ErrorNumber::PathNotFound);
    EXPECT_EQ(NumberRaisedBy([&] { HeldFolder(files_, u"none"_s); }), ErrorNumber::PathNotFound);
    EXPECT_EQ(NumberRaisedBy([&] { HeldFolder(files_, u"f\\"_s); }), ErrorNumber::PathFileAccess);
    EXPECT_EQ(NumberRaisedBy([&] { HeldFolder(files_, u"d\\none"_s); }), ErrorNumber::PathNotFound);
}

TEST_F(HeldFolders, FoldersBelowAreMadeListedAndOpened) {
    files_.MakeFolder(u"[\u0416] d"_s);
    const HeldFolder below(files_, u"[\u0416] d\\"_s);
    below.MakeFolder(u"e"_s);
    EXPECT_TRUE(below.Put(u"a"_s, "bytes"));
    const HeldFolder deep(files_, u"[\u0416] d\\e"_s);
    EXPECT_EQ(deep.Path(), At(u"[\u0416] d\\e\\"_s));
    QStringList names = below.Names();
    names.sort();
    EXPECT_EQ(names, (QStringList{u"a"_s, u"e"_s}));
    EXPECT_EQ(below.Names().size(), 2) << "and once more";
    EXPECT_EQ(deep.Names(), QStringList());
    EXPECT_EQ(NumberRaisedBy([&] { below.MakeFolder(u"e"_s); }), ErrorNumber::PathFileAccess);
    EXPECT_EQ(NumberRaisedBy([&] { below.MakeFolder(u"a"_s); }), ErrorNumber::PathFileAccess);
}

TEST_F(HeldFolders, TellsWhatStandsThere) {
    Make(u"f"_s, "four");
    Files::MakeFolder(At(u"d"_s));
    EXPECT_EQ(files_.StandingOf(u"none"_s), HeldFolder::Standing::Nothing);
    EXPECT_EQ(files_.StandingOf(u"f"_s), HeldFolder::Standing::File);
    EXPECT_EQ(files_.StandingOf(u"d"_s), HeldFolder::Standing::Folder);
    EXPECT_EQ(files_.StateOf(u"f"_s), StateOf(At(u"f"_s)));
    EXPECT_EQ(files_.StateOf(u"f"_s).Length, 4);
    EXPECT_EQ(files_.StateOf(u"d"_s), FileState());
    EXPECT_EQ(files_.StateOf(u"none"_s), FileState());
    EXPECT_EQ(files_.OpenToRead(u"f"_s).Read(0, 9), "four");
    EXPECT_EQ(NumberRaisedBy([&] { static_cast<void>(files_.OpenToRead(u"none"_s)); }), ErrorNumber::FileNotFound);
    EXPECT_ANY_THROW(static_cast<void>(files_.OpenToRead(u"d"_s)));
}

TEST_F(HeldFolders, AWholeFileIsPutInPlaceInOneStep) {
    Make(u"f"_s, "a longer old one");
    const auto folder = std::make_shared<HeldFolder>(At({}));
    for (const QString& name : {u"f"_s, u"new"_s}) {
        WriteAside aside({folder, name});
        aside.Out().Write(0, "short");
        EXPECT_EQ(Names().contains(u"new"_s), false) << "nothing is seen of it yet";
        aside.Commit();
        EXPECT_EQ(BytesOf(name), "short");
    }
    {
        WriteAside dropped({folder, u"f"_s});
        dropped.Out().Write(0, "never");
    }
    EXPECT_EQ(BytesOf(u"f"_s), "short");
    EXPECT_EQ(Names(), (QStringList{u"f"_s, u"new"_s}));
    Files::MakeFolder(At(u"d"_s));
    EXPECT_EQ(NumberRaisedBy([&] { WriteAside({folder, u"d"_s}); }), ErrorNumber::PathFileAccess);
}

TEST_F(HeldFolders, AProtectedFileIsReplacedWhereItIsToGo) {
    Make(u"f"_s, "old");
    QFile::setPermissions(Paths::ToNative(At(u"f"_s)), QFileDevice::ReadOwner);
    const auto folder = std::make_shared<HeldFolder>(At({}));
    EXPECT_EQ(NumberRaisedBy([&] { WriteAside({folder, u"f"_s}); }), ErrorNumber::PermissionDenied);
    WriteAside aside({folder, u"f"_s}, WriteAside::Old::Dropped);
    aside.Out().Write(0, "new");
    aside.Commit();
    EXPECT_EQ(BytesOf(u"f"_s), "new");
    Make(u"f"_s, "it can be written now");
    EXPECT_EQ(BytesOf(u"f"_s), "it can be written now");
}
