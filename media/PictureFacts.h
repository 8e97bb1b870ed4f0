// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// What the head of a picture file tells of how it is kept, for a person who judges it.
#pragma once

#include <QByteArrayView>
#include <QString>

struct PictureFacts {
    /// As many bytes of a file are enough.
    static constexpr qint64 HeadLength = 512;

    QString Format;  ///< "DXT5", "TGA 32 bits"; empty for what nobody knows
    int Mipmaps = 0; ///< with the picture itself; 0 where the file says nothing of them

    /// From the first bytes of a file; the name tells the kind where the bytes don't.
    static PictureFacts Of(QByteArrayView head, const QString& name);

    bool operator==(const PictureFacts&) const = default;
};
