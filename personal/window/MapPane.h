// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// What the group `mnuDetailsMaps` holds: name and size of the selected map, and its picture where the pane is high
/// enough for one. The controls stand in the window's form.
#pragma once

#include <QByteArray>
#include <QImage>
#include <QWidget>

class MapPane : public QWidget {
    Q_OBJECT
public:
    using QWidget::QWidget;

    /// A bitmap; one that can't be loaded leaves the old picture.
    void ShowPicture(const QByteArray& bitmap);

    /// The height of the whole group, pixels; the picture shows in one that has room for it.
    void SetGroupHeight(int height);

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void FitPicture();

    QSize picture_;
};
