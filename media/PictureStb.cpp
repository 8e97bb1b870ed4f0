// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "media/PictureReaders.h"

#define STB_IMAGE_IMPLEMENTATION
#define STB_IMAGE_STATIC
#define STBI_MAX_DIMENSIONS 16384
#define STBI_NO_PIC
#define STBI_NO_PNM
#define STBI_NO_PSD
#define STBI_NO_STDIO
#include <stb_image.h>

#include <memory>

QSize Pictures::StbSize(const QByteArray& bytes) {
    int width = 0;
    int height = 0;
    int channels = 0;
    const bool known = stbi_info_from_memory(reinterpret_cast<const stbi_uc*>(bytes.constData()),
                                             static_cast<int>(bytes.size()), &width, &height, &channels) != 0;
    return known ? QSize(width, height) : QSize();
}

QImage Pictures::ReadWithStb(const QByteArray& bytes) {
    constexpr int channels = 4;
    QSize size = StbSize(bytes);
    if (!IsSane(size.width(), size.height()))
        return {};
    int found = 0;
    const std::unique_ptr<stbi_uc, decltype(&stbi_image_free)> pixels(
        stbi_load_from_memory(reinterpret_cast<const stbi_uc*>(bytes.constData()), static_cast<int>(bytes.size()),
                              &size.rwidth(), &size.rheight(), &found, channels),
        stbi_image_free);
    if (!pixels)
        return {};
    return QImage(pixels.get(), size.width(), size.height(), qsizetype{channels} * size.width(),
                  QImage::Format_RGBA8888)
        .convertToFormat(QImage::Format_ARGB32);
}
