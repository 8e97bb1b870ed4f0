// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The geometry of the progress bar and of the bar that heads a side menu.
#pragma once

#include <QRect>

namespace Skin {

/// A block of the progress bar with the gap behind it, in pixels.
inline constexpr int BlockWidth = 7;
/// Each of the pictures at the bar's two ends.
inline constexpr int BarEnd = 4;

/// A progress bar's two ends and the inner picture, which hides what lies outside of it.
struct BarParts {
    QRect First;
    QRect Inner;
    QRect Second;
};

/// The inner picture is 8 pixels narrower than the bar; the second end lies 4 pixels from the right.
BarParts PartsOfBar(const QSize& size);

/// How far the blocks reach at `progress` percent: whole blocks, rounded (a half to the even one). May be wider than
/// the inner picture, which hides the surplus.
int ClipWidth(int progress, int innerWidth);

/// A heading's left, stretched and right part in a bar of that width.
struct HeadingParts {
    QRect Left;
    QRect Top;
    QRect Right;
};

inline constexpr int HeadingHeight = 26;
inline constexpr int HeadingEnd = 4;

HeadingParts PartsOfHeading(int width);

} // namespace Skin
