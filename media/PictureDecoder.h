// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// What turns a picture file into a bitmap.
#pragma once

#include <QString>

#include <functional>

/// Turns a picture file of any kind into a bitmap.
class PictureDecoder {
public:
    /// Whether the bitmap was written.
    using Done = std::function<void(bool)>;

    PictureDecoder() = default;
    PictureDecoder(const PictureDecoder&) = delete;
    PictureDecoder& operator=(const PictureDecoder&) = delete;
    virtual ~PictureDecoder() = default;

    /// A picture may come soon.
    virtual void Prepare() = 0;
    /// Reads the file `source` and writes the file `bitmap` (inside paths), of 32 bits a pixel with alpha. `done` is
    /// called once, now or later; one decoding at a time.
    virtual void Decode(const QString& source, const QString& bitmap, Done done) = 0;
    /// Ends a decoding under way; its `done` is not called.
    virtual void Abandon() = 0;
};
