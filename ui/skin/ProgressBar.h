// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The family's progress bar, which grows in whole blocks.
#pragma once

#include <QProgressBar>

class ProgressBar : public QProgressBar {
    Q_OBJECT
    Q_PROPERTY(int Progress READ value WRITE setValue)
public:
    /// From 0 to 100; what is set outside of that leaves the bar as it is.
    explicit ProgressBar(QWidget* parent = nullptr);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
};
