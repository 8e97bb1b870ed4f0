// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The drop shadow of a window without a frame, to its right and below it: a decoration that fills the window.
#pragma once

#include <QWidget>

class ucShadow : public QWidget {
    Q_OBJECT
public:
    /// How far the shadow reaches, in pixels.
    static constexpr int Reach = 6;

    /// What a window with a shadow covers: what throws it and the shadow. As the window's mask it keeps the two corners
    /// free, and the shadow is a plain dark edge where windows can't be transparent.
    static QRegion Area(const QRect& window);

    explicit ucShadow(QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;
};
