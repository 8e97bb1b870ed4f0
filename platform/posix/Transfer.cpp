// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/posix/Transfer.h"

#include "platform/posix/Errors.h"

#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <utility>
#include <vector>

namespace {

constexpr qint64 BlockSize = qint64{256} * 1024;
/// Below this a read and a write are cheaper than asking the kernel to copy.
constexpr qint64 SmallCopy = qint64{64} * 1024;

qint64 CopyThroughMemory(int to, qint64 toOffset, int from, qint64 fromOffset, qint64 count, const QString& targetName,
                         const QString& sourceName) {
    thread_local std::vector<char> block(static_cast<std::size_t>(BlockSize));
    qint64 done = 0;
    while (done < count) {
        const qint64 wanted = std::min(count - done, BlockSize);
        const qint64 had = ReadFully(from, fromOffset + done, block.data(), wanted, sourceName);
        WriteFully(to, toOffset + done, block.data(), had, targetName);
        done += had;
        if (had < wanted)
            break;
    }
    return done;
}

} // namespace

Descriptor::~Descriptor() {
    if (number_ >= 0)
        ::close(number_);
}

Descriptor::Descriptor(Descriptor&& other) noexcept : number_(other.Release()) {}

Descriptor& Descriptor::operator=(Descriptor&& other) noexcept {
    std::swap(number_, other.number_);
    return *this;
}

int Descriptor::Release() {
    return std::exchange(number_, -1);
}

qint64 TransferBytes(int to, qint64 toOffset, int from, qint64 fromOffset, qint64 count, const QString& targetName,
                     const QString& sourceName) {
    qint64 done = 0;
    while (count >= SmallCopy && done < count) {
        loff_t in = fromOffset + done;
        loff_t out = toOffset + done;
        const ssize_t copied = ::copy_file_range(from, &in, to, &out, static_cast<std::size_t>(count - done), 0);
        if (copied == 0)
            return done;
        if (copied > 0)
            done += copied;
        else if (errno == ENOSPC || errno == EFBIG || errno == EDQUOT)
            RaiseErrno(errno, targetName);
        else if (errno != EINTR)
            break;
    }
    return done + CopyThroughMemory(to, toOffset + done, from, fromOffset + done, count - done, targetName, sourceName);
}

void WriteFully(int to, qint64 offset, const char* bytes, qint64 count, const QString& targetName) {
    qint64 done = 0;
    while (done < count) {
        const ssize_t written = ::pwrite(to, bytes + done, static_cast<std::size_t>(count - done), offset + done);
        if (written > 0)
            done += written;
        else if (written == 0)
            RaiseErrno(ENOSPC, targetName);
        else if (errno != EINTR)
            RaiseErrno(errno, targetName);
    }
}

qint64 ReadFully(int from, qint64 offset, char* bytes, qint64 count, const QString& sourceName) {
    qint64 done = 0;
    while (done < count) {
        const ssize_t had = ::pread(from, bytes + done, static_cast<std::size_t>(count - done), offset + done);
        if (had == 0)
            break;
        if (had > 0)
            done += had;
        else if (errno != EINTR)
            RaiseErrno(errno, sourceName);
    }
    return done;
}
