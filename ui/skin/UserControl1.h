// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The push button of the family's windows.
#pragma once

#include "ui/skin/SkinButton.h"

class UserControl1 : public SkinButton {
    Q_OBJECT
public:
    explicit UserControl1(QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    bool enterIsDown_ = false;
};
