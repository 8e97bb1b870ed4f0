// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// A device that breaks: for tests of what is left behind when a write or a read fails.
#pragma once

#include "platform/Device.h"
#include "platform/RuntimeError.h"

#include <limits>

/// Hands everything on to another device until its last good write or read; every later one raises. Setting the length
/// counts as a write.
class FailingDevice : public Device {
public:
    static constexpr int Always = std::numeric_limits<int>::max();

    explicit FailingDevice(Device& inner, int goodWrites = Always, int error = ErrorNumber::DiskFull)
        : inner_(inner),
          goodWrites_(goodWrites),
          error_(error) {}

    void FailReadsAfter(int goodReads) { goodReads_ = goodReads; }

    /// How many writes were asked for, the failed ones too.
    [[nodiscard]] int Writes() const { return writes_; }

    [[nodiscard]] int Reads() const { return reads_; }

    [[nodiscard]] qint64 Length() const override { return inner_.Length(); }

    qint64 ReadInto(qint64 offset, char* bytes, qint64 count) const override {
        if (reads_++ >= goodReads_)
            throw RuntimeError(ErrorNumber::DeviceError, QStringLiteral("%1: can't be read").arg(Name()));
        return inner_.ReadInto(offset, bytes, count);
    }

    void Write(qint64 offset, QByteArrayView bytes) override {
        CountWrite();
        inner_.Write(offset, bytes);
    }

    void SetLength(qint64 length) override {
        CountWrite();
        inner_.SetLength(length);
    }

    [[nodiscard]] QString Name() const override { return inner_.Name(); }

private:
    void CountWrite() {
        if (writes_++ >= goodWrites_)
            throw RuntimeError(error_, QStringLiteral("%1: can't be written").arg(Name()));
    }

    Device& inner_;
    int goodWrites_;
    int error_;
    int goodReads_ = Always;
    int writes_ = 0;
    mutable int reads_ = 0;
};
