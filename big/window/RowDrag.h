// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Dragging rows out to another program as a list of files, which are made when they are dropped and not before.
#pragma once

#include <QStringList>

#include <functional>

class QPixmap;
class QWidget;

/// How a drag gets its files. All of them may be called long after the drag began; none after its source has gone.
struct DragFiles {
    std::function<QStringList()> Names;   ///< inside paths of what a drop will bring; makes nothing
    std::function<QStringList()> Extract; ///< makes the files and returns their inside paths
    std::function<void()> Ended;          ///< nobody needs the files any more
};

/// Runs the drag to its end. While the mouse button is down a target that asks is told the names; the files are made at
/// the drop, once: when the target asks then, or at the button's release if it has asked before.
void DragRows(QWidget* source, const QPixmap& picture, const DragFiles& files);
