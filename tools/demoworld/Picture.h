// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Pictures in memory, and the few strokes that the samples are drawn with.
#pragma once

#include <QtGlobal>

#include <vector>

namespace Demo {

struct Colour {
    quint8 Red = 0;
    quint8 Green = 0;
    quint8 Blue = 0;
    quint8 Alpha = 255;

    bool operator==(const Colour&) const = default;
};

/// Rows from the top; `Pixels` holds Width times Height of them.
struct Picture {
    Picture(int width, int height, Colour fill = {});

    int Width;
    int Height;
    std::vector<Colour> Pixels;

    [[nodiscard]] Colour& At(int x, int y) { return Pixels[Index(x, y)]; }

    [[nodiscard]] const Colour& At(int x, int y) const { return Pixels[Index(x, y)]; }

private:
    [[nodiscard]] size_t Index(int x, int y) const {
        return static_cast<size_t>(y) * static_cast<size_t>(Width) + static_cast<size_t>(x);
    }
};

/// A place in a picture, from 0 to 1 across and down.
struct Place {
    double X;
    double Y;
};

/// Between two colours; `share` 0 gives the first.
Colour Blend(Colour first, Colour second, double share);

/// Lighter for a `factor` above 1, darker below; alpha stays.
Colour Lit(Colour colour, double factor);

/// Fills a closed shape over what is there, its edges smoothed.
void FillShape(Picture& picture, const std::vector<Place>& corners, Colour colour);

void FillDisc(Picture& picture, Place middle, double radius, Colour colour);

void FillRing(Picture& picture, Place middle, double inner, double outer, Colour colour);

/// Half the width and height (at least 1), each pixel the mean of those it covers.
Picture Half(const Picture& picture);

} // namespace Demo
