// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// F1 opens the manual in the system's browser, at the place of the window that has the keyboard.
#pragma once

#include <QObject>

class QWidget;

class ManualKey : public QObject {
    Q_OBJECT
public:
    using QObject::QObject;

    /// Opens the place of the window that `widget` is or is in; of a box or dialog that has none, that of the window
    /// over which it stands. What can't be opened is told.
    static void Open(const QWidget* widget);

    /// An application's filter: takes F1 wherever it is pressed.
    bool eventFilter(QObject* watched, QEvent* event) override;
};
