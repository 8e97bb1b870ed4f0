// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The text that is read beside the list.
#include "big/document/TextPreview.h"
#include "tests/big/document_fixture.h"

using namespace Qt::StringLiterals;

namespace {

class TextBeside : public EditorDocument {
protected:
    static QString TextOf(int index) { return TextPreview::Of(mBIG::BigEntries[static_cast<std::size_t>(index)]); }
};

} // namespace

TEST_F(TextBeside, IsThatOfTheEntry) {
    OpenArchive({{u"a.INI"_s, "Object Tank\r\nEnd \xE9\r\n"}, {u"b.lua"_s, "x"}});
    EXPECT_EQ(TextOf(0), u"Object Tank\r\nEnd \u00E9\r\n"_s);
    EXPECT_EQ(TextOf(1), u"x"_s);
}

TEST_F(TextBeside, FollowsAMarkOfItsEncoding) {
    OpenArchive({{u"a.txt"_s, QByteArray("\xEF\xBB\xBF") + u"\u0420"_s.toUtf8()},
                 {u"b.txt"_s, QByteArray("\xFF\xFE\x20\x04", 4)},
                 {u"c.txt"_s, QByteArray("a\0b", 3)}});
    EXPECT_EQ(TextOf(0), u"\u0420"_s);
    EXPECT_EQ(TextOf(1), u"\u0420"_s);
    EXPECT_EQ(TextOf(2), u"a b"_s);
}

TEST_F(TextBeside, IsNoneForOtherKinds) {
    OpenArchive({{u"a.dds"_s, "text"}, {u"b.csf"_s, "text"}, {u"c"_s, "text"}});
    for (const int index : {0, 1, 2})
        EXPECT_EQ(TextOf(index), QString());
}

TEST_F(TextBeside, IsThatOfANewEntrysFile) {
    OpenSample();
    Speaker.FileNames = {Place.WriteFile(u"new.txt"_s, "new")};
    Editor.Add();
    EXPECT_EQ(TextOf(3), u"new"_s);
    mBIG::BigEntries[3].SourcePath = Place.Root() + u"\\gone.txt"_s;
    EXPECT_EQ(TextOf(3), QString());
}

TEST_F(TextBeside, OfAHugeEntryIsWhatCanBeRead) {
    OpenArchive({{u"a.txt"_s, QByteArray(3000000, 'x')}, {u"b.txt"_s, "end"}});
    EXPECT_EQ(TextOf(0).size(), TextPreview::Most);
    mBIG::BigEntries[1].Size = 0x7FFFFFFF;
    EXPECT_EQ(TextOf(1), u"end"_s);
    mBIG::BigEntries[1].Size = -1;
    EXPECT_EQ(TextOf(1), QString());
}

TEST_F(TextBeside, IsNoneOfAnArchiveThatWasChangedMeanwhile) {
    OpenArchive({{u"a.txt"_s, "x"}, {u"b.txt"_s, "y"}});
    Place.WriteFile(u"a.big"_s, "something else that is long enough to be read from here and there");
    EXPECT_EQ(TextOf(0), QString());
}

TEST_F(TextBeside, BelongsToTheEntryOfTheDetails) {
    OpenSample();
    EXPECT_EQ(Editor.DetailedEntry(), -1);
    Editor.ClickRow(1);
    EXPECT_EQ(Editor.DetailedEntry(), 0);
    Editor.ClickRow(0);
    EXPECT_EQ(Editor.DetailedEntry(), -1);
}
