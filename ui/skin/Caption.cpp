// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/skin/Caption.h"

namespace {
constexpr int sideRoom = 3;
} // namespace

QStringList Skin::WrapWords(const QString& caption, int width, const std::function<int(const QString&)>& widthOf) {
    QStringList lines;
    for (const QString& word : caption.split(u' ')) {
        if (lines.isEmpty()) {
            lines += word;
            continue;
        }
        const QString longer = lines.constLast() + u' ' + word;
        if (widthOf(longer) > width - sideRoom)
            lines += word;
        else
            lines.last() = longer;
    }
    return lines;
}
