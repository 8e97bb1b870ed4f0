// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QObject>

#include <functional>
#include <vector>

class QWidget;

/// How long actions take until a widget that shows their outcome is painted.
class PaintTimes : public QObject {
public:
    explicit PaintTimes(QWidget& shown);

    void Time(const std::function<void()>& action);

    /// Prints the median and the longest time in milliseconds, and ends the program without closing its windows, which
    /// would ask about unsaved changes.
    [[noreturn]] void PrintAndEnd();

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool painted_ = false;
    std::vector<double> times_;
};
