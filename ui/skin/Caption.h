// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// How the family's push buttons set their captions.
#pragma once

#include <QString>
#include <QStringList>

#include <functional>

namespace Skin {

/// The caption's lines: words, split at blanks, of which one goes to a new line when with it the line would be wider
/// than the control's width less 3. A single word that is too wide stays in one line, and no line begins before
/// there is text in the one above. `widthOf` measures a text in the
/// unit of `width`.
QStringList WrapWords(const QString& caption, int width, const std::function<int(const QString&)>& widthOf);

} // namespace Skin
