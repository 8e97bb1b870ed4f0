// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// A small animation that runs while something is being done: the moving picture of a file, in a loop.
#pragma once

#include "ui/look/FrameStrip.h"

#include <QBasicTimer>
#include <QWidget>

class BusyAnimation : public QWidget {
    Q_OBJECT
public:
    using QWidget::QWidget;

    /// Plays this file from its beginning. `path` is an inside path; with a file that is missing or no moving picture
    /// the place stays empty.
    void Load(const QString& path);

    [[nodiscard]] bool PlaysFile() const { return strip_.has_value(); }

protected:
    void paintEvent(QPaintEvent* event) override;
    void timerEvent(QTimerEvent* event) override;

private:
    std::optional<FrameStrip> strip_;
    QBasicTimer timer_;
    int frame_ = 0;
};
