// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/skin/Glyph.h"

#include <array>

namespace {

constexpr int states = 4;

using namespace Skin::Colour;

/// Normal, pointer over, pressed, disabled.
constexpr std::array<Skin::GlyphColours, states> colours{{
    {Border, Face, 0xFFFFFF, {}, Border},
    {Border, Face, 0xFFFFFF, Hover, Border},
    {Border, 0xC6D3D6, Face, {}, Border},
    {DisabledBorder, FaceDisabled, FaceDisabled, {}, DisabledText},
}};

} // namespace

int Skin::GlyphFrame(const ButtonState& state, bool ticked) {
    int frame = 0;
    if (!state.Enabled)
        frame = 3;
    else if (state.Pressed)
        frame = 2;
    else if (state.Hover)
        frame = 1;
    return frame + (ticked ? states : 0);
}

int Skin::GlyphTop(int height) {
    return (height - GlyphSize) / 2;
}

const Skin::GlyphColours& Skin::ColoursOfGlyph(int frame) {
    return colours.at(static_cast<std::size_t>(frame % states));
}

std::vector<Skin::Fill> Skin::BoxOfGlyph(int frame, int side, int line) {
    const GlyphColours& parts = ColoursOfGlyph(frame);
    QRect area(0, 0, side, side);
    std::vector<Fill> fills{{area, parts.Border, parts.Border}};
    area.adjust(line, line, -line, -line);
    if (parts.Ring) {
        fills.push_back({area, *parts.Ring, *parts.Ring});
        area.adjust(2 * line, 2 * line, -2 * line, -2 * line);
    }
    fills.push_back({area, parts.Top, parts.Bottom});
    return fills;
}
