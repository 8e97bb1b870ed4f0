// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// What the tests of the commands for BIG archives share.
#pragma once

#include "platform/Files.h"
#include "platform/Paths.h"
#include "tests/cli/Command.h"
#include "tests/support/ArchiveBytes.h"
#include "tests/support/Printing.h"
#include "tests/support/World.h"

#include <gtest/gtest.h>

class BigCommandTest : public testing::Test {
protected:
    /// Two entries, the second in a folder, as variant 0.
    QString TwoEntries() {
        return world_.WriteFile(QStringLiteral("two.big"), HeaderOf("BIGF", 2, 55) + Record(56, 5, "a.ini") +
                                                               Record(64, 2, "Data\\b.t") +
                                                               Bytes("L225\0\0\0\0\0hello\0\0\0hi"));
    }

    [[nodiscard]] QString At(const QString& name) const { return world_.Root() + u'\\' + name; }

    [[nodiscard]] QString Native(const QString& name) const { return Paths::ToNative(At(name)); }

    /// Runs a command that must succeed without a word on standard error.
    static QByteArray Output(const QStringList& arguments) {
        const Outcome outcome = RunCommand(arguments);
        EXPECT_EQ(outcome.Code, 0) << outcome.Error.constData();
        EXPECT_EQ(outcome.Error, QByteArray());
        return outcome.Output;
    }

    /// Runs a command that saves an archive whose data lie beside the directory's offsets; returns the line that says
    /// so on standard error.
    static QByteArray Shifted(const QStringList& arguments) {
        const Outcome outcome = RunCommand(arguments);
        EXPECT_EQ(outcome.Code, 0) << outcome.Error.constData();
        EXPECT_EQ(outcome.Output, QByteArray());
        EXPECT_TRUE(outcome.Error.count('\n') == 1 && outcome.Error.contains("--exact")) << outcome.Error.constData();
        return outcome.Error;
    }

    /// Runs a command that must fail; returns its one line.
    static QByteArray Failure(const QStringList& arguments, int code = 1) {
        const Outcome outcome = RunCommand(arguments);
        EXPECT_EQ(outcome.Code, code) << outcome.Error.constData();
        if (code == 1) {
            EXPECT_EQ(outcome.Error.count('\n'), 1) << outcome.Error.constData();
        }
        return outcome.Error;
    }

    World world_;
};
