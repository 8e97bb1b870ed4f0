// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// What the program asks of its decoding child, and the line that says it.
#pragma once

#include <QByteArray>
#include <QString>

/// A file to decode and the file that is written (inside paths): a bitmap of 32 bits a pixel, or samples as media/Pcm.h
/// tells.
struct MediaJob {
    enum class Kind { Picture, Sound };

    Kind What = Kind::Picture;
    QString Source;
    QString Target;

    /// The kind and two paths in Base64, with the line's end. The child knows no drives of ours: it gets the paths that
    /// the system sees.
    [[nodiscard]] QByteArray Line() const;

    /// The way back. A word that is missing or damaged gives a path that names nothing.
    static MediaJob OfLine(const QByteArray& line);
};
