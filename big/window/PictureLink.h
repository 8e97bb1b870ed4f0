// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Makes a control that only shows something one that can be clicked, with the keyboard too.
#pragma once

#include "ui/skin/EnterKey.h"

#include <QAbstractButton>

class PictureLink : public QAbstractButton {
    Q_OBJECT
public:
    /// Covers the control, whose own mouse events it takes.
    explicit PictureLink(QWidget* covered);

protected:
    void paintEvent(QPaintEvent* event) override;
    bool event(QEvent* event) override;

private:
    Skin::EnterKey enter_;
};
