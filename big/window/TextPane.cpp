// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "big/window/TextPane.h"

#include <QFontDatabase>
#include <QPaintEvent>
#include <QPainter>
#include <QTextBlock>

namespace {

constexpr int margin = 6;

} // namespace

TextPane::TextPane(QWidget* parent) : QPlainTextEdit(parent), numbers_(new QWidget(this)) {
    setReadOnly(true);
    setLineWrapMode(NoWrap);
    setTabChangesFocus(true);
    setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    numbers_->setObjectName(QStringLiteral("lineNumbers"));
    numbers_->installEventFilter(this);
    connect(this, &QPlainTextEdit::blockCountChanged, this, &TextPane::PlaceNumbers);
    connect(this, &QPlainTextEdit::updateRequest, numbers_, qOverload<>(&QWidget::update));
    PlaceNumbers();
}

void TextPane::ShowText(const QString& text) {
    setPlainText(text);
    moveCursor(QTextCursor::Start);
}

int TextPane::NumbersWidth() const {
    const auto digits = static_cast<int>(QString::number(blockCount()).size());
    return fontMetrics().horizontalAdvance(u'9') * digits + 2 * margin;
}

void TextPane::PlaceNumbers() {
    setViewportMargins(NumbersWidth(), 0, 0, 0);
    const QRect inside = contentsRect();
    numbers_->setGeometry(inside.left(), inside.top(), NumbersWidth(), inside.height());
}

void TextPane::resizeEvent(QResizeEvent* event) {
    QPlainTextEdit::resizeEvent(event);
    PlaceNumbers();
}

bool TextPane::eventFilter(QObject* watched, QEvent* event) {
    if (watched == numbers_ && event->type() == QEvent::Paint) {
        PaintNumbers(static_cast<QPaintEvent*>(event)->rect());
        return true;
    }
    return QPlainTextEdit::eventFilter(watched, event);
}

void TextPane::PaintNumbers(const QRect& area) {
    QPainter painter(numbers_);
    painter.fillRect(area, palette().color(QPalette::Window));
    painter.setFont(font());
    painter.setPen(palette().color(QPalette::Disabled, QPalette::WindowText));
    QTextBlock block = firstVisibleBlock();
    QRectF place = blockBoundingGeometry(block).translated(contentOffset());
    while (block.isValid() && place.top() <= area.bottom()) {
        painter.drawText(QRectF(0, place.top(), numbers_->width() - margin, fontMetrics().height()), Qt::AlignRight,
                         QString::number(block.blockNumber() + 1));
        block = block.next();
        place = blockBoundingGeometry(block).translated(contentOffset());
    }
}
