// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "install/WatchedCopy.h"

#include "platform/CopiedTime.h"
#include "platform/RuntimeError.h"
#include "platform/WriteAside.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 PieceSize = 1'048'576;

} // namespace

void WatchedCopy(const File& source, const FilePlace& to, const std::function<void(qint64)>& copied) {
    WriteAside target(to);
    const qint64 length = source.Length();
    for (qint64 done = 0; done < length;) {
        const qint64 piece = std::min(PieceSize, length - done);
        if (target.Out().CopyFrom(done, source, done, piece) != piece)
            throw RuntimeError(ErrorNumber::DeviceError, u"%1: breaks off"_s.arg(source.Name()));
        done += piece;
        copied(piece);
    }
    CopiedTime::Keep(source, target.Out());
    target.Commit(false);
}
