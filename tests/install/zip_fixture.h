// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Archives in a folder of their own, read through a ccZip.
#pragma once

#include "install/FileWatch.h"
#include "install/zip/ZipFailure.h"
#include "install/zip/ccZip.h"
#include "platform/Files.h"
#include "tests/install/ZipBytes.h"
#include "tests/platform/InAFolder.h"

class ZipReadTest : public InAFolder {
protected:
    /// Writes the archive and reads it.
    void Open(const QByteArray& bytes) { zip_.Init(Make(QStringLiteral("a.zip"), bytes)); }

    void Open(const std::vector<ZipBytes::Part>& parts, const ZipBytes::Ends& ends = {}) {
        Open(ZipBytes::Archive(parts, ends));
    }

    [[nodiscard]] QString Out() const { return At(QStringLiteral("out")); }

    qint32 Extract(const QString& name, bool honourDirs = false) { return zip_.Decompress(Out(), name, honourDirs); }

    /// The bytes of a file that was extracted.
    [[nodiscard]] QByteArray Got(const QString& name) const { return BytesOf(QStringLiteral("out\\") + name); }

    /// All that stands in a folder below that of the test, sorted.
    [[nodiscard]] QStringList Names(const QString& folder = QStringLiteral("out")) const {
        QStringList names = Files::ListFolder(At(folder) + QStringLiteral("\\*"), true);
        names.sort();
        return names;
    }

    ccZip zip_;
};
