// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Each command of a tool's window by each way that leads to it: its entry in a menu, its link, its key.
#pragma once

#include "ui/window/SideMenu.h"

#include <QAction>
#include <QApplication>
#include <QMenu>
#include <QTest>

#include <algorithm>
#include <functional>
#include <vector>

namespace EveryWay {

enum Way { ByMenu, ByLink, ByKey };

} // namespace EveryWay

struct CommandWays {
    const char* Action;
    int Link; ///< of the array Label2; -1 where there is none
    std::function<void()> Prepare;
    std::function<bool()> Done;
    std::vector<int> Without{}; ///< ways that the command lacks
};

namespace EveryWay {

/// A row for each command and way, for tests whose columns are "command" and "way".
inline void AddRows(const std::vector<CommandWays>& commands) {
    QTest::addColumn<int>("command");
    QTest::addColumn<int>("way");
    for (std::size_t command = 0; command < commands.size(); ++command) {
        const auto add = [&](Way way, const char* text) {
            const CommandWays& ways = commands[command];
            if (std::ranges::find(ways.Without, way) == ways.Without.end())
                QTest::addRow("%s %s", ways.Action, text) << static_cast<int>(command) << static_cast<int>(way);
        };
        add(ByMenu, "by menu");
        add(ByKey, "by key");
        if (commands[command].Link >= 0)
            add(ByLink, "by link");
    }
}

/// The names of the window's menu entries and links that no command of the table has.
inline QStringList Unlisted(const QWidget& window, const std::vector<CommandWays>& commands) {
    QStringList unlisted;
    for (const QMenu* menu : window.findChildren<QMenu*>())
        for (const QAction* action : menu->actions())
            if (action->menu() == nullptr && !action->isSeparator())
                unlisted += action->objectName();
    for (const SideLink* link : window.findChildren<SideLink*>())
        unlisted += link->objectName();
    for (const CommandWays& command : commands) {
        unlisted.removeAll(QString::fromLatin1(command.Action));
        unlisted.removeAll(QStringLiteral("Label2_%1").arg(command.Link));
    }
    unlisted.removeDuplicates();
    return unlisted;
}

inline void ClickInMenu(const QWidget& window, QAction* action) {
    for (QMenu* menu : window.findChildren<QMenu*>()) {
        if (!menu->actions().contains(action))
            continue;
        menu->popup(window.mapToGlobal(QPoint(0, 0)));
        return QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(action).center());
    }
    QFAIL("the entry is in no menu");
}

inline void Use(const QWidget& window, const CommandWays& command, int way) {
    auto* const action = window.findChild<QAction*>(QString::fromLatin1(command.Action));
    QVERIFY(action != nullptr);
    QVERIFY(action->isEnabled());
    switch (way) {
    case ByMenu:
        return ClickInMenu(window, action);
    case ByLink:
        return QTest::mouseClick(window.findChild<SideLink*>(QStringLiteral("Label2_%1").arg(command.Link)),
                                 Qt::LeftButton);
    default:
        const QKeyCombination key = action->shortcut()[0];
        return QTest::keyClick(QApplication::focusWidget(), key.key(), key.keyboardModifiers());
    }
}

} // namespace EveryWay
