// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/ui/FaceRows.h"

#include <gtest/gtest.h>

using FaceRows::Rows;
using Skin::Between;
using Skin::Bgr;
using Skin::Look;

namespace {

/// A face as text, a letter for each colour; '.' is not painted.
Rows Painted(const FaceRows::Face& expected) {
    Rows rows(static_cast<std::size_t>(FaceRows::Size.height()),
              std::string(static_cast<std::size_t>(FaceRows::Size.width()), '.'));
    const auto dot = [&](int x, int y, Bgr colour) {
        const auto letter = expected.Colours.find(colour);
        rows.at(static_cast<std::size_t>(y)).at(static_cast<std::size_t>(x)) =
            letter == expected.Colours.end() ? '?' : letter->second;
    };
    const auto fill = [&](const std::vector<Skin::Fill>& fills) {
        for (const auto& [area, top, bottom] : fills)
            for (int y = area.top(); y <= area.bottom(); ++y)
                for (int x = area.left(); x <= area.right(); ++x)
                    dot(x, y, Between(top, bottom, y - area.top(), area.height()));
    };
    const Skin::Face face = FaceOf(expected.Look, FaceRows::Size);
    fill(face.Lines);
    fill(face.Inside);
    for (const auto& [place, colour] : face.Corners)
        dot(place.x(), place.y(), colour);
    return rows;
}

} // namespace

TEST(SkinFace, AGradientRunsRedGreenAndBlueEachByItself) {
    // Blue falls, green stays, red rises.
    EXPECT_EQ(Between(0xC86400, 0x006464, 0, 5), 0xC86400U);
    EXPECT_EQ(Between(0xC86400, 0x006464, 1, 5), 0x966419U);
    EXPECT_EQ(Between(0xC86400, 0x006464, 2, 5), 0x646432U);
    EXPECT_EQ(Between(0xC86400, 0x006464, 4, 5), 0x006464U);
    EXPECT_EQ(Between(0x123456, 0xFFFFFF, 0, 1), 0x123456U);
}

TEST(SkinFace, TheNormalFace) {
    EXPECT_EQ(Painted(FaceRows::Normal()), FaceRows::Normal().Pixels);
}

TEST(SkinFace, TheFaceUnderThePointer) {
    EXPECT_EQ(Painted(FaceRows::Hover()), FaceRows::Hover().Pixels);
}

TEST(SkinFace, TheFaceWithTheFocus) {
    EXPECT_EQ(Painted(FaceRows::Focus()), FaceRows::Focus().Pixels);
}

TEST(SkinFace, ThePressedFaceHasNoGradient) {
    EXPECT_EQ(Painted(FaceRows::Pressed()), FaceRows::Pressed().Pixels);
}

TEST(SkinFace, TheDisabledFaceHasOneColourForBorderAndCornersAndOneInside) {
    EXPECT_EQ(Painted(FaceRows::Disabled()), FaceRows::Disabled().Pixels);
}

TEST(SkinFace, CornersAreEightEightFourAndEightPixels) {
    std::map<Bgr, int> counts;
    for (const auto& [place, colour] : FaceOf(Look::Normal, FaceRows::Size).Corners)
        ++counts[colour];
    EXPECT_EQ(counts, (std::map<Bgr, int>{{0x845521, 8}, {0xAD967B, 8}, {0xA57D52, 4}, {0xDECFC6, 8}}));
}

TEST(SkinFace, ThePaintedButtonsFaceIsChosenInItsOrder) {
    struct Case {
        Skin::ButtonState State;
        Look Painted;
        Look Slices;
    };

    const std::vector<Case> cases{
        {{.Enabled = false, .Hover = true, .Focus = true, .Pressed = true}, Look::Disabled, Look::Disabled},
        {{}, Look::Normal, Look::Normal},
        {{.Focus = true}, Look::Focus, Look::Focus},
        {{.Hover = true}, Look::Hover, Look::Hover},
        {{.Hover = true, .Focus = true}, Look::Hover, Look::Hover},
        {{.Hover = true, .Focus = true, .Pressed = true}, Look::Pressed, Look::Pressed},
        // The pointer has left a pressed button: only the one of slices shows what a key has pressed.
        {{.Focus = true, .Pressed = true}, Look::Focus, Look::Pressed},
        {{.Pressed = true}, Look::Normal, Look::Pressed},
    };
    for (const Case& one : cases) {
        EXPECT_EQ(CommandButtonLook(one.State), one.Painted);
        EXPECT_EQ(UserControlLook(one.State), one.Slices);
    }
}

TEST(SkinFace, LinesOfThreePixelsTakeThreeOfEachRowAndLeaveTheCornersToCurves) {
    const Skin::Face face = FaceOf(Look::Normal, {60, 36}, 3);
    EXPECT_EQ(face.Lines.front().Area, QRect(9, 0, 42, 3));
    EXPECT_EQ(face.Lines.back().Area, QRect(57, 9, 3, 18));
    EXPECT_EQ(face.Inside.front().Area, QRect(3, 3, 54, 30));
    EXPECT_EQ(face.Inside.at(1).Area, QRect(3, 27, 54, 3));
    EXPECT_EQ(face.Inside.at(2).Area, QRect(3, 30, 54, 3));
    EXPECT_EQ(face.Inside.back().Area, QRect(3, 3, 54, 24));
    EXPECT_TRUE(face.Corners.empty());
}

TEST(SkinFace, AFaceIsCutIntoThreeSlicesOfItsOwnNumbers) {
    struct Case {
        Look State;
        int Left;
    };

    for (const auto& [look, left] : std::vector<Case>{
             {Look::Disabled, 12}, {Look::Pressed, 9}, {Look::Hover, 3}, {Look::Focus, 6}, {Look::Normal, 0}}) {
        const auto [first, centre, right] = SlicesOf(look, 100);
        EXPECT_EQ(first.Number, left);
        EXPECT_EQ(centre.Number, left + 1);
        EXPECT_EQ(right.Number, left + 2);
        for (const int number : {first.Number, centre.Number, right.Number})
            EXPECT_EQ(Skin::LookOfSlice(number), look);
    }
}

TEST(SkinFace, TheCentreSliceIsStretchedBetweenTheTwoThatKeepTheirWidth) {
    for (const int width : {100, 37, 8}) {
        const auto [left, centre, right] = SlicesOf(Look::Normal, width);
        EXPECT_EQ(left.X, 0);
        EXPECT_EQ(left.Width, 4);
        EXPECT_EQ(centre.X, 4);
        EXPECT_EQ(centre.Width, width - 8);
        EXPECT_EQ(right.X, width - 4);
        EXPECT_EQ(right.Width, 4);
    }
    EXPECT_EQ(SlicesOf(Look::Normal, 5).at(1).Width, 0);
}
