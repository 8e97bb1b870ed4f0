// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The texts of a window in the user's language.
#pragma once

#include <QString>

class QWidget;

namespace mTraduction {

/// Gives every control of the window whose dynamic property "Tag" is not empty the text of that key, as its caption and
/// as its text, in the window's control order, then the window its title. Failures on a control are passed over.
void ApplyLanguage(QWidget* window);

/// A text with its line breaks (CR LF) as the toolkit shows them.
QString DisplayText(const QString& text);

} // namespace mTraduction
