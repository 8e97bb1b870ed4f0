// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "install/zip/ReadAhead.h"

#include <algorithm>

namespace {

constexpr qint64 Piece = 65536;

} // namespace

QByteArrayView ReadAhead::View(qint64 offset, qint64 count) {
    if (offset < start_ || offset - start_ > buffer_.size() - count) {
        const qint64 wanted = std::max(count, Piece);
        buffer_.resize(wanted);
        start_ = offset;
        qint64 had = 0;
        try {
            had = device_.ReadInto(offset, buffer_.data(), wanted);
        } catch (...) {
            buffer_.clear();
            throw;
        }
        buffer_.truncate(had);
    }
    const qint64 from = offset - start_;
    return QByteArrayView(buffer_).sliced(from, std::min(count, buffer_.size() - from));
}
