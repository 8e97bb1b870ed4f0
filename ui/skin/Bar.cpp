// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/skin/Bar.h"

#include <algorithm>
#include <cmath>

Skin::BarParts Skin::PartsOfBar(const QSize& size) {
    constexpr int above = 3;
    return {.First = {0, 0, BarEnd, size.height()},
            .Inner = {BarEnd, above, std::max(0, size.width() - 2 * BarEnd), std::max(0, size.height() - 2 * above)},
            .Second = {size.width() - BarEnd, 0, BarEnd, size.height()}};
}

int Skin::ClipWidth(int progress, int innerWidth) {
    constexpr double whole = 100;
    return static_cast<int>(std::lrint(progress / whole * innerWidth / BlockWidth)) * BlockWidth;
}

Skin::HeadingParts Skin::PartsOfHeading(int width) {
    const int middle = std::max(0, width - 2 * HeadingEnd);
    return {.Left = {0, 0, HeadingEnd, HeadingHeight},
            .Top = {HeadingEnd, 0, middle, HeadingHeight},
            .Right = {width - HeadingEnd, 0, HeadingEnd, HeadingHeight}};
}
