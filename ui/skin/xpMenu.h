// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The bar at the head of a group of a side menu, with a mark that tells whether the group is folded: checked is open.
#pragma once

#include <QAbstractButton>

class xpMenu : public QAbstractButton {
    Q_OBJECT
    Q_PROPERTY(QString Caption READ text WRITE SetCaption NOTIFY CaptionChanged)
public:
    explicit xpMenu(QWidget* parent = nullptr);

    void SetCaption(const QString& caption);

    [[nodiscard]] QSize sizeHint() const override;

Q_SIGNALS:
    void CaptionChanged(const QString& Caption);

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void PaintBar(QPainter& painter) const;
    void PaintMark(QPainter& painter) const;
};
