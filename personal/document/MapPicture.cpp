// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "personal/document/MapPicture.h"

#include "core/ProgramFolders.h"
#include "media/PictureDecoder.h"
#include "platform/File.h"
#include "platform/Files.h"
#include "platform/RuntimeError.h"

#include <utility>

using namespace Qt::StringLiterals;

MapPicture::MapPicture(std::function<void(const QByteArray&)> came) : came_(std::move(came)) {}

MapPicture::~MapPicture() {
    Abandon();
}

void MapPicture::Use(PictureDecoder* decoder) {
    Abandon();
    decoder_ = decoder;
}

void MapPicture::Prepare() {
    if (decoder_ != nullptr)
        decoder_->Prepare();
}

void MapPicture::Show(const QString& picture) {
    Abandon();
    if (decoder_ == nullptr)
        return;
    Ignoring([] { Files::MakeFolders(ProgramFolders::ScratchFolder()); });
    bitmap_ = ProgramFolders::ScratchFolder() + u"\\TGA.bmp"_s;
    // What an earlier day left would show in place of a picture that is not written.
    Ignoring([&] { Files::DeleteForced(bitmap_); });
    decoder_->Decode(picture, bitmap_, [this](bool decoded) { Decoded(decoded); });
}

void MapPicture::Abandon() {
    if (bitmap_.isEmpty())
        return;
    decoder_->Abandon();
    Decoded(false);
}

void MapPicture::Decoded(bool decoded) {
    const QString path = std::exchange(bitmap_, {});
    QByteArray bitmap;
    if (decoded)
        Ignoring([&] { bitmap = ReadWhole(path); });
    Ignoring([&] { Files::DeleteForced(path); });
    // What can't be loaded leaves the picture before it. This is meant.
    if (bitmap.startsWith("BM"))
        came_(bitmap);
}
