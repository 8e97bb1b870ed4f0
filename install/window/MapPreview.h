// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The room for the preview of a map: its child `Image1` fills it in the picture's own shape.
#pragma once

#include <QByteArray>
#include <QSize>
#include <QWidget>

class PictureView;

class MapPreview : public QWidget {
    Q_OBJECT
public:
    explicit MapPreview(QWidget* parent = nullptr);

    /// A bitmap's bytes; one that can't be loaded, or none, hides the picture.
    void ShowPicture(const QByteArray& bitmap);

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void Fit();

    PictureView* image_;
    QSize picture_;
};
