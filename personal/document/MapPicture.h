// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The picture of the selected map: its preview file, turned into a bitmap in the scratch folder, which is read and
/// deleted.
#pragma once

#include <QByteArray>
#include <QString>

#include <functional>

class PictureDecoder;

class MapPicture {
public:
    /// `came` gets the bitmap's bytes, at once or later. It is not called for a picture that can't be loaded.
    explicit MapPicture(std::function<void(const QByteArray& bitmap)> came);
    ~MapPicture();
    MapPicture(const MapPicture&) = delete;
    MapPicture& operator=(const MapPicture&) = delete;

    /// Outlives this or its use; without one (null) no picture comes.
    void Use(PictureDecoder* decoder);

    /// A picture may be asked for soon.
    void Prepare();

    /// Begins with a picture file (inside path); one that has not come yet never comes then.
    void Show(const QString& picture);
    void Abandon();

private:
    void Decoded(bool decoded);

    std::function<void(const QByteArray&)> came_;
    PictureDecoder* decoder_ = nullptr;
    QString bitmap_; ///< the file that the decoding under way writes; empty without one
};
