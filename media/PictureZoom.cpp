// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "media/PictureZoom.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace {

constexpr std::array<double, 17> Steps{
    PictureZoom::Smallest, 1.0 / 8, 1.0 / 6, 1.0 / 4, 1.0 / 3, 1.0 / 2, 2.0 / 3, 1, 1.5, 2, 3, 4, 6, 8, 12, 16,
    PictureZoom::Largest};

/// Two factors that nobody could tell from each other.
constexpr double Same = 1.001;

} // namespace

void PictureZoom::In() {
    const double now = Factor();
    const auto* const next = std::find_if(Steps.begin(), Steps.end(), [&](double step) { return step > now * Same; });
    Choose(next == Steps.end() ? std::max(now, Largest) : *next);
}

void PictureZoom::Out() {
    const double now = Factor();
    const auto next = std::find_if(Steps.rbegin(), Steps.rend(), [&](double step) { return step * Same < now; });
    Choose(next == Steps.rend() ? std::min(now, Smallest) : *next);
}

void PictureZoom::Actual() {
    Choose(1);
}

double PictureZoom::Factor() const {
    switch (mode_) {
    case Mode::Whole:
        return std::min(1.0, FactorToFit());
    case Mode::Fitted:
        return FactorToFit();
    case Mode::Chosen:
        break;
    }
    return chosen_;
}

QSize PictureZoom::Shown() const {
    if (picture_.isEmpty())
        return {};
    const auto scaled = [factor = Factor()](int side) {
        return std::max(1, static_cast<int>(std::lround(side * factor)));
    };
    return {scaled(picture_.width()), scaled(picture_.height())};
}

int PictureZoom::Percent() const {
    return std::max(1, static_cast<int>(std::lround(Factor() * 100)));
}

// A small picture in a large room is not blown up without end.
double PictureZoom::FactorToFit() const {
    if (picture_.isEmpty() || room_.isEmpty())
        return 1;
    return std::min({static_cast<double>(room_.width()) / picture_.width(),
                     static_cast<double>(room_.height()) / picture_.height(), Largest});
}

void PictureZoom::Choose(double factor) {
    mode_ = Mode::Chosen;
    chosen_ = factor;
}
