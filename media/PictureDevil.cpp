// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "media/PictureReaders.h"

#include <IL/il.h>

#include <cstring>

namespace {

/// The library's current image, for the length of a block.
class Image {
public:
    Image() {
        ilGenImages(1, &name_);
        ilBindImage(name_);
    }

    ~Image() { ilDeleteImages(1, &name_); }

    Image(const Image&) = delete;
    Image& operator=(const Image&) = delete;

private:
    ILuint name_ = 0;
};

bool Start() {
    ilInit();
    ilEnable(IL_ORIGIN_SET);
    ilOriginFunc(IL_ORIGIN_UPPER_LEFT);
    return true;
}

bool Load(const QByteArray& bytes, const QString& name) {
    const auto size = static_cast<ILuint>(bytes.size());
    const ILenum byName = ilTypeFromExt(name.toUtf8().constData());
    if (byName != IL_TYPE_UNKNOWN && ilLoadL(byName, bytes.constData(), size) != IL_FALSE)
        return true;
    const ILenum byBytes = ilDetermineTypeL(bytes.constData(), size);
    return byBytes != IL_TYPE_UNKNOWN && byBytes != byName && ilLoadL(byBytes, bytes.constData(), size) != IL_FALSE;
}

} // namespace

QImage Pictures::ReadWithDevil(const QByteArray& bytes, const QString& name) {
    [[maybe_unused]] static const bool started = Start();
    const Image image;
    if (bytes.isEmpty() || !Load(bytes, name))
        return {};
    const int width = ilGetInteger(IL_IMAGE_WIDTH);
    const int height = ilGetInteger(IL_IMAGE_HEIGHT);
    if (!IsSane(width, height) || ilConvertImage(IL_BGRA, IL_UNSIGNED_BYTE) == IL_FALSE)
        return {};
    QImage picture(width, height, QImage::Format_ARGB32);
    std::memcpy(picture.bits(), ilGetData(), static_cast<std::size_t>(picture.sizeInBytes()));
    return picture;
}
