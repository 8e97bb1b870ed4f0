// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// A small animation that runs while something is being done: sheets that fly from one folder into another, or the
/// moving picture of a file.
#pragma once

#include <QWidget>

#include <memory>

class QMovie;

class BusyAnimation : public QWidget {
    Q_OBJECT
public:
    explicit BusyAnimation(QWidget* parent = nullptr);
    ~BusyAnimation() override;

    /// Plays a moving picture instead of the drawing; a file that is missing or no moving picture changes nothing.
    /// `path` is an inside path.
    void Load(const QString& path);

    [[nodiscard]] bool PlaysFile() const { return movie_ != nullptr; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void timerEvent(QTimerEvent* event) override;

private:
    std::unique_ptr<QMovie> movie_;
    int step_ = 0;
};
