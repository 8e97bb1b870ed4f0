// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// A file that is written in small pieces and reaches the disk in large ones. What can't be written is passed over.
#pragma once

#include "platform/File.h"

class BlockWriter {
public:
    /// A file that stands at `path`, an inside path, is cut to nothing.
    explicit BlockWriter(const QString& path);

    void Append(const QByteArray& bytes);

    /// Writes what is left and closes the file.
    void Close();

    /// Why the file is not whole, for a person; empty when it is.
    [[nodiscard]] const QString& Failure() const { return failure_; }

private:
    void WriteBlock();

    template <typename Step>
    void Passing(Step&& step);

    File file_;
    QByteArray block_;
    qint64 written_ = 0;
    QString failure_;
};
