// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "media/PictureReaders.h"

#include <QBuffer>
#include <QImageReader>

#include <array>

namespace {

struct Kind {
    QByteArrayView Mark;
    const char* Format;
};

constexpr std::array<Kind, 4> Kinds{{{"BM", "bmp"}, {"GIF8", "gif"}, {"\xFF\xD8\xFF", "jpeg"}, {"\x89PNG", "png"}}};

/// The format that the bytes begin with. Readers for anything else are not let near them.
QByteArray FormatOf(const QByteArray& bytes) {
    for (const Kind& kind : Kinds) {
        if (bytes.startsWith(kind.Mark))
            return kind.Format;
    }
    return {};
}

} // namespace

QSize Pictures::QtSize(const QByteArray& bytes) {
    const QByteArray format = FormatOf(bytes);
    if (format.isEmpty())
        return {};
    QBuffer buffer;
    buffer.setData(bytes);
    return QImageReader(&buffer, format).size();
}

QImage Pictures::ReadWithQt(const QByteArray& bytes) {
    constexpr int mebibytes = 256;
    const QSize size = QtSize(bytes);
    if (!IsSane(size.width(), size.height()))
        return {};
    QBuffer buffer;
    buffer.setData(bytes);
    QImageReader::setAllocationLimit(mebibytes);
    QImageReader reader(&buffer, FormatOf(bytes));
    reader.setAutoDetectImageFormat(false);
    return reader.read();
}
