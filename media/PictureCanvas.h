// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// A picture at any size, in a room that scrolls: with the wheel larger and smaller, with the mouse held moved about.
#pragma once

#include "media/PictureZoom.h"

#include <QAbstractScrollArea>
#include <QImage>

class PictureCanvas : public QAbstractScrollArea {
    Q_OBJECT
public:
    /// What stands behind a picture that can be seen through.
    enum class Ground { Checks, White, Black, AlphaOnly };

    explicit PictureCanvas(QWidget* parent = nullptr);

    void SetPicture(const QImage& picture);
    void SetGround(Ground ground);

    [[nodiscard]] const PictureZoom& Zoom() const { return zoom_; }

    void ZoomIn() { Change(&PictureZoom::In); }

    void ZoomOut() { Change(&PictureZoom::Out); }

    void ZoomToFit() { Change(&PictureZoom::Fit); }

    void ZoomToActual() { Change(&PictureZoom::Actual); }

Q_SIGNALS:
    void ZoomChanged();

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    void Change(void (PictureZoom::*change)());
    void ChangeAt(QPointF fixed, void (PictureZoom::*change)());
    void FollowRoom();
    /// What the picture takes, in the viewport's own units.
    [[nodiscard]] QRectF Area() const;

    QImage picture_;
    QImage shown_; ///< the picture, or its alpha channel as grey
    PictureZoom zoom_;
    Ground ground_ = Ground::Checks;
    QPoint dragged_; ///< where the mouse was last
};
