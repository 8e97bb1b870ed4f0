// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The five faces of a button of 12 by 9 pixels, written out.
#pragma once

#include "ui/skin/Face.h"

#include <map>
#include <string>
#include <vector>

namespace FaceRows {

using Rows = std::vector<std::string>;
using Letters = std::map<Skin::Bgr, char>;

/// A letter for each colour; '.' is not painted.
struct Face {
    Skin::Look Look;
    Letters Colours;
    Rows Pixels;
};

inline constexpr QSize Size{12, 9};

/// What four of the faces have in common: border B and the corners 1, 2, 3 and 4.
inline Letters With(Letters letters) {
    letters.insert({{0x733200, 'B'}, {0x845521, '1'}, {0xAD967B, '2'}, {0xA57D52, '3'}, {0xDECFC6, '4'}});
    return letters;
}

/// With the normal face's gradient in the three rows that a frame leaves of it.
inline Letters WithFrame(Letters letters) {
    letters.insert({{0xF7F7F7, 'a'}, {0xEFF1F3, 'c'}, {0xE7EBEF, 'e'}});
    return With(letters);
}

/// A face that has a frame inside its border; the last row but two is its own. Three rows between the lines: the middle
/// one of each gradient is the mean, its halves towards the upper colour.
inline Rows Framed(const std::string& row) {
    return {".41BBBBBB14.", "432hhhhhh234", "12iiiiiiii21", "BjjaaaaaajjB", "BkkcccccckkB", "BlleeeeeellB", row,
            "432mmmmmm234", ".41BBBBBB14."};
}

// Five rows from F7F7F7 to E7EBEF: blue falls by 4 each, green by 3, red by 2.
inline Face Normal() {
    return {Skin::Look::Normal,
            With({{0xF7F7F7, 'a'},
                  {0xF3F4F5, 'b'},
                  {0xEFF1F3, 'c'},
                  {0xEBEEF1, 'd'},
                  {0xE7EBEF, 'e'},
                  {0xD6DFE7, 'f'},
                  {0xC6D3D6, 'g'}}),
            {
                ".41BBBBBB14.", //
                "432aaaaaa234", //
                "12bbbbbbbb21", //
                "BccccccccccB", //
                "BddddddddddB", //
                "BeeeeeeeeeeB", //
                "12ffffffff21", //
                "432gggggg234", //
                ".41BBBBBB14.",
            }};
}

inline Face Hover() {
    return {Skin::Look::Hover,
            WithFrame(
                {{0xCEF3FF, 'h'}, {0x8CDBFF, 'i'}, {0x9CDFE1, 'j'}, {0x66CBF0, 'k'}, {0x30B6FF, 'l'}, {0x31B2FF, 'm'}}),
            Framed("12mmmmmmmm21")};
}

inline Face Focus() {
    return {Skin::Look::Focus,
            WithFrame(
                {{0xFFE7CE, 'h'}, {0xF7D7BD, 'i'}, {0xF7D3BD, 'j'}, {0xEFC1A5, 'k'}, {0xE7AE8C, 'l'}, {0xEF826B, 'm'}}),
            Framed("12llllllll21")};
}

inline Face Pressed() {
    return {Skin::Look::Pressed,
            With({{0xD6DFE7, 'f'}, {0xE7EBEF, 'e'}, {0xEFF3F7, 'n'}}),
            {
                ".41BBBBBB14.", //
                "432ffffff234", //
                "12eeeeeeee21", //
                "BeeeeeeeeeeB", //
                "BeeeeeeeeeeB", //
                "BeeeeeeeeeeB", //
                "12eeeeeeee21", //
                "432nnnnnn234", //
                ".41BBBBBB14.",
            }};
}

inline Face Disabled() {
    return {Skin::Look::Disabled,
            {{0xBDC7CE, 'x'}, {0xEFF7F7, 'y'}},
            {
                ".xxxxxxxxxx.", //
                "xxxyyyyyyxxx", //
                "xxyyyyyyyyxx", //
                "xyyyyyyyyyyx", //
                "xyyyyyyyyyyx", //
                "xyyyyyyyyyyx", //
                "xxyyyyyyyyxx", //
                "xxxyyyyyyxxx", //
                ".xxxxxxxxxx.",
            }};
}

inline std::vector<Face> All() {
    return {Normal(), Hover(), Focus(), Pressed(), Disabled()};
}

} // namespace FaceRows
