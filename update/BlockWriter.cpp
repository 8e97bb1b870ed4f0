// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "update/BlockWriter.h"

#include "platform/RuntimeError.h"

namespace {
constexpr qsizetype BlockSize = 262144;
} // namespace

template <typename Step>
void BlockWriter::Passing(Step&& step) {
    try {
        step();
    } catch (const RuntimeError& error) {
        if (failure_.isEmpty())
            failure_ = error.Description();
    }
}

BlockWriter::BlockWriter(const QString& path) {
    block_.reserve(BlockSize);
    Passing([&] { file_ = File::Open(path, File::Access::Replace); });
}

void BlockWriter::Append(const QByteArray& bytes) {
    block_ += bytes;
    if (block_.size() >= BlockSize)
        WriteBlock();
}

void BlockWriter::WriteBlock() {
    if (!file_.IsOpen())
        return block_.resize(0);
    Passing([&] {
        file_.Write(written_, block_);
        written_ += block_.size();
    });
    block_.resize(0);
}

void BlockWriter::Close() {
    WriteBlock();
    Passing([&] { file_.Close(); });
}
