// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The push button of the family's windows.
#pragma once

#include "ui/skin/EnterKey.h"
#include "ui/skin/SkinButton.h"

class UserControl1 : public SkinButton {
    Q_OBJECT
public:
    explicit UserControl1(QWidget* parent = nullptr);

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    Skin::EnterKey enter_;
};
