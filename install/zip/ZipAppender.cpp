// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "install/zip/ZipAppender.h"

#include "platform/RuntimeError.h"

#include <limits>

namespace {

/// The next number would send readers to records that are not there.
constexpr qint64 MostOffset = std::numeric_limits<quint32>::max() - 1;
constexpr qsizetype Piece = 262144;

} // namespace

void ZipAppender::Append(const QByteArray& bytes) {
    if (gathered_.size() + bytes.size() > Piece)
        Flush();
    if (bytes.size() > Piece) {
        out_.Write(written_, bytes);
        written_ += bytes.size();
    } else {
        gathered_ += bytes;
    }
}

void ZipAppender::Flush() {
    if (gathered_.isEmpty())
        return;
    out_.Write(written_, gathered_);
    written_ += gathered_.size();
    gathered_.resize(0);
}

quint32 ZipAppender::Offset() const {
    const qint64 offset = written_ + gathered_.size();
    if (offset > MostOffset)
        throw RuntimeError(ErrorNumber::Overflow, QStringLiteral("%1: too long for a ZIP").arg(out_.Name()));
    return static_cast<quint32>(offset);
}
