// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/look/Hint.h"

#include "ui/look/DrawnIcon.h"
#include "ui/look/ForReaders.h"
#include "ui/look/Style.h"

#include <QPainter>

#include <algorithm>

namespace {

constexpr int widest = 420;
constexpr int margin = 16;
constexpr int pictureSide = 48;
constexpr int gap = 8;
constexpr QColor quiet{84, 96, 120};

constexpr int headingFlags = Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap;

int HeightOf(const QFont& font, int width, const QString& text) {
    return text.isEmpty() ? 0
                          : QFontMetrics(font).boundingRect(0, 0, width, QWIDGETSIZE_MAX, headingFlags, text).height();
}

} // namespace

void DrawHint(QPainter& painter, const QRect& area, const Hint& hint) {
    if (hint.Text.isEmpty())
        return;
    const qsizetype lineEnd = hint.Text.indexOf(u'\n');
    const QString heading = hint.Text.left(lineEnd);
    const QString rest = lineEnd < 0 ? QString() : hint.Text.mid(lineEnd + 1);
    const QFont headingFont = Style::HeadingFont(13);
    const QFont textFont = Style::TextFont();
    const int width = std::min(widest, area.width() - 2 * margin);
    const int headingHeight = HeightOf(headingFont, width, heading);
    const int textHeight = HeightOf(textFont, width, rest);
    const QIcon icon = DrawnIcon::Named(hint.Picture);
    const bool pictured = DrawnIcon::Has(hint.Picture);
    const int all = (pictured ? pictureSide + gap : 0) + headingHeight + gap + textHeight;
    // A little above the middle, where the eye looks for it; where there is no room, from the top.
    int y = area.top() + std::max(margin, (area.height() - all) * 2 / 5);
    const int x = area.left() + (area.width() - width) / 2;
    if (pictured) {
        icon.paint(&painter, QRect(area.left() + (area.width() - pictureSide) / 2, y, pictureSide, pictureSide));
        y += pictureSide + gap;
    }
    painter.setFont(headingFont);
    painter.setPen(Style::Colour::Border);
    painter.drawText(QRect(x, y, width, headingHeight), headingFlags, heading);
    painter.setFont(textFont);
    painter.setPen(quiet);
    painter.drawText(QRect(x, y + headingHeight + gap, width, textHeight), headingFlags, rest);
}

void HintPane::SetHint(const Hint& hint) {
    hint_ = hint;
    ForReaders::SetRole(*this, QAccessible::StaticText);
    setAccessibleName(hint.Text);
    update();
}

void HintPane::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.fillRect(rect(), palette().base());
    DrawHint(painter, rect(), hint_);
}
