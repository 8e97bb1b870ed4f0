// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// A picture stretched over the control, transparent parts on a checkered ground.
#pragma once

#include <QImage>
#include <QWidget>

class PictureView : public QWidget {
    Q_OBJECT
public:
    explicit PictureView(QWidget* parent = nullptr);

    void SetPicture(const QImage& picture);

    [[nodiscard]] bool IsEmpty() const { return picture_.isNull(); }

    [[nodiscard]] QSize sizeHint() const override { return size(); }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QImage picture_;
};
