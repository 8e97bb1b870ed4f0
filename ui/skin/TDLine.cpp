// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/skin/TDLine.h"

#include "ui/look/Style.h"
#include "ui/skin/DevicePixels.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QPainter>

namespace {

QAccessibleInterface* MakeSeparator(const QString& /*className*/, QObject* object) {
    auto* const line = qobject_cast<TDLine*>(object);
    return line == nullptr ? nullptr : new QAccessibleWidget(line, QAccessible::Separator);
}

} // namespace

TDLine::TDLine(QWidget* parent) : QFrame(parent) {
    QAccessible::installFactory(MakeSeparator); // a second time changes nothing
    setFrameStyle(HLine | Plain);
    setFixedHeight(Rows);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void TDLine::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    const Skin::DevicePixels pixels(painter, rect());
    const int across = pixels.Area().width(), line = pixels.Line();
    painter.fillRect(0, 0, across, line, Style::Colour::DisabledBorder);
    painter.fillRect(0, line, across, line, Qt::white);
}
