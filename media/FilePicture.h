// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// A picture file that is shown: it is turned into a bitmap in a scratch folder, which is read and deleted.
#pragma once

#include <QByteArray>
#include <QString>

#include <functional>

class PictureDecoder;

class FilePicture {
public:
    /// `came` gets the bitmap's bytes, at once or later; none for a picture that can't be loaded.
    explicit FilePicture(std::function<void(const QByteArray& bitmap)> came);
    ~FilePicture();
    FilePicture(const FilePicture&) = delete;
    FilePicture& operator=(const FilePicture&) = delete;

    /// Outlives this or its use; without one (null) no picture comes.
    void Use(PictureDecoder* decoder);

    /// A picture may be asked for soon.
    void Prepare();

    /// Begins with a picture file; one that has not come yet never comes then. The bitmap stands in the folder
    /// `scratch` as TGA.bmp (inside paths, no trailing backslash).
    void Show(const QString& picture, const QString& scratch);
    void Abandon();

private:
    QByteArray Take(bool decoded);

    std::function<void(const QByteArray&)> came_;
    PictureDecoder* decoder_ = nullptr;
    QString bitmap_; ///< the file that the decoding under way writes; empty without one
};
