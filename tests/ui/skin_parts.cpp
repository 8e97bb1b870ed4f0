// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/support/Printing.h"
#include "ui/skin/Bar.h"
#include "ui/skin/Caption.h"
#include "ui/skin/Glyph.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// Lines of a caption in a control of that width, each letter and blank one unit wide.
QStringList Lines(const QString& caption, int width) {
    return Skin::WrapWords(caption, width, [](const QString& text) { return static_cast<int>(text.size()); });
}

} // namespace

TEST(SkinCaption, ALineHasRoomForTheWidthLessThree) {
    EXPECT_EQ(Lines(u"one two"_s, 10), QStringList{u"one two"_s});
    EXPECT_EQ(Lines(u"one two"_s, 9), (QStringList{u"one"_s, u"two"_s}));
}

TEST(SkinCaption, AWordThatIsTooWideStaysInOneLine) {
    EXPECT_EQ(Lines(u"enormously"_s, 5), QStringList{u"enormously"_s});
}

TEST(SkinCaption, ABreakStandsBeforeSuchAWordOnlyBehindText) {
    EXPECT_EQ(Lines(u"an enormously"_s, 8), (QStringList{u"an"_s, u"enormously"_s}));
    EXPECT_EQ(Lines(u"enormously wide it is"_s, 8), (QStringList{u"enormously"_s, u"wide"_s, u"it is"_s}));
}

TEST(SkinCaption, ABlankInFrontBeginsNoLine) {
    EXPECT_EQ(Lines(u" enormously"_s, 8), QStringList{u" enormously"_s});
    EXPECT_EQ(Lines(u"  enormously wide"_s, 8), (QStringList{u"  enormously"_s, u"wide"_s}));
}

TEST(SkinCaption, TwoBlanksAreNoLineOfTheirOwn) {
    EXPECT_EQ(Lines(u"a  b"_s, 12), QStringList{u"a  b"_s});
    EXPECT_EQ(Lines(u"one  two"_s, 6), (QStringList{u"one "_s, u"two"_s}));
    EXPECT_EQ(Lines(u"one "_s, 6), QStringList{u"one "_s});
}

TEST(SkinCaption, NothingHasOneEmptyLine) {
    EXPECT_EQ(Lines({}, 8), QStringList{QString()});
}

TEST(SkinGlyph, EightFramesShowFourStatesWithAndWithoutTheMark) {
    EXPECT_EQ(Skin::GlyphFrame({}, false), 0);
    EXPECT_EQ(Skin::GlyphFrame({.Hover = true}, false), 1);
    EXPECT_EQ(Skin::GlyphFrame({.Hover = true, .Pressed = true}, false), 2);
    EXPECT_EQ(Skin::GlyphFrame({.Pressed = true}, false), 2);
    EXPECT_EQ(Skin::GlyphFrame({.Enabled = false, .Hover = true, .Pressed = true}, false), 3);
    EXPECT_EQ(Skin::GlyphFrame({}, true), 4);
    EXPECT_EQ(Skin::GlyphFrame({.Hover = true}, true), 5);
    EXPECT_EQ(Skin::GlyphFrame({.Pressed = true}, true), 6);
    EXPECT_EQ(Skin::GlyphFrame({.Enabled = false}, true), 7);
}

TEST(SkinGlyph, ItStandsInTheMiddleOfTheHeight) {
    EXPECT_EQ(Skin::GlyphTop(13), 0);
    EXPECT_EQ(Skin::GlyphTop(20), 3);
    EXPECT_EQ(Skin::GlyphTop(25), 6);
}

TEST(SkinGlyph, TheBoxIsThirteenPixelsWithABorderOfOne) {
    const std::vector<Skin::Fill> box = Skin::BoxOfGlyph(0);
    ASSERT_EQ(box.size(), 2U);
    EXPECT_EQ(box.front().Area, QRect(0, 0, 13, 13));
    EXPECT_EQ(box.front().Top, 0x733200U);
    EXPECT_EQ(box.back().Area, QRect(1, 1, 11, 11));
}

TEST(SkinGlyph, UnderThePointerAnOrangeRingOfTwoPixelsLiesInsideTheBorder) {
    const std::vector<Skin::Fill> box = Skin::BoxOfGlyph(5);
    ASSERT_EQ(box.size(), 3U);
    EXPECT_EQ(box[1].Area, QRect(1, 1, 11, 11));
    EXPECT_EQ(box[1].Top, 0x31B2FFU);
    EXPECT_EQ(box[2].Area, QRect(3, 3, 7, 7));
}

TEST(SkinGlyph, EachFrameHasItsColours) {
    for (const int marked : {0, 4}) {
        const Skin::GlyphColours& normal = Skin::ColoursOfGlyph(marked);
        EXPECT_EQ(normal.Border, 0x733200U);
        EXPECT_EQ(normal.Top, 0xE7EBEFU);
        EXPECT_EQ(normal.Bottom, 0xFFFFFFU);
        EXPECT_FALSE(normal.Ring.has_value());
        EXPECT_EQ(normal.Mark, 0x733200U);
        EXPECT_EQ(Skin::ColoursOfGlyph(marked + 1).Ring, 0x31B2FFU);
        const Skin::GlyphColours& pressed = Skin::ColoursOfGlyph(marked + 2);
        EXPECT_EQ(pressed.Border, 0x733200U);
        EXPECT_EQ(pressed.Top, 0xC6D3D6U);
        EXPECT_EQ(pressed.Bottom, 0xE7EBEFU);
        EXPECT_FALSE(pressed.Ring.has_value());
        const Skin::GlyphColours& disabled = Skin::ColoursOfGlyph(marked + 3);
        EXPECT_EQ(disabled.Border, 0xBDC7CEU);
        EXPECT_EQ(disabled.Top, 0xEFF7F7U);
        EXPECT_EQ(disabled.Bottom, 0xEFF7F7U);
        EXPECT_FALSE(disabled.Ring.has_value());
        EXPECT_EQ(disabled.Mark, 0x94A2A5U);
    }
}

TEST(SkinGlyph, ABoxOfTwentySixPixelsHasLinesOfTwo) {
    const std::vector<Skin::Fill> box = Skin::BoxOfGlyph(1, 26, 2);
    EXPECT_EQ(box[1].Area, QRect(2, 2, 22, 22));
    EXPECT_EQ(box[2].Area, QRect(6, 6, 14, 14));
}

TEST(SkinBar, TheInnerPictureIsEightPixelsNarrowerAndTheEndsAreFlush) {
    const auto [first, inner, second] = Skin::PartsOfBar({208, 20});
    EXPECT_EQ(first, QRect(0, 0, 4, 20));
    EXPECT_EQ(inner, QRect(4, 3, 200, 14));
    EXPECT_EQ(second, QRect(204, 0, 4, 20));
    EXPECT_EQ(Skin::PartsOfBar({5, 20}).Inner.width(), 0);
    EXPECT_EQ(Skin::PartsOfBar({5, 20}).Second.x(), 1);
}

TEST(SkinBar, TheClipGrowsInWholeBlocks) {
    EXPECT_EQ(Skin::ClipWidth(0, 200), 0);
    EXPECT_EQ(Skin::ClipWidth(1, 200), 0);   // 0.29 blocks
    EXPECT_EQ(Skin::ClipWidth(2, 200), 7);   // 0.57
    EXPECT_EQ(Skin::ClipWidth(50, 200), 98); // 14.29
}

TEST(SkinBar, AllOfTwoHundredPixelsIsTwentyNineBlocksAndTwoHundredAndThreeWide) {
    EXPECT_EQ(Skin::ClipWidth(100, 200), 203);
}

TEST(SkinBar, HalfABlockGoesToTheEvenNumber) {
    EXPECT_EQ(Skin::ClipWidth(50, 7), 0);
    EXPECT_EQ(Skin::ClipWidth(50, 21), 14);
}

TEST(SkinBar, TheEndsOfAHeadingStayFlush) {
    const auto [left, top, right] = Skin::PartsOfHeading(172);
    EXPECT_EQ(left, QRect(0, 0, 4, 26));
    EXPECT_EQ(top, QRect(4, 0, 164, 26));
    EXPECT_EQ(right, QRect(168, 0, 4, 26));
    EXPECT_EQ(Skin::PartsOfHeading(6).Top.width(), 0);
}
