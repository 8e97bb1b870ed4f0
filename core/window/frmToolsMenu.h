// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The program's home window: a picture with five text entries, moved by its background.
#pragma once

#include "ui/window/ScreenKeeper.h"

#include <QPixmap>
#include <QWidget>

#include <array>
#include <memory>

class PictureButton;
class QLabel;

namespace Ui {
class frmToolsMenu;
}

class frmToolsMenu : public QWidget, public ShrinkingWindow {
    Q_OBJECT
public:
    explicit frmToolsMenu(QWidget* parent = nullptr);
    ~frmToolsMenu() override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void ShrinkTo(const QSize& room) override;
    void Dress();
    void PlaceTexts();
    void EntryClicked(int index);
    void EntryHovered(int index);
    void PaintEntriesWhite();
    void EndProgram();

    std::unique_ptr<Ui::frmToolsMenu> ui_;
    std::array<PictureButton*, 5> entries_;
    std::array<QLabel*, 4> descriptions_;
    std::array<QLabel*, 4> shadows_;
    QPixmap picture_;
    QPoint heldAt_; ///< where the background is held while it is dragged, from the window's corner
};
