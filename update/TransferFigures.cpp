// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "update/TransferFigures.h"

#include "core/mTraduction.h"
#include "platform/Clock.h"
#include "platform/RuntimeError.h"

#include <QLocale>

#include <cmath>
#include <limits>

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 Most = std::numeric_limits<qint32>::max();
constexpr double KiloByte = 1024;

/// Halves go to the even neighbour.
double Rounded(double number) {
    return std::nearbyint(number);
}

} // namespace

void TransferFigures::Start(double secondsOfDay) {
    transferStart_ = Rounded(secondsOfDay);
}

void TransferFigures::Count(qsizetype bytes, qint32 fileSize, double secondsOfDay) {
    // Each step that leaves 32 bits is passed over, and its figure stays. This is meant.
    if (downloadedBytes_ + bytes <= Most)
        downloadedBytes_ += static_cast<qint32>(bytes);
    constexpr qint64 hundred = 100;
    if (const qint64 product = downloadedBytes_ * hundred; product <= Most && fileSize != 0) {
        const qint64 percent = product / fileSize;
        if (percent >= 0 && percent <= hundred)
            percent_ = static_cast<int>(percent);
    }
    // The start is a rounded second: the first half second may give a negative rate, or none. This is meant.
    const double seconds = secondsOfDay - transferStart_;
    const double rate = seconds == 0 ? std::numeric_limits<double>::infinity() : Rounded(downloadedBytes_ / seconds);
    if (std::abs(rate) <= static_cast<double>(Most))
        bytesPerSecond_ = static_cast<qint32>(rate);
}

QString TransferFigures::RateText() const {
    constexpr double hundredths = 100;
    const double kiloBytes = std::round(bytesPerSecond_ / KiloByte * hundredths) / hundredths;
    QLocale locale;
    locale.setNumberOptions(QLocale::OmitGroupSeparator);
    return locale.toString(kiloBytes, 'f', 2) + u' ' + mTraduction::GetText(u"KiloBytes"_s) + u'/' +
           mTraduction::GetText(u"Seconds"_s);
}

QString TransferFigures::ElapsedText(double secondsOfDay) const {
    // Across midnight the difference is negative, and its magnitude is shown. This is meant.
    return Clock::TimeOfDay(Rounded(secondsOfDay - transferStart_));
}

QString TransferFigures::RemainingText(double secondsOfDay, qint32 fileSize) const {
    // Before the first byte the program ends here. This is meant.
    if (downloadedBytes_ == 0)
        throw RuntimeError(ErrorNumber::DivisionByZero, u"Division by zero"_s);
    const double elapsed = secondsOfDay - transferStart_;
    return Clock::TimeOfDay(Rounded(elapsed - elapsed * fileSize / downloadedBytes_));
}
