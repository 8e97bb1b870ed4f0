// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The manual beside the program, and the place in it that belongs to each window.
#pragma once

#include <QStringView>

#include <optional>
#include <span>

namespace Manual {

struct Place {
    QStringView Window; ///< the class of the window
    QStringView Page;
    QStringView Section; ///< of that page; empty: its beginning
};

/// Every window's.
std::span<const Place> Places();

/// Whether the class of a window has a place.
bool Has(QStringView window);

/// "manual" in the program's folder; an inside path without a trailing backslash.
QString Folder();

/// The file (inside path) that shows the place of a window, the first page for one that has none: in the manual that
/// the language file names (`Manual` in `[Infos]`), else in the English one. Nothing where there is neither.
std::optional<QString> FileFor(QStringView window);

} // namespace Manual
