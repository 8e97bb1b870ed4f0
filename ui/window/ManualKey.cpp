// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/window/ManualKey.h"

#include "core/Host.h"
#include "core/Manual.h"
#include "core/mTraduction.h"
#include "platform/Paths.h"

#include <QDesktopServices>
#include <QKeyEvent>
#include <QUrl>
#include <QWidget>

using namespace Qt::StringLiterals;

namespace {

/// The class of the nearest window that has a place; empty without one.
QString KnownWindow(const QWidget* widget) {
    for (; widget != nullptr; widget = widget->parentWidget()) {
        QString name = QString::fromLatin1(widget->metaObject()->className());
        if (Manual::Has(name))
            return name;
    }
    return {};
}

} // namespace

void ManualKey::Open(const QWidget* widget) {
    const std::optional<QString> file = Manual::FileFor(KnownWindow(widget));
    if (file && QDesktopServices::openUrl(QUrl::fromLocalFile(Paths::ToNative(*file))))
        return;
    const QString place = Paths::ToNative(file.value_or(Manual::Folder()));
    Host::Current().Message(mTraduction::GetText(u"ManualNotOpened"_s).replace(u"%1"_s, place),
                            Host::Icon::Exclamation);
}

bool ManualKey::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress || !watched->isWidgetType())
        return QObject::eventFilter(watched, event);
    const auto* const key = static_cast<QKeyEvent*>(event);
    if (key->key() != Qt::Key_F1 || key->modifiers() != Qt::NoModifier)
        return false;
    if (!key->isAutoRepeat())
        Open(static_cast<QWidget*>(watched));
    return true;
}
