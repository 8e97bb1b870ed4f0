// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// A world in which to read and write them.
#pragma once

#include "big/format/mBIG.h"
#include "platform/NumberedFiles.h"
#include "tests/support/ArchiveBytes.h"
#include "tests/support/ScriptedHost.h"
#include "tests/support/World.h"

#include <gtest/gtest.h>

class ArchiveTest : public testing::Test {
protected:
    ArchiveTest();
    ~ArchiveTest() override;

    /// Makes a file in the world; returns its inside path.
    QString Put(const QString& name, const QByteArray& bytes) { return world_.WriteFile(name, bytes); }

    [[nodiscard]] QString At(const QString& name) const { return world_.Root() + u'\\' + name; }

    /// Adds a new record whose data is in a file of its own.
    void AddNew(const QString& name, const QByteArray& bytes);

    /// Why a save to that path raises; empty when it doesn't.
    static QString FailureOf(const QString& path);

    /// Saves the table to "out.big" as a variant and returns the bytes.
    QByteArray SavedAs(int version);

    World world_;
    ScriptedHost host_;

private:
    int sources_ = 0;
};
