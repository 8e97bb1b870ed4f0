// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/look/ForReaders.h"

#include <QAccessibleWidget>
#include <QVariant>
#include <QWidget>

namespace {

constexpr const char* roleProperty = "roleForReaders";

class Control : public QAccessibleWidget {
public:
    Control(QWidget* control, QAccessible::Role role) : QAccessibleWidget(control, role) {}

    [[nodiscard]] QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        if (role() == QAccessible::NoRole)
            state.invisible = true;
        return state;
    }
};

QAccessibleInterface* Make(const QString& /*className*/, QObject* object) {
    const QVariant role = object->property(roleProperty);
    return role.isValid() && object->isWidgetType()
               ? new Control(static_cast<QWidget*>(object), static_cast<QAccessible::Role>(role.toInt()))
               : nullptr;
}

} // namespace

void ForReaders::SetRole(QWidget& control, QAccessible::Role role) {
    QAccessible::installFactory(Make); // a second time changes nothing
    // Who has asked for the control already got what the toolkit makes of it: a label's text alone makes it ask.
    if (QAccessibleInterface* const known = QAccessible::queryAccessibleInterface(&control))
        QAccessible::deleteAccessibleInterface(QAccessible::uniqueId(known));
    control.setProperty(roleProperty, int{role});
}

void ForReaders::Hide(QWidget& control) {
    SetRole(control, QAccessible::NoRole);
}
