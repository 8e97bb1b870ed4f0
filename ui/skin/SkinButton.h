// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// What the family's two push buttons have in common: the toolkit's button below, for keyboard, screen reader and
/// dialogs, and a face of the family's own above.
#pragma once

#include "ui/skin/Face.h"
#include "ui/skin/Pointer.h"

#include <QPushButton>

class SkinButton : public QPushButton {
public:
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    explicit SkinButton(QWidget* parent);

    [[nodiscard]] Skin::ButtonState State() const;

    bool event(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    Skin::Pointer pointer_;
};
