// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "media/FilePicture.h"

#include "media/PictureDecoder.h"
#include "platform/File.h"
#include "platform/Files.h"
#include "platform/RuntimeError.h"

#include <utility>

using namespace Qt::StringLiterals;

FilePicture::FilePicture(std::function<void(const QByteArray&)> came) : came_(std::move(came)) {}

FilePicture::~FilePicture() {
    Abandon();
}

void FilePicture::Use(PictureDecoder* decoder) {
    Abandon();
    decoder_ = decoder;
}

void FilePicture::Prepare() {
    if (decoder_ != nullptr)
        decoder_->Prepare();
}

void FilePicture::Show(const QString& picture, const QString& scratch) {
    Abandon();
    if (decoder_ == nullptr)
        return;
    Ignoring([&] { Files::MakeFolders(scratch); });
    bitmap_ = scratch + u"\\TGA.bmp"_s;
    // What an earlier day left would show in place of a picture that is not written.
    Ignoring([&] { Files::DeleteForced(bitmap_); });
    decoder_->Decode(picture, bitmap_, [this](bool decoded) { came_(Take(decoded)); });
}

void FilePicture::Abandon() {
    if (bitmap_.isEmpty())
        return;
    decoder_->Abandon();
    Take(false);
}

QByteArray FilePicture::Take(bool decoded) {
    const QString path = std::exchange(bitmap_, {});
    QByteArray bitmap;
    if (decoded)
        Ignoring([&] { bitmap = ReadWhole(path); });
    Ignoring([&] { Files::DeleteForced(path); });
    return bitmap.startsWith("BM") ? bitmap : QByteArray();
}
