// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The figures of a download in the 32 bits that they are counted in, and as texts.
#pragma once

#include <QString>

class TransferFigures {
public:
    /// Begins at that time of day (seconds since midnight).
    void Start(double secondsOfDay);

    /// A chunk has come. `fileSize` is the length that the server told, in bytes.
    void Count(qsizetype bytes, qint32 fileSize, double secondsOfDay);

    /// 0 to 100, as far as it could be computed.
    [[nodiscard]] int Percent() const { return percent_; }

    [[nodiscard]] qint32 BytesPerSecond() const { return bytesPerSecond_; }

    [[nodiscard]] qint32 DownloadedBytes() const { return downloadedBytes_; }

    /// Kilobytes with two decimals, a blank, and "KB/s" in the user's language.
    [[nodiscard]] QString RateText() const;

    /// The time since the start as a time of day.
    [[nodiscard]] QString ElapsedText(double secondsOfDay) const;

    /// The time that is left, likewise. Raises 11 before the first byte.
    [[nodiscard]] QString RemainingText(double secondsOfDay, qint32 fileSize) const;

private:
    qint32 downloadedBytes_ = 0;
    qint32 bytesPerSecond_ = 0;
    int percent_ = 0;
    double transferStart_ = 0; ///< whole seconds since midnight
};
