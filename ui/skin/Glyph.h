// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The marks of check boxes and option buttons as plain data: which of eight frames a state shows, where it stands, and
/// the colours it is made of.
#pragma once

#include "ui/skin/Face.h"

#include <optional>

namespace Skin {

/// A glyph is as wide as it is high, in pixels.
inline constexpr int GlyphSize = 13;
/// Between the glyph and the caption.
inline constexpr int GlyphGap = 6;

/// 0 to 3: normal, pointer over, pressed, disabled; the same with the mark: 4 to 7.
int GlyphFrame(const ButtonState& state, bool ticked);

/// The row of the glyph's top in a control of that height.
int GlyphTop(int height);

struct GlyphColours {
    Bgr Border;
    Bgr Top; ///< the ground, a gradient
    Bgr Bottom;
    std::optional<Bgr> Ring; ///< two lines inside the border
    Bgr Mark;
};

/// The colours of a frame, with or without its mark.
const GlyphColours& ColoursOfGlyph(int frame);

/// The pixels of a check box's frame without its mark, in a square of that side with lines `line` pixels wide.
std::vector<Fill> BoxOfGlyph(int frame, int side = GlyphSize, int line = 1);

} // namespace Skin
