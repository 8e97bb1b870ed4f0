// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/skin/Face.h"

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <vector>

using Skin::Between;
using Skin::Bgr;
using Skin::Look;

namespace {

using Rows = std::vector<std::string>;

/// A face as text, a letter for each colour; '.' is not painted.
Rows Painted(Look look, QSize size, const std::map<Bgr, char>& letters) {
    Rows rows(static_cast<std::size_t>(size.height()), std::string(static_cast<std::size_t>(size.width()), '.'));
    const auto dot = [&](int x, int y, Bgr colour) {
        const auto letter = letters.find(colour);
        rows.at(static_cast<std::size_t>(y)).at(static_cast<std::size_t>(x)) =
            letter == letters.end() ? '?' : letter->second;
    };
    const auto fill = [&](const std::vector<Skin::Fill>& fills) {
        for (const auto& [area, top, bottom] : fills)
            for (int y = area.top(); y <= area.bottom(); ++y)
                for (int x = area.left(); x <= area.right(); ++x)
                    dot(x, y, Between(top, bottom, y - area.top(), area.height()));
    };
    const Skin::Face face = FaceOf(look, size);
    fill(face.Lines);
    fill(face.Inside);
    for (const auto& [place, colour] : face.Corners)
        dot(place.x(), place.y(), colour);
    return rows;
}

/// What four of the faces have in common: border B and the corners 1, 2, 3 and 4.
std::map<Bgr, char> With(std::map<Bgr, char> letters) {
    letters.insert({{0x733200, 'B'}, {0x845521, '1'}, {0xAD967B, '2'}, {0xA57D52, '3'}, {0xDECFC6, '4'}});
    return letters;
}

/// With the normal face's gradient in the three rows that a frame leaves of it.
std::map<Bgr, char> WithFrame(std::map<Bgr, char> letters) {
    letters.insert({{0xF7F7F7, 'a'}, {0xEFF1F3, 'c'}, {0xE7EBEF, 'e'}});
    return With(letters);
}

/// A face that has a frame inside its border; the last row but two is its own.
Rows Framed(const std::string& row) {
    return {".41BBBBBB14.", "432hhhhhh234", "12iiiiiiii21", "BjjaaaaaajjB", "BkkcccccckkB", "BlleeeeeellB", row,
            "432mmmmmm234", ".41BBBBBB14."};
}

constexpr QSize size{12, 9};

} // namespace

TEST(SkinFace, AGradientRunsRedGreenAndBlueEachByItself) {
    // Blue falls, green stays, red rises.
    EXPECT_EQ(Between(0xC86400, 0x006464, 0, 5), 0xC86400U);
    EXPECT_EQ(Between(0xC86400, 0x006464, 1, 5), 0x966419U);
    EXPECT_EQ(Between(0xC86400, 0x006464, 2, 5), 0x646432U);
    EXPECT_EQ(Between(0xC86400, 0x006464, 4, 5), 0x006464U);
    EXPECT_EQ(Between(0x123456, 0xFFFFFF, 0, 1), 0x123456U);
}

// Five rows from F7F7F7 to E7EBEF: blue falls by 4 each, green by 3, red by 2.
TEST(SkinFace, TheNormalFace) {
    const auto letters = With({{0xF7F7F7, 'a'},
                               {0xF3F4F5, 'b'},
                               {0xEFF1F3, 'c'},
                               {0xEBEEF1, 'd'},
                               {0xE7EBEF, 'e'},
                               {0xD6DFE7, 'f'},
                               {0xC6D3D6, 'g'}});
    const Rows expected{
        ".41BBBBBB14.", //
        "432aaaaaa234", //
        "12bbbbbbbb21", //
        "BccccccccccB", //
        "BddddddddddB", //
        "BeeeeeeeeeeB", //
        "12ffffffff21", //
        "432gggggg234", //
        ".41BBBBBB14.",
    };
    EXPECT_EQ(Painted(Look::Normal, size, letters), expected);
}

// Three rows between the lines: the middle one of each gradient is the mean, its halves towards the upper colour.
TEST(SkinFace, TheFaceUnderThePointer) {
    const auto letters = WithFrame(
        {{0xCEF3FF, 'h'}, {0x8CDBFF, 'i'}, {0x9CDFE1, 'j'}, {0x66CBF0, 'k'}, {0x30B6FF, 'l'}, {0x31B2FF, 'm'}});
    EXPECT_EQ(Painted(Look::Hover, size, letters), Framed("12mmmmmmmm21"));
}

TEST(SkinFace, TheFaceWithTheFocus) {
    const auto letters = WithFrame(
        {{0xFFE7CE, 'h'}, {0xF7D7BD, 'i'}, {0xF7D3BD, 'j'}, {0xEFC1A5, 'k'}, {0xE7AE8C, 'l'}, {0xEF826B, 'm'}});
    EXPECT_EQ(Painted(Look::Focus, size, letters), Framed("12llllllll21"));
}

TEST(SkinFace, ThePressedFaceHasNoGradient) {
    const auto letters = With({{0xD6DFE7, 'f'}, {0xE7EBEF, 'e'}, {0xEFF3F7, 'n'}});
    const Rows expected{
        ".41BBBBBB14.", //
        "432ffffff234", //
        "12eeeeeeee21", //
        "BeeeeeeeeeeB", //
        "BeeeeeeeeeeB", //
        "BeeeeeeeeeeB", //
        "12eeeeeeee21", //
        "432nnnnnn234", //
        ".41BBBBBB14.",
    };
    EXPECT_EQ(Painted(Look::Pressed, size, letters), expected);
}

TEST(SkinFace, TheDisabledFaceHasOneColourForBorderAndCornersAndOneInside) {
    const Rows expected{
        ".xxxxxxxxxx.", //
        "xxxyyyyyyxxx", //
        "xxyyyyyyyyxx", //
        "xyyyyyyyyyyx", //
        "xyyyyyyyyyyx", //
        "xyyyyyyyyyyx", //
        "xxyyyyyyyyxx", //
        "xxxyyyyyyxxx", //
        ".xxxxxxxxxx.",
    };
    EXPECT_EQ(Painted(Look::Disabled, size, {{0xBDC7CE, 'x'}, {0xEFF7F7, 'y'}}), expected);
}

TEST(SkinFace, CornersAreEightEightFourAndEightPixels) {
    std::map<Bgr, int> counts;
    for (const auto& [place, colour] : FaceOf(Look::Normal, size).Corners)
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
