// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tools/demoworld/Picture.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace Demo {

namespace {

constexpr int SamplesAcross = 4;

quint8 ToByte(double value) {
    return static_cast<quint8>(std::clamp(std::lround(value), 0L, 255L));
}

bool Inside(const std::vector<Place>& corners, double x, double y) {
    bool inside = false;
    for (size_t i = 0, before = corners.size() - 1; i < corners.size(); before = i++) {
        const Place a = corners[i], b = corners[before];
        if ((a.Y > y) != (b.Y > y) && x < (b.X - a.X) * (y - a.Y) / (b.Y - a.Y) + a.X)
            inside = !inside;
    }
    return inside;
}

/// The share of the pixel that the shape covers, from 0 to 1.
double Coverage(const std::vector<Place>& corners, const Picture& picture, int x, int y) {
    int hits = 0;
    for (int sample = 0; sample < SamplesAcross * SamplesAcross; ++sample) {
        const int row = sample / SamplesAcross;
        const double across = (x + (sample % SamplesAcross + 0.5) / SamplesAcross) / picture.Width;
        const double down = (y + (row + 0.5) / SamplesAcross) / picture.Height;
        hits += Inside(corners, across, down) ? 1 : 0;
    }
    return hits / static_cast<double>(SamplesAcross * SamplesAcross);
}

Colour Over(Colour below, Colour above, double share) {
    const double top = share * above.Alpha / 255, bottom = below.Alpha / 255.0 * (1 - top);
    const double alpha = top + bottom;
    if (alpha <= 0)
        return {0, 0, 0, 0};
    const auto mix = [&](quint8 a, quint8 b) { return ToByte((a * top + b * bottom) / alpha); };
    return {mix(above.Red, below.Red), mix(above.Green, below.Green), mix(above.Blue, below.Blue), ToByte(alpha * 255)};
}

struct Span {
    int First;
    int Last;
};

Span PixelSpan(double low, double high, int size) {
    return {std::clamp(static_cast<int>(std::floor(low * size)), 0, size),
            std::clamp(static_cast<int>(std::ceil(high * size)), 0, size)};
}

std::vector<Place> Circle(Place middle, double radius) {
    constexpr int corners = 48;
    std::vector<Place> places;
    for (int i = 0; i < corners; ++i) {
        const double angle = i * 2 * std::numbers::pi / corners;
        places.push_back({middle.X + radius * std::cos(angle), middle.Y + radius * std::sin(angle)});
    }
    return places;
}

} // namespace

Picture::Picture(int width, int height, Colour fill)
    : Width(width),
      Height(height),
      Pixels(static_cast<size_t>(width) * static_cast<size_t>(height), fill) {}

Colour Blend(Colour first, Colour second, double share) {
    const auto mix = [&](quint8 a, quint8 b) { return ToByte(std::lerp(double{0} + a, double{0} + b, share)); };
    return {mix(first.Red, second.Red), mix(first.Green, second.Green), mix(first.Blue, second.Blue),
            mix(first.Alpha, second.Alpha)};
}

Colour Lit(Colour colour, double factor) {
    return {ToByte(colour.Red * factor), ToByte(colour.Green * factor), ToByte(colour.Blue * factor), colour.Alpha};
}

void FillShape(Picture& picture, const std::vector<Place>& corners, Colour colour) {
    const auto [left, right] = std::ranges::minmax(corners, {}, &Place::X);
    const auto [top, bottom] = std::ranges::minmax(corners, {}, &Place::Y);
    const Span across = PixelSpan(left.X, right.X, picture.Width), down = PixelSpan(top.Y, bottom.Y, picture.Height);
    for (int y = down.First; y < down.Last; ++y) {
        for (int x = across.First; x < across.Last; ++x) {
            const double share = Coverage(corners, picture, x, y);
            if (share > 0)
                picture.At(x, y) = Over(picture.At(x, y), colour, share);
        }
    }
}

void FillDisc(Picture& picture, Place middle, double radius, Colour colour) {
    FillShape(picture, Circle(middle, radius), colour);
}

void FillRing(Picture& picture, Place middle, double inner, double outer, Colour colour) {
    std::vector<Place> places = Circle(middle, outer);
    places.push_back(places.front());
    std::vector<Place> hole = Circle(middle, inner);
    hole.push_back(hole.front());
    places.insert(places.end(), hole.rbegin(), hole.rend());
    FillShape(picture, places, colour);
}

Picture Half(const Picture& picture) {
    Picture half(std::max(1, picture.Width / 2), std::max(1, picture.Height / 2));
    for (int y = 0; y < half.Height; ++y) {
        for (int x = 0; x < half.Width; ++x) {
            const int right = std::min(2 * x + 1, picture.Width - 1), below = std::min(2 * y + 1, picture.Height - 1);
            const Colour above = Blend(picture.At(2 * x, 2 * y), picture.At(right, 2 * y), 0.5);
            half.At(x, y) = Blend(above, Blend(picture.At(2 * x, below), picture.At(right, below), 0.5), 0.5);
        }
    }
    return half;
}

} // namespace Demo
