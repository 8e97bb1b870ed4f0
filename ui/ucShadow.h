// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The drop shadow around a window without a frame: a decoration that fills the window behind everything else.
#pragma once

#include <QWidget>

class ucShadow : public QWidget {
    Q_OBJECT
public:
    /// How far the shadow reaches around what throws it.
    static constexpr int Reach = 12;

    explicit ucShadow(QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;
};
