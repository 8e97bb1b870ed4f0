// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// How large a picture is shown in the room that there is, without any control. Pixels are those of the screen.
#pragma once

#include <QSize>

class PictureZoom {
public:
    enum class Mode {
        Whole,  ///< as it is, or smaller where it would not fit
        Fitted, ///< as large as the room, smaller or larger
        Chosen  ///< by the user
    };

    static constexpr double Smallest = 1.0 / 16;
    static constexpr double Largest = 32;

    void SetPicture(QSize picture) { picture_ = picture; }

    void SetRoom(QSize room) { room_ = room; }

    /// The next larger or smaller of the steps, from whatever the picture is shown at now.
    void In();
    void Out();

    void Fit() { mode_ = Mode::Fitted; }

    void Actual();

    /// Screen pixels for one of the picture's.
    [[nodiscard]] double Factor() const;
    /// What the picture takes; at least one pixel a side.
    [[nodiscard]] QSize Shown() const;
    [[nodiscard]] int Percent() const;

private:
    [[nodiscard]] double FactorToFit() const;
    void Choose(double factor);

    QSize picture_;
    QSize room_;
    Mode mode_ = Mode::Whole;
    double chosen_ = 1;
};
