// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/skin/Face.h"

#include <algorithm>
#include <array>
#include <optional>

namespace {

using Skin::Bgr;
using Skin::Fill;
using Skin::Look;

/// Light falls from above: gradients are given from their lower end, where the inner lines are, to the upper one.
struct Gradient {
    Bgr Lower;
    Bgr Upper;
};

/// What frames the face of a button under the pointer or with the focus.
struct Accent {
    std::array<Bgr, 2> TopLines;
    Gradient Sides;
};

/// The rows of an inner line: from above, or (negative) from below.
struct InnerLine {
    int First;
    int Rows;
    Bgr Colour;
};

struct Theme {
    Bgr Border;
    Bgr Ground;
    std::array<InnerLine, 2> InnerLines;
    std::optional<Gradient> Body;
    std::optional<Accent> Frame;
    std::array<Bgr, 4> Corners;
};

using namespace Skin::Colour;

constexpr Gradient body{Face, FaceBright};
constexpr std::array<Bgr, 4> corners{0x845521, 0xAD967B, 0xA57D52, 0xDECFC6};

/// By Look.
constexpr std::array<Theme, 5> themes{{
    {Border, Face, {{{-3, 1, 0xD6DFE7}, {-2, 1, 0xC6D3D6}}}, body, {}, corners},
    {Border,
     Face,
     {{{-3, 1, Hover}, {-2, 1, Hover}}},
     body,
     Accent{{0xCEF3FF, 0x8CDBFF}, {0x30B6FF, 0x9CDFE1}},
     corners},
    {Border,
     Face,
     {{{-3, 1, Focus}, {-2, 1, 0xEF826B}}},
     body,
     Accent{{0xFFE7CE, 0xF7D7BD}, {Focus, 0xF7D3BD}},
     corners},
    {Border, Face, {{{1, 1, 0xD6DFE7}, {-2, 1, 0xEFF3F7}}}, {}, {}, corners},
    {DisabledBorder,
     FaceDisabled,
     {{{-3, 1, FaceDisabled}, {-2, 1, FaceDisabled}}},
     {},
     {},
     {DisabledBorder, DisabledBorder, DisabledBorder, DisabledBorder}},
}};

constexpr int slicesOfAFace = 3;
constexpr int sliceEnd = 4; // a corner and what goes on with it

constexpr int accentWidth = 2;
constexpr int innerLines = 2; // rows that the lines below take

std::vector<Fill> BorderLines(Bgr colour, QSize size, int line) {
    const int reach = Skin::CornerReach * line;
    const int right = size.width() - line, bottom = size.height() - line;
    const int across = size.width() - 2 * reach, down = size.height() - 2 * reach;
    return {{{reach, 0, across, line}, colour, colour},
            {{reach, bottom, across, line}, colour, colour},
            {{0, reach, line, down}, colour, colour},
            {{right, reach, line, down}, colour, colour}};
}

std::vector<Fill> InsideOf(const Theme& theme, QSize size, int line) {
    const QRect inside = QRect(QPoint(), size).adjusted(line, line, -line, -line);
    std::vector<Fill> fills{{inside, theme.Ground, theme.Ground}};
    for (const InnerLine& inner : theme.InnerLines) {
        const int row = (inner.First < 0 ? size.height() : 0) + inner.First * line;
        fills.push_back({{inside.x(), row, inside.width(), inner.Rows * line}, inner.Colour, inner.Colour});
    }
    QRect face = inside.adjusted(0, 0, 0, -innerLines * line);
    if (theme.Frame) {
        for (const Bgr colour : theme.Frame->TopLines) {
            fills.push_back({{face.x(), face.y(), face.width(), line}, colour, colour});
            face.setTop(face.top() + line);
        }
        const Gradient& sides = theme.Frame->Sides;
        const int accent = accentWidth * line;
        fills.push_back({{face.x(), face.y(), accent, face.height()}, sides.Upper, sides.Lower});
        fills.push_back({{face.right() + 1 - accent, face.y(), accent, face.height()}, sides.Upper, sides.Lower});
        face.adjust(accent, 0, -accent, 0);
    }
    if (theme.Body)
        fills.push_back({face, theme.Body->Upper, theme.Body->Lower});
    return fills;
}

// The first colour goes on with the border's lines, the fourth lies outside of the curve, the third in its middle, the
// second on its inner side.
std::vector<Skin::Dot> CornersOf(const Theme& theme, QSize size) {
    const auto [first, second, third, fourth] = theme.Corners;
    const std::array<Skin::Dot, 7> upperLeft{{{{2, 0}, first},
                                              {{0, 2}, first},
                                              {{2, 1}, second},
                                              {{1, 2}, second},
                                              {{1, 1}, third},
                                              {{1, 0}, fourth},
                                              {{0, 1}, fourth}}};
    const int right = size.width() - 1, bottom = size.height() - 1;
    std::vector<Skin::Dot> dots;
    for (const auto& [place, colour] : upperLeft)
        for (const int x : {place.x(), right - place.x()})
            for (const int y : {place.y(), bottom - place.y()})
                dots.push_back({{x, y}, colour});
    return dots;
}

} // namespace

Bgr Skin::Between(Bgr first, Bgr last, int line, int lines) {
    if (lines < 2)
        return first;
    Bgr colour = 0;
    for (const int shift : {0, 8, 16}) {
        const int from = static_cast<int>(first >> shift & 0xFFU), to = static_cast<int>(last >> shift & 0xFFU);
        colour |= static_cast<Bgr>(from + (to - from) * line / (lines - 1)) << shift;
    }
    return colour;
}

Look Skin::CommandButtonLook(const ButtonState& state) {
    if (!state.Enabled)
        return Look::Disabled;
    if (state.Hover)
        return state.Pressed ? Look::Pressed : Look::Hover;
    return state.Focus ? Look::Focus : Look::Normal;
}

Look Skin::UserControlLook(const ButtonState& state) {
    if (!state.Enabled)
        return Look::Disabled;
    if (state.Pressed)
        return Look::Pressed;
    if (state.Hover)
        return Look::Hover;
    return state.Focus ? Look::Focus : Look::Normal;
}

std::array<Skin::Slice, 3> Skin::SlicesOf(Look look, int width) {
    const int left = static_cast<int>(look) * slicesOfAFace;
    return {{{left, 0, sliceEnd},
             {left + 1, sliceEnd, std::max(0, width - 2 * sliceEnd)},
             {left + 2, width - sliceEnd, sliceEnd}}};
}

Look Skin::LookOfSlice(int number) {
    return static_cast<Look>(number / slicesOfAFace);
}

Skin::Face Skin::FaceOf(Look look, QSize size, int line) {
    const Theme& theme = themes.at(static_cast<std::size_t>(look));
    return {theme.Border, BorderLines(theme.Border, size, line), InsideOf(theme, size, line),
            line == 1 ? CornersOf(theme, size) : std::vector<Dot>()};
}
