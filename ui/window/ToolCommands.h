// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The commands of a tool window, each as a menu entry and, for most, as a link of the side menu too.
#pragma once

#include <QString>

#include <functional>
#include <vector>

class QAction;
class QObject;
class SideLink;
class SidePane;

struct ToolCommand {
    QAction* Action;
    SideLink* Link;  ///< null where the side menu does without
    QString Picture; ///< the icon's name; empty for none
    std::function<void()> Run;
};

/// Gives the entries their pictures and what they do. A link is its entry once more: it is enabled with it and triggers
/// it. The commands end with `window`.
void ConnectCommands(QObject* window, const std::vector<ToolCommand>& commands);

/// Underlines the link under the pointer, and none while it is over the pane's ground.
void UnderlinePointed(const SidePane* pane, const std::vector<SideLink*>& links);
