// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Writes an archive's pieces to a device, one behind the other.
#pragma once

#include "platform/Device.h"

/// Small pieces go out together: call Flush behind the last.
class ZipAppender {
public:
    explicit ZipAppender(Device& out) : out_(out) {}

    void Append(const QByteArray& bytes);
    void Flush();

    /// Where the next piece goes. Raises 6 from 4 GiB on, which the records can't say.
    [[nodiscard]] quint32 Offset() const;

private:
    Device& out_;
    QByteArray gathered_;
    qint64 written_ = 0;
};
