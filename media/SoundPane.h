// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// `MediaPlayer1`: play and stop, where the sound is, and why it is silent when it is.
#pragma once

#include "media/SoundPlayer.h"

#include <QTimer>
#include <QWidget>

class QLabel;
class QSlider;
class QToolButton;

class SoundPane : public QWidget {
    Q_OBJECT
public:
    explicit SoundPane(QWidget* parent = nullptr);

    /// The player outlives the pane.
    void Use(SoundPlayer* player);

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void Follow();
    void PlayOrStop();

    SoundPlayer* player_ = nullptr;
    QToolButton* play_;
    QSlider* position_;
    QLabel* time_;
    QLabel* reason_;
    QTimer look_;
};
