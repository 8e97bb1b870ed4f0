// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// A separator: a dark line in row 0 and a light one below it in row 1, as wide as the control.
#pragma once

#include <QFrame>

class TDLine : public QFrame {
    Q_OBJECT
public:
    static constexpr int Rows = 2;

    explicit TDLine(QWidget* parent = nullptr);

    [[nodiscard]] QSize sizeHint() const override { return {0, Rows}; }

protected:
    void paintEvent(QPaintEvent* event) override;
};
