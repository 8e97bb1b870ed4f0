// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Windows that open as they were left: their size and place, their columns and their splitters, for each screen.
#pragma once

#include <QObject>

class QWidget;

class WindowPlace : public QObject {
    Q_OBJECT
public:
    /// Known by the window's object name from now on. To be called before it is first shown, when its controls are all
    /// there; columns and splitters are those of its lists and boxes that have a name.
    static void Remember(QWidget& window);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    explicit WindowPlace(QWidget& window);

    void Restore();
    void Save();

    QWidget& window_;
};
