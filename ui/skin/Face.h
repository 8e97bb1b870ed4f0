// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// How the family's push buttons look, as plain data: which face a state shows, and the pixels of each face. Colours
/// are written 0xBBGGRR.
#pragma once

#include "ui/skin/Colours.h"

#include <QPoint>
#include <QRect>
#include <QSize>

#include <array>
#include <vector>

namespace Skin {

/// The colour of one line of a gradient: red, green and blue run each by itself from `first` (line 0) to `last` (line
/// `lines` - 1).
Bgr Between(Bgr first, Bgr last, int line, int lines);

/// In the order of the faces' slices, three to each.
enum class Look { Normal, Hover, Focus, Pressed, Disabled };

struct ButtonState {
    bool Enabled = true;
    bool Hover = false;
    bool Focus = false;
    bool Pressed = false;
};

/// The painted button: a pressed face needs the pointer over it, and the pointer goes before the focus.
Look CommandButtonLook(const ButtonState& state);
/// The button made of slices: pressed goes before all else that is enabled.
Look UserControlLook(const ButtonState& state);

/// A rectangle of full lines from `Top`'s colour to `Bottom`'s.
struct Fill {
    QRect Area;
    Bgr Top;
    Bgr Bottom;
};

struct Dot {
    QPoint Place;
    Bgr Colour;
};

struct Face {
    Bgr Border;
    std::vector<Fill> Lines;  ///< the four lines of the border, three of their widths short of the corners
    std::vector<Fill> Inside; ///< what lies inside the border, in the order of painting
    std::vector<Dot> Corners; ///< what rounds the four corners, over all else; none where lines are wider than a pixel
};

/// How far a corner reaches, in widths of a line. The outermost pixel of each corner is not painted.
inline constexpr int CornerReach = 3;

/// One of the fifteen slices that the faces are cut into, and the columns of a button that it covers.
struct Slice {
    int Number;
    int X;
    int Width;
};

/// The left slice at its own width, the centre stretched, the right slice at the right edge.
std::array<Slice, 3> SlicesOf(Look look, int width);

/// The face that a slice is cut out of.
Look LookOfSlice(int number);

/// The face of a button of that size, whose lines are `line` pixels wide.
Face FaceOf(Look look, QSize size, int line = 1);

} // namespace Skin
