// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The look of the family of windows: colours, fonts, and what the toolkit's own controls are dressed in.
#pragma once

#include "ui/skin/Colours.h"

#include <QColor>
#include <QFont>

class QApplication;

namespace Style {

constexpr QColor FromBgr(Skin::Bgr colour) {
    constexpr Skin::Bgr part = 0xFF;
    return {static_cast<int>(colour & part), static_cast<int>(colour >> 8 & part),
            static_cast<int>(colour >> 16 & part)};
}

namespace Colour {
inline constexpr QColor Border = FromBgr(Skin::Colour::Border);
/// Of boxes with text and of lists; with the focus they have the border's colour.
inline constexpr QColor FieldBorder{127, 157, 185};
inline constexpr QColor GroupBorder{185, 205, 239};
inline constexpr QColor DisabledBorder = FromBgr(Skin::Colour::DisabledBorder);
inline constexpr QColor DisabledText = FromBgr(Skin::Colour::DisabledText);
inline constexpr QColor Face = FromBgr(Skin::Colour::Face);
inline constexpr QColor FaceBright = FromBgr(Skin::Colour::FaceBright);
inline constexpr QColor Hover = FromBgr(Skin::Colour::Hover);
inline constexpr QColor Focus = FromBgr(Skin::Colour::Focus);
inline constexpr QColor Selection{49, 106, 197};
inline constexpr QColor Link{0, 34, 128};
inline constexpr QColor Notice{255, 243, 220};
inline constexpr QColor SideMenuTop{227, 236, 250};
inline constexpr QColor SideMenuBottom{168, 192, 232};

// On the night-blue pictures.
inline constexpr QColor EntryHover{242, 142, 0};
inline constexpr QColor EntryPlain{255, 255, 255};
inline constexpr QColor TextOnPicture{206, 222, 243};
inline constexpr QColor ShadowOnPicture{0, 5, 18};
inline constexpr QColor DisabledOnPicture{112, 132, 162};
inline constexpr QColor FocusOnPicture{140, 174, 231, 210};
inline constexpr QColor FocusOnPictureFill{140, 174, 231, 36};
} // namespace Colour

/// Franklin Gothic Medium, or the nearest face there is: headings and the entries of the tools menu.
QFont HeadingFont(qreal points);

/// Tahoma, or the nearest face there is: everything else.
QFont TextFont(qreal points = 9);

/// A link of a side menu: underlined while the pointer is over it.
QFont LinkFont(bool underlined);

/// Dresses the whole application. Called once, before the first window.
void Apply(QApplication& application);

} // namespace Style
