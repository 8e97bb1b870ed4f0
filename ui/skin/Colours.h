// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The colours that the family's controls share with what stands around them, written 0xBBGGRR.
#pragma once

#include <QtGlobal>

namespace Skin {

using Bgr = quint32;

namespace Colour {
inline constexpr Bgr Border = 0x733200;
inline constexpr Bgr DisabledBorder = 0xBDC7CE;
inline constexpr Bgr DisabledText = 0x94A2A5;
inline constexpr Bgr Face = 0xE7EBEF;
inline constexpr Bgr FaceBright = 0xF7F7F7;
inline constexpr Bgr FaceDisabled = 0xEFF7F7;
inline constexpr Bgr Hover = 0x31B2FF;
inline constexpr Bgr Focus = 0xE7AE8C;
} // namespace Colour

} // namespace Skin
