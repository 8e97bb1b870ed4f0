// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// What a drop or a save could not do is told in a list.
#include "platform/Files.h"
#include "platform/Paths.h"
#include "tests/big/document_fixture.h"

#include <QFile>

using namespace Qt::StringLiterals;
using Answer = Host::Answer;

namespace {

class EditorLeftOut : public EditorDocument {
protected:
    static QStringList List(const QStringList& lines) { return QStringList{u"LeftOut2"_s} + lines; }
};

} // namespace

TEST_F(EditorLeftOut, ADropThatDoesAllHasNoList) {
    OpenSample();
    Place.WriteFile(u"from\\sub\\a.txt"_s, "a");
    Editor.DropFiles({Place.Root() + u"\\from"_s});
    EXPECT_TRUE(Shown().contains(u"from"_s));
    EXPECT_EQ(Speaker.Listed, QStringList());
}

TEST_F(EditorLeftOut, WhatIsGoneBeforeTheDropIsListed) {
    OpenSample();
    const QString gone = Place.Root() + u"\\gone.txt"_s;
    Editor.DropFiles({gone, Place.WriteFile(u"there.txt"_s, "a")});
    EXPECT_TRUE(Shown().contains(u"there.txt"_s));
    EXPECT_EQ(Speaker.Listed, List({Paths::ToNative(gone)}));
}

TEST_F(EditorLeftOut, WhatTheUserRefusesIsNotListed) {
    OpenSample();
    Speaker.Answers = {Answer::No};
    Editor.DropFiles({Place.WriteFile(u"from\\readme.txt"_s, "a")});
    EXPECT_EQ(Speaker.Listed, QStringList());
}

TEST_F(EditorLeftOut, ASaveThatDoesAllHasNoList) {
    OpenSample();
    Editor.Save();
    EXPECT_EQ(Speaker.Listed, QStringList());
}

TEST_F(EditorLeftOut, NewEntriesWithoutAFileAreListedBehindTheSave) {
    OpenSample();
    for (const QString& name : {u"one.txt"_s, u"two.txt"_s, u"kept.txt"_s}) {
        Speaker.FileNames = {Place.WriteFile(name, "new")};
        Editor.Add();
    }
    for (const std::size_t index : {3U, 4U})
        Files::Delete(mBIG::BigEntries[index].SourcePath);
    Speaker.Answers = {Answer::No};
    Editor.Save();
    EXPECT_EQ(Speaker.Listed, QStringList()) << "Nothing was saved.";
    Speaker.Answers = {Answer::Yes};
    Editor.Save();
    EXPECT_EQ(Speaker.Listed, List({u"one.txt: LeftOutGone"_s, u"two.txt: LeftOutGone"_s}));
    EXPECT_FALSE(State().Modified);
}

TEST_F(EditorLeftOut, EntriesBeyondTheEndOfTheArchiveAreListed) {
    QByteArray bytes = ArchiveOf({{u"a"_s, "first"}, {u"b"_s, "second"}, {u"c"_s, "third"}, {u"none"_s, ""}});
    bytes.chop(6); // all of the third and one of the second
    Editor.OpenBigFile(Place.WriteFile(u"cut.big"_s, bytes));
    mBIG::BigVersion = 0;
    Editor.Save();
    EXPECT_EQ(Speaker.Listed, List({u"b: LeftOutCut"_s, u"c: LeftOutCut"_s}));
}

TEST_F(EditorLeftOut, OfATruncatedArchiveDeletedAndReplacedEntriesAreNotListed) {
    QByteArray bytes = ArchiveOf({{u"a"_s, "first"}, {u"b"_s, "second"}, {u"c"_s, "third"}});
    bytes.chop(8);
    Editor.OpenBigFile(Place.WriteFile(u"cut.big"_s, bytes));
    mBIG::BigEntries[1].Deleted = true;
    Speaker.Answers = {Answer::Yes};
    Speaker.FileNames = {Place.WriteFile(u"c"_s, "new")};
    Editor.Add();
    Editor.Save();
    EXPECT_EQ(Speaker.Listed, QStringList());
}

TEST_F(EditorLeftOut, EntriesThatTheDirectoryLeadsBesideAreListedUnlessTheyAreSavedExactly) {
    OpenSample();
    mBIG::BigVersion = 2;
    Editor.Save();
    EXPECT_EQ(Speaker.Listed, QStringList()) << "All bytes are there, one before the offsets.";
    Editor.Save();
    EXPECT_EQ(Speaker.Listed, List({u"readme.txt: LeftOutCut"_s, u"Data\\INI\\Object.ini: LeftOutCut"_s,
                                    u"Data\\map.tga: LeftOutCut"_s}));
    Speaker.Listed.clear();
    Editor.SetExactOffsets(true);
    Editor.Save();
    EXPECT_EQ(Speaker.Listed, QStringList());
}
