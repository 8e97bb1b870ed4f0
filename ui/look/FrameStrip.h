// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// A moving picture out of a file: a PNG whose frames stand one below the other, with text fields that tell how many
/// there are ("Frames"), how long each stands ("Milliseconds") and how many pixels a point has ("Scale").
#pragma once

#include <QPixmap>
#include <QRectF>

#include <optional>

class QPainter;

class FrameStrip {
public:
    /// Nothing for a file (an inside path) that is missing, or no such picture.
    static std::optional<FrameStrip> Read(const QString& path);

    [[nodiscard]] int Frames() const { return frames_; }

    [[nodiscard]] int Milliseconds() const { return milliseconds_; }

    /// Of a frame, in points.
    [[nodiscard]] QSizeF Size() const;

    /// Draws a frame in the middle of `place`.
    void Paint(QPainter& painter, const QRectF& place, int frame) const;

private:
    QPixmap strip_;
    int frames_ = 0;
    int milliseconds_ = 0;
    int scale_ = 1;
};
