// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/WriteAside.h"

#include "platform/Paths.h"

QString WriteAside::AsidePath() const {
    return Paths::FromNative(aside_);
}

void WriteWhole(const QString& path, QByteArrayView bytes) {
    WriteAside aside(path);
    aside.Out().Write(0, bytes);
    aside.Commit();
}
