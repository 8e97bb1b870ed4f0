// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// A world with a ZIP that is being written.
#pragma once

#include "install/zip/ZipClass.h"
#include "platform/Device.h"
#include "platform/Paths.h"
#include "platform/RuntimeError.h"
#include "tests/support/ArchiveBytes.h"
#include "tests/support/Printing.h"
#include "tests/support/Raised.h"
#include "tests/support/World.h"

#include <QFile>

#include <gtest/gtest.h>

/// The world's root is the ZIP's current directory.
class ZipTest : public testing::Test, protected RaisedError {
protected:
    ZipTest() { zip_.CurrentDirectory = world_.Root(); }

    [[nodiscard]] QString At(const QString& name) const { return world_.Root() + u'\\' + name; }

    /// Makes a file in the world; returns its inside path.
    QString Put(const QString& name, const QByteArray& bytes = "x") { return world_.WriteFile(name, bytes); }

    /// The same with the time of its last write, local time.
    QString PutAt(const QDateTime& time, const QString& name, const QByteArray& bytes) {
        QString path = Put(name, bytes);
        QFile file(Paths::ToNative(path));
        EXPECT_TRUE(file.open(QIODevice::ReadWrite) && file.setFileTime(time, QFileDevice::FileModificationTime));
        return path;
    }

    /// The archive as it would be written.
    [[nodiscard]] QByteArray Written() const {
        MemoryDevice device;
        zip_.Write(device);
        return device.Bytes();
    }

    [[nodiscard]] QStringList Names() const {
        QStringList names;
        for (qint32 index = 1; index <= zip_.FileCount(); ++index)
            names += zip_.FileName(index);
        return names;
    }

    World world_;
    ZipClass zip_;
};
