// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/window/DroppedFiles.h"

#include "platform/Paths.h"

#include <QDir>
#include <QMimeData>
#include <QUrl>

QStringList DroppedFiles::In(const QMimeData& data) {
    QStringList paths;
    for (const QUrl& url : data.urls()) {
        if (url.isLocalFile())
            paths += Paths::FromNative(QDir::toNativeSeparators(url.toLocalFile()));
    }
    return paths;
}
