// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The pictures among the rows, and what is told of the one that is shown.
#include "big/document/PictureRows.h"
#include "tests/big/preview_fixture.h"
#include "tools/demoworld/Textures.h"

using namespace Qt::StringLiterals;

namespace {

class PictureRow : public PreviewTest {
protected:
    PictureRows::Place PlaceOf(int entry) { return PictureRows::PlaceOf(Editor.List(), entry); }

    [[nodiscard]] QString Facts() const { return PictureRows::Facts(Shown()); }
};

} // namespace

TEST_F(PictureRow, StandsBetweenTheOthersOfItsFolder) {
    OpenArchive({{u"Art\\x.tga"_s, "x"},
                 {u"a.txt"_s, "a"},
                 {u"b.dds"_s, "b"},
                 {u"c.ini"_s, "c"},
                 {u"d.tga"_s, "d"},
                 {u"e.txt"_s, "e"},
                 {u"f.PNG"_s, "f"}});
    // The folder's row is the first one.
    const auto middle = PlaceOf(4);
    EXPECT_EQ(middle.Number, 2);
    EXPECT_EQ(middle.Count, 3);
    EXPECT_EQ(middle.Before, 2);
    EXPECT_EQ(middle.Behind, 6);
    EXPECT_EQ(PlaceOf(2).Before, -1);
    EXPECT_EQ(PlaceOf(6).Behind, -1);
    for (const int none : {1, -1, 0}) {
        EXPECT_EQ(PlaceOf(none).Number, 0);
        EXPECT_EQ(PlaceOf(none).Before, -1);
        EXPECT_EQ(PlaceOf(none).Behind, 2);
    }
}

TEST_F(PictureRow, OfAFolderWithoutPicturesLeadsNowhere) {
    OpenArchive({{u"a.txt"_s, "a"}, {u"b.txt"_s, "b"}});
    EXPECT_EQ(PlaceOf(0).Behind, -1);
    EXPECT_EQ(PlaceOf(0).Count, 0);
}

TEST_F(PictureRow, TellsSizeFormatAndMipmaps) {
    Decoder.Bitmap = BitmapOf(300, 100);
    OpenWith({{u"a.dds"_s, Dds(Demo::Picture(16, 16), Demo::DdsFormat::Dxt5)}, {u"b.tga"_s, "b"}});
    Decoder.Waits = true;
    Click(u"a.dds"_s);
    EXPECT_EQ(Facts(), QString());
    Decoder.Answer();
    EXPECT_EQ(Facts(), u"300\u00D7100, DXT5, MipmapCount"_s);
    Click(u"b.tga"_s);
    EXPECT_EQ(Facts(), QString());
    Decoder.Answer();
    EXPECT_EQ(Facts(), u"300\u00D7100, TGA"_s);
}

TEST_F(PictureRow, ThatCannotBeReadSaysSoAsSoonAsThatIsKnown) {
    OpenWith({{u"a.dds"_s, "a"}});
    Decoder.Waits = true;
    int told = 0;
    Preview preview([&] { ++told; });
    preview.Use(&Decoder, nullptr);
    preview.ShowFile(0, u"a.dds"_s);
    EXPECT_EQ(PictureRows::Facts(preview.State()), QString());
    Decoder.Answer();
    EXPECT_EQ(PictureRows::Facts(preview.State()), u"PictureUnread"_s);
    EXPECT_EQ(told, 1);
}
