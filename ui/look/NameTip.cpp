// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/look/NameTip.h"

#include <QHelpEvent>
#include <QToolTip>
#include <QWidget>

void NameTip::Give(QWidget& control, const QString& name) {
    control.setAccessibleName(name);
    if (control.findChild<NameTip*>(QString(), Qt::FindDirectChildrenOnly) == nullptr)
        control.installEventFilter(new NameTip(&control));
}

bool NameTip::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::ToolTip)
        return QObject::eventFilter(watched, event);
    auto* const control = static_cast<QWidget*>(watched);
    QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), control->accessibleName(), control);
    return true;
}
