// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Ends the program once its first window has been painted.
#pragma once

#include <QObject>

class FirstPaint : public QObject {
public:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool painted_ = false;
};
