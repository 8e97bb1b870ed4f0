// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// A test in a temporary folder of its own, with inside paths.
#pragma once

#include "platform/File.h"
#include "platform/Paths.h"
#include "platform/RuntimeError.h"
#include "tests/support/Printing.h"
#include "tests/support/Raised.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

class InAFolder : public testing::Test {
protected:
    [[nodiscard]] QString At(const QString& name) const { return Paths::FromNative(folder_.path()) + u'\\' + name; }

    /// Writes a file and returns its path.
    QString Make(const QString& name, QByteArrayView bytes) const {
        File file = File::Open(At(name), File::Access::Replace);
        file.Write(0, bytes);
        file.Close();
        return At(name);
    }

    [[nodiscard]] QByteArray BytesOf(const QString& name) const { return ReadWhole(At(name)); }

private:
    QTemporaryDir folder_;
};
