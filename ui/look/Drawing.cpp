// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/look/Drawing.h"

#include <QLinearGradient>
#include <QPainter>

#include <algorithm>

using namespace Qt::StringLiterals;

void DrawGradient(QPainter& painter, const QRect& area, const QColor& top, const QColor& bottom) {
    QLinearGradient gradient(area.topLeft(), area.bottomLeft());
    gradient.setColorAt(0, top);
    gradient.setColorAt(1, bottom);
    painter.fillRect(area, gradient);
}

QString CompactPath(const QString& path, int width, const QFontMetrics& metrics) {
    const auto fits = [&](const QString& text) { return metrics.horizontalAdvance(text) <= width; };
    if (fits(path))
        return path;
    const qsizetype slash = std::max(path.lastIndexOf(u'\\'), path.lastIndexOf(u'/'));
    const QString file = slash < 0 ? path : path.sliced(slash);
    // As much of the folder's beginning as there is room for, down to nothing.
    for (qsizetype kept = std::max<qsizetype>(slash, 0) - 1; kept >= 0; --kept) {
        if (QString shortened = path.first(kept) + u"..."_s + file; fits(shortened))
            return shortened;
    }
    return metrics.elidedText(slash < 0 ? file : u"..."_s + file, Qt::ElideRight, width);
}
