// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tools/demoworld/Art.h"

#include "tools/demoworld/Random.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace Demo {

namespace {

struct Climate {
    Colour Deep, Shore, Low, High, Peak;
};

constexpr std::array<Climate, 4> Climates{{
    {{28, 62, 96}, {206, 190, 140}, {104, 134, 66}, {128, 112, 76}, {232, 230, 222}},
    {{36, 84, 98}, {226, 204, 150}, {204, 172, 108}, {158, 112, 68}, {214, 190, 158}},
    {{44, 70, 104}, {196, 206, 212}, {218, 226, 230}, {150, 164, 176}, {250, 252, 255}},
    {{22, 48, 62}, {122, 116, 84}, {66, 96, 54}, {86, 84, 58}, {150, 142, 120}},
}};

constexpr double SeaLevel = 0.42;
constexpr int ContourLines = 22;

Colour GroundColour(const Climate& climate, double height) {
    if (height < SeaLevel)
        return Blend(climate.Deep, climate.Shore, std::pow(height / SeaLevel, 6) * 0.6);
    const double above = (height - SeaLevel) / (1 - SeaLevel);
    if (above < 0.06)
        return climate.Shore;
    if (above < 0.5)
        return Blend(climate.Low, climate.High, (above - 0.06) / 0.44);
    return Blend(climate.High, climate.Peak, (above - 0.5) * 2);
}

std::vector<double> Heights(int size, quint64 seed) {
    std::vector<double> heights;
    heights.reserve(static_cast<size_t>(size) * static_cast<size_t>(size));
    const double scale = 4.0 / size;
    for (int y = 0; y < size; ++y)
        for (int x = 0; x < size; ++x)
            heights.push_back(Fractal(x * scale, y * scale, 4, 5, seed));
    const auto [low, high] = std::ranges::minmax(heights);
    for (double& height : heights)
        height = (height - low) / (high - low);
    return heights;
}

/// Light on the slope, darker on a contour line.
double Light(double height, double east, double south) {
    const double slope = (height - east) + (height - south);
    const bool contour = height > SeaLevel && (std::floor(height * ContourLines) != std::floor(east * ContourLines) ||
                                               std::floor(height * ContourLines) != std::floor(south * ContourLines));
    const double light = std::clamp(1 - slope * 14, 0.55, 1.35);
    return contour ? light * 0.72 : light;
}

} // namespace

Picture Land(int size, quint64 seed) {
    const Climate& climate = Climates[seed % Climates.size()];
    const std::vector<double> heights = Heights(size, seed);
    Picture land(size, size);
    const auto at = [&](int x, int y) {
        return heights[static_cast<size_t>(y % size) * static_cast<size_t>(size) + static_cast<size_t>(x % size)];
    };
    for (int y = 0; y < size; ++y) {
        for (int x = 0; x < size; ++x) {
            const double height = at(x, y);
            const double light = height < SeaLevel ? 1.0 : Light(height, at(x + 1, y), at(x, y + 1));
            land.At(x, y) = Lit(GroundColour(climate, height), light);
        }
    }
    return land;
}

Picture MapPreview(int size, quint64 seed) {
    constexpr std::array<Colour, 4> players{{{214, 60, 48}, {58, 112, 206}, {240, 182, 50}, {84, 168, 84}}};
    Picture preview = Land(size, seed);
    Random random(seed);
    const int places = random.Between(2, 4);
    const double turn = random.Unit() * 6.28;
    for (int i = 0; i < places; ++i) {
        const double angle = turn + i * 6.2832 / places;
        const Place middle{0.5 + 0.33 * std::cos(angle), 0.5 + 0.33 * std::sin(angle)};
        FillDisc(preview, middle, 0.055, {255, 255, 255});
        FillDisc(preview, middle, 0.04, players.at(static_cast<size_t>(i)));
        FillDisc(preview, middle, 0.014, {255, 255, 255});
    }
    const int frame = std::max(1, size / 64);
    for (int y = 0; y < size; ++y)
        for (int x = 0; x < size; ++x)
            if (std::min({x, y, size - 1 - x, size - 1 - y}) < frame)
                preview.At(x, y) = {24, 32, 52};
    return preview;
}

Picture Metal(int size, quint64 seed) {
    constexpr std::array<Colour, 4> steels{{{120, 128, 138}, {104, 116, 92}, {150, 126, 96}, {96, 108, 132}}};
    const Colour steel = steels[seed % steels.size()];
    Picture metal(size, size);
    const int plate = std::max(8, size / 4), border = std::max(1, size / 96);
    for (int y = 0; y < size; ++y) {
        for (int x = 0; x < size; ++x) {
            const bool even = (x / plate + y / plate) % 2 == 0;
            const int fromLeft = x % plate, fromTop = y % plate;
            const double grain = even ? Noise(x * 0.8, y * 0.05, size, seed) : Noise(x * 0.05, y * 0.8, size, seed);
            double light = (even ? 1.0 : 0.86) + (grain - 0.5) * 0.22;
            light -= Fractal(x * 6.0 / size, y * 6.0 / size, 6, 3, seed + 7) * 0.3 - 0.15;
            light *= fromLeft < border || fromTop < border ? 1.3 : 1.0;
            light *= fromLeft >= plate - border || fromTop >= plate - border ? 0.55 : 1.0;
            metal.At(x, y) = Lit(steel, light);
        }
    }
    const double step = static_cast<double>(plate) / size;
    for (double y = 0; y < 1; y += step) {
        for (double x = 0; x < 1; x += step) {
            FillDisc(metal, {x + step * 0.14, y + step * 0.14}, step * 0.055, {40, 42, 48});
            FillDisc(metal, {x + step * 0.13, y + step * 0.13}, step * 0.042, {196, 200, 206});
        }
    }
    return metal;
}

Picture Sky(int size, quint64 seed) {
    struct Hour {
        Colour Zenith, Horizon, Sun, Hill;
    };

    constexpr std::array<Hour, 3> hours{{
        {{44, 96, 170}, {190, 216, 236}, {255, 250, 224}, {48, 70, 84}},
        {{52, 46, 102}, {246, 158, 92}, {255, 226, 150}, {44, 34, 56}},
        {{12, 18, 44}, {72, 92, 138}, {232, 236, 244}, {14, 20, 34}},
    }};
    const Hour& hour = hours[seed % hours.size()];
    Random random(seed);
    Picture sky(size, size);
    for (int y = 0; y < size; ++y) {
        for (int x = 0; x < size; ++x) {
            const double cloud = Fractal(x * 3.0 / size, y * 6.0 / size, 3, 5, seed);
            const Colour air = Blend(hour.Zenith, hour.Horizon, std::min(1.0, y * 1.3 / size));
            sky.At(x, y) = Blend(air, hour.Sun, std::clamp((cloud - 0.5) * 2.2, 0.0, 0.75));
        }
    }
    FillDisc(sky, {0.2 + random.Unit() * 0.6, 0.3 + random.Unit() * 0.2}, 0.07, hour.Sun);
    for (int x = 0; x < size; ++x) {
        const int far = static_cast<int>(size * (0.66 + 0.16 * Fractal(x * 4.0 / size, 0, 4, 3, seed + 3)));
        const int near = static_cast<int>(size * (0.76 + 0.2 * Fractal(x * 5.0 / size, 9, 5, 4, seed + 5)));
        for (int y = far; y < size; ++y)
            sky.At(x, y) = y < near ? Blend(hour.Hill, hour.Horizon, 0.35) : hour.Hill;
    }
    return sky;
}

Picture Wall(int size, quint64 seed) {
    constexpr std::array<Colour, 3> stones{{{158, 92, 70}, {140, 134, 122}, {176, 156, 116}}};
    const Colour stone = stones[seed % stones.size()];
    Picture wall(size, size);
    const int course = std::max(4, size / 8), joint = std::max(1, size / 64);
    for (int y = 0; y < size; ++y) {
        for (int x = 0; x < size; ++x) {
            const int row = y / course, shifted = x + (row % 2) * course;
            const bool mortar = y % course < joint || shifted % (2 * course) < joint;
            const auto brick = static_cast<quint64>(row) * 31 + static_cast<quint64>(shifted % size / (2 * course));
            const double tone = 0.8 + 0.35 * Random(seed * 977 + brick).Unit();
            const double grain = 0.85 + 0.3 * Fractal(x * 16.0 / size, y * 16.0 / size, 16, 3, seed);
            wall.At(x, y) = mortar ? Lit({122, 118, 110}, grain) : Lit(stone, tone * grain);
        }
    }
    return wall;
}

} // namespace Demo
