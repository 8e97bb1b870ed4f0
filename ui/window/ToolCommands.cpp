// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/window/ToolCommands.h"

#include "platform/CrashReport.h"
#include "ui/look/DrawnIcon.h"
#include "ui/window/SideMenu.h"

#include <QAction>

void ConnectCommands(QObject* window, const std::vector<ToolCommand>& commands) {
    for (const ToolCommand& command : commands) {
        if (!command.Picture.isEmpty())
            command.Action->setIcon(DrawnIcon::Named(command.Picture));
        QObject::connect(command.Action, &QAction::triggered, window, [window, command] {
            CrashReport::Note((window->objectName() + u'.' + command.Action->objectName()).toUtf8());
            command.Run();
        });
        if (command.Link == nullptr)
            continue;
        command.Link->setIcon(command.Action->icon());
        const auto follow = [link = command.Link, action = command.Action] { link->setEnabled(action->isEnabled()); };
        QObject::connect(command.Action, &QAction::enabledChanged, command.Link, follow);
        follow();
        QObject::connect(command.Link, &SideLink::clicked, command.Action, &QAction::trigger);
    }
}

void UnderlinePointed(const SidePane* pane, const std::vector<SideLink*>& links) {
    const auto underline = [links](const SideLink* pointed) {
        for (SideLink* link : links)
            link->SetUnderlined(link == pointed);
    };
    for (SideLink* link : links)
        QObject::connect(link, &SideLink::MouseMoved, link, [underline, link] { underline(link); });
    QObject::connect(pane, &SidePane::MouseMoved, pane, [underline] { underline(nullptr); });
}
