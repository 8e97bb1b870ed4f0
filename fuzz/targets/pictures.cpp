// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The suite's own readers of pictures, and the bitmap that their child process writes.
#include "fuzz/Fuzzing.h"

#include "media/PictureReaders.h"

using Fuzzing::Expect;

namespace {

void ExpectPicture(const QImage& picture, QSize claimed) {
    if (picture.isNull())
        return;
    Expect(picture.size() == claimed, "a picture has the size that its file claims");
    Expect(Pictures::ToBitmap(picture).size() > picture.sizeInBytes(), "a bitmap holds all pixels");
}

void Run(const QByteArray& bytes) {
    ExpectPicture(Pictures::ReadDds(bytes), Pictures::DdsSize(bytes));
    ExpectPicture(Pictures::ReadPfm(bytes), Pictures::PfmSize(bytes));
}

const FuzzTarget target("pictures", Run);

} // namespace
