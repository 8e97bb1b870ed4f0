// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// What every window is looked at for, in every language that the suite brings along.
#pragma once

#include "Places.h"
#include "ui/window/ScreenKeeper.h"

#include <QAbstractButton>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QLayout>
#include <QtTest/QTest>

namespace WindowLook {

/// A row for each language file in the sources.
inline void Languages() {
    QTest::addColumn<QString>("file");
    const QDir folder(QString::fromUtf8(Places::Sources) + QStringLiteral("/data/languages"));
    for (const QFileInfo& file : folder.entryInfoList({QStringLiteral("*.lng")}))
        QTest::newRow(qPrintable(file.completeBaseName())) << file.filePath();
}

inline QByteArray TextsOf(const QString& file) {
    QFile language(file);
    if (!language.open(QIODevice::ReadOnly))
        qFatal("%s is missing", qPrintable(file));
    return language.readAll();
}

/// The name of a visible caption or button that has less room than its text takes, or stands outside of its window;
/// empty when there is none.
inline QString CutText(const QWidget& window) {
    for (const QWidget* const part : window.findChildren<QWidget*>()) {
        const auto* const label = qobject_cast<const QLabel*>(part);
        const bool isText = (label != nullptr && !part->inherits("ElidedLabel")) ||
                            qobject_cast<const QAbstractButton*>(part) != nullptr;
        if (!part->isVisible() || !isText)
            continue;
        const bool wraps = label != nullptr && label->wordWrap();
        const int height = wraps ? part->heightForWidth(part->width()) : part->sizeHint().height();
        if (part->height() < height || (!wraps && part->width() < part->sizeHint().width()) ||
            !window.rect().contains(QRect(part->mapTo(&window, QPoint()), part->size())))
            return part->objectName();
    }
    return {};
}

/// Whether the window can shrink to 800 x 600 and to 1920 x 1080 at scale 2, each less its frame.
inline bool FitsSmallScreens(const QWidget& window) {
    const QSize least = window.minimumSize().expandedTo(window.layout()->minimumSize());
    const auto fits = [&](const QSize& screen) {
        return least.boundedTo(screen.shrunkBy(ScreenKeeper::Frame)) == least;
    };
    return fits({800, 600}) && fits({960, 540});
}

} // namespace WindowLook
