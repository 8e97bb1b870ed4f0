// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/window/RecentFiles.h"

#include "core/LastTime.h"
#include "platform/Paths.h"

#include <QMenu>

using namespace Qt::StringLiterals;

void RecentFiles::Lead(QMenu& menu, const QString& kind, const std::function<void(const QString& path)>& open) {
    QObject::connect(&menu, &QMenu::aboutToShow, &menu, [&menu, kind, open] {
        menu.clear();
        int number = 0;
        for (const QString& path : LastTime::Files(kind)) {
            const QString name = Paths::ToNative(path).replace(u'&', u"&&"_s);
            const QAction* const entry = menu.addAction(u"&%1 %2"_s.arg(QString::number(++number % 10), name));
            QObject::connect(entry, &QAction::triggered, &menu, [path, open] { open(path); });
        }
        if (menu.isEmpty())
            menu.addAction(u"-"_s)->setEnabled(false);
    });
}
