// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/windows/OpenedPages.h"

#include <QApplication>
#include <QDesktopServices>

namespace {
const auto Scheme = QStringLiteral("file");
} // namespace

OpenedPages::OpenedPages() {
    qApp->installEventFilter(&key_);
    QDesktopServices::setUrlHandler(Scheme, this, "Take");
}

OpenedPages::~OpenedPages() {
    QDesktopServices::unsetUrlHandler(Scheme);
}

void OpenedPages::Take(const QUrl& url) {
    Urls += url;
}
