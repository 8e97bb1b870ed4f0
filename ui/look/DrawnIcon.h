// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// An icon out of the program's own pictures, which are drawn in several sizes. A picture is read when it is first
/// shown, in the size that needs no scaling where there is one.
#pragma once

#include <QIcon>
#include <QIconEngine>
#include <QString>

class DrawnIcon : public QIconEngine {
public:
    /// Names of pictures in :/art/icons, such as "folder".
    DrawnIcon(QString picture, QString selectedPicture);

    /// An icon of one picture, such as "new" or "folder".
    static QIcon Named(const QString& name);

    /// Whether there is a picture of that name.
    static bool Has(const QString& name);

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override;
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override;
    QPixmap scaledPixmap(const QSize& size, QIcon::Mode mode, QIcon::State state, qreal scale) override;
    [[nodiscard]] QIconEngine* clone() const override;

private:
    QString picture_;
    QString selectedPicture_;
};
