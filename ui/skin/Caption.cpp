// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/skin/Caption.h"

namespace {
constexpr int sideRoom = 3;
} // namespace

QStringList Skin::WrapWords(const QString& caption, int width, const std::function<int(const QString&)>& widthOf) {
    const QStringList words = caption.split(u' ');
    QStringList lines{words.first()};
    for (const QString& word : words.sliced(1)) {
        const QString longer = lines.constLast() + u' ' + word;
        const bool hasText = !lines.constLast().trimmed().isEmpty();
        if (hasText && !word.isEmpty() && widthOf(longer) > width - sideRoom)
            lines += word;
        else
            lines.last() = longer;
    }
    return lines;
}
