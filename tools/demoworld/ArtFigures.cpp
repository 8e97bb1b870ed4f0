// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tools/demoworld/Art.h"

#include "tools/demoworld/Random.h"

#include <array>
#include <cmath>
#include <numbers>

namespace Demo {

namespace {

void DrawTank(Picture& picture, Colour body, Colour shade) {
    FillShape(picture, {{0.08, 0.62}, {0.16, 0.52}, {0.86, 0.52}, {0.94, 0.62}, {0.86, 0.76}, {0.16, 0.76}}, shade);
    for (int wheel = 0; wheel < 6; ++wheel)
        FillDisc(picture, {0.2 + wheel * 0.12, 0.67}, 0.05, Lit(shade, 1.5));
    FillShape(picture, {{0.14, 0.55}, {0.24, 0.44}, {0.82, 0.44}, {0.9, 0.55}}, body);
    FillShape(picture, {{0.34, 0.45}, {0.4, 0.3}, {0.62, 0.3}, {0.7, 0.45}}, Lit(body, 1.12));
    FillShape(picture, {{0.62, 0.33}, {0.98, 0.29}, {0.98, 0.325}, {0.62, 0.39}}, shade);
    FillShape(picture, {{0.44, 0.3}, {0.47, 0.26}, {0.55, 0.26}, {0.57, 0.3}}, shade);
}

void DrawShip(Picture& picture, Colour body, Colour shade) {
    FillShape(picture, {{0.05, 0.62}, {0.95, 0.62}, {0.84, 0.78}, {0.16, 0.78}}, body);
    FillShape(picture, {{0.05, 0.62}, {0.95, 0.62}, {0.93, 0.65}, {0.07, 0.65}}, shade);
    FillShape(picture, {{0.49, 0.16}, {0.52, 0.16}, {0.52, 0.62}, {0.49, 0.62}}, shade);
    FillShape(picture, {{0.53, 0.2}, {0.86, 0.54}, {0.53, 0.57}}, {226, 220, 200});
    FillShape(picture, {{0.48, 0.26}, {0.2, 0.54}, {0.48, 0.57}}, {204, 196, 172});
    FillShape(picture, {{0.52, 0.16}, {0.66, 0.13}, {0.52, 0.1}}, {180, 52, 44});
}

void DrawAircraft(Picture& picture, Colour body, Colour shade) {
    FillShape(picture, {{0.5, 0.05}, {0.56, 0.25}, {0.57, 0.8}, {0.5, 0.93}, {0.43, 0.8}, {0.44, 0.25}}, body);
    FillShape(picture, {{0.56, 0.36}, {0.96, 0.64}, {0.96, 0.7}, {0.56, 0.58}}, shade);
    FillShape(picture, {{0.44, 0.36}, {0.04, 0.64}, {0.04, 0.7}, {0.44, 0.58}}, shade);
    FillShape(picture, {{0.56, 0.76}, {0.74, 0.88}, {0.74, 0.92}, {0.53, 0.88}}, Lit(shade, 1.2));
    FillShape(picture, {{0.44, 0.76}, {0.26, 0.88}, {0.26, 0.92}, {0.47, 0.88}}, Lit(shade, 1.2));
    FillShape(picture, {{0.5, 0.16}, {0.53, 0.24}, {0.52, 0.34}, {0.48, 0.34}, {0.47, 0.24}}, {150, 200, 226});
}

void DrawTower(Picture& picture, Colour body, Colour shade) {
    FillShape(picture, {{0.34, 0.9}, {0.38, 0.34}, {0.62, 0.34}, {0.66, 0.9}}, body);
    FillShape(picture, {{0.52, 0.9}, {0.52, 0.34}, {0.62, 0.34}, {0.66, 0.9}}, shade);
    FillShape(picture, {{0.32, 0.36}, {0.32, 0.26}, {0.68, 0.26}, {0.68, 0.36}}, Lit(body, 1.1));
    for (int merlon = 0; merlon < 4; ++merlon) {
        const double left = 0.32 + merlon * 0.096;
        FillShape(picture, {{left, 0.27}, {left, 0.2}, {left + 0.07, 0.2}, {left + 0.07, 0.27}}, body);
    }
    FillShape(picture, {{0.46, 0.9}, {0.46, 0.76}, {0.5, 0.7}, {0.54, 0.76}, {0.54, 0.9}}, {34, 30, 30});
    FillShape(picture, {{0.48, 0.56}, {0.48, 0.48}, {0.52, 0.48}, {0.52, 0.56}}, {250, 216, 120});
    FillShape(picture, {{0.49, 0.2}, {0.49, 0.06}, {0.7, 0.11}, {0.5, 0.15}, {0.5, 0.2}}, {58, 92, 168});
}

/// One needle of a compass rose: half of it in the light.
void DrawNeedle(Picture& picture, double angle, double length, Colour colour) {
    const auto place = [&](double turn, double distance) {
        return Place{0.5 + distance * std::sin(angle + turn), 0.5 - distance * std::cos(angle + turn)};
    };
    const Place tip = place(0, length), middle{0.5, 0.5};
    FillShape(picture, {tip, place(-0.4, length * 0.3), middle}, Lit(colour, 1.25));
    FillShape(picture, {tip, place(0.4, length * 0.3), middle}, Lit(colour, 0.7));
}

} // namespace

Picture Machine(int size, quint64 seed) {
    constexpr std::array<Colour, 5> paints{
        {{118, 124, 78}, {96, 110, 128}, {168, 136, 86}, {122, 66, 56}, {82, 96, 92}}};
    constexpr std::array drawings{DrawTank, DrawShip, DrawAircraft, DrawTower};
    Picture picture(size, size, {0, 0, 0, 0});
    const Colour paint = paints[seed / drawings.size() % paints.size()];
    drawings[seed % drawings.size()](picture, paint, Lit(paint, 0.62));
    return picture;
}

Picture Emblem(int size, quint64 seed) {
    constexpr std::array<Colour, 4> colours{{{176, 132, 52}, {150, 52, 44}, {52, 92, 150}, {70, 120, 76}}};
    const Colour colour = colours[seed % colours.size()];
    Picture picture(size, size, {0, 0, 0, 0});
    FillDisc(picture, {0.5, 0.5}, 0.47, {24, 34, 58});
    FillRing(picture, {0.5, 0.5}, 0.43, 0.46, colour);
    FillRing(picture, {0.5, 0.5}, 0.3, 0.315, Lit(colour, 0.8));
    for (int i = 0; i < 8; ++i)
        DrawNeedle(picture, (i + 0.5) * std::numbers::pi / 4, 0.24, Lit(colour, 0.7));
    for (int i = 0; i < 4; ++i)
        DrawNeedle(picture, (i + 0.5) * std::numbers::pi / 2, 0.32, colour);
    for (int i = 0; i < 4; ++i)
        DrawNeedle(picture, i * std::numbers::pi / 2, 0.42, {230, 224, 206});
    FillDisc(picture, {0.5, 0.5}, 0.04, colour);
    return picture;
}

Picture AnyPicture(int size, quint64 seed) {
    constexpr std::array painters{Land, Metal, Machine, Wall, Sky, Emblem};
    return painters[seed % painters.size()](size, seed / painters.size() + seed);
}

} // namespace Demo
