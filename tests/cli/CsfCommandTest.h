// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// String tables in a world of their own, for the commands that work on them.
#pragma once

#include "tests/cli/Command.h"
#include "tests/support/ArchiveBytes.h"
#include "tests/support/Printing.h"
#include "tests/support/World.h"

#include "platform/Paths.h"

#include <gtest/gtest.h>

/// A label with its string; the lengths have to be given as they stand in the file.
inline QByteArray Entry(const QByteArray& name, const QByteArray& value) {
    QByteArray bytes = " LBL" + Bytes("\1\0\0\0") + static_cast<char>(name.size()) + Bytes("\0\0\0") + name + " RTS" +
                       static_cast<char>(value.size()) + Bytes("\0\0\0");
    for (const char letter : value)
        bytes += QByteArray(1, static_cast<char>(~letter)) + '\xFF';
    return bytes;
}

inline QByteArray Head(char count, char language) {
    return " FSC" + Bytes("\3\0\0\0") + count + Bytes("\0\0\0") + count + Bytes("\0\0\0\0\0\0\0") + language +
           Bytes("\0\0\0");
}

class CsfCommands : public testing::Test {
protected:
    QString Put(const QString& name, const QByteArray& bytes) {
        world_.WriteFile(name, bytes);
        return Native(name);
    }

    /// Three entries, not in order, the last without a name.
    QString Three() {
        return Put(QStringLiteral("three.csf"),
                   Head(3, 3) + Entry("b", "2") + Entry("A:x", "\xE9\n\t\\") + Entry("", "3"));
    }

    [[nodiscard]] QString At(const QString& name) const { return world_.Root() + u'\\' + name; }

    [[nodiscard]] QString Native(const QString& name) const { return Paths::ToNative(At(name)); }

    [[nodiscard]] QByteArray Contents(const QString& name) const { return World::ReadFile(At(name)); }

    /// Runs a command that must succeed without a word on standard error.
    QByteArray Output(const QStringList& arguments) {
        const Outcome outcome = RunCommand(QStringList{QStringLiteral("csf")} + arguments);
        EXPECT_EQ(outcome.Code, 0) << outcome.Error.constData();
        EXPECT_EQ(outcome.Error, QByteArray());
        return outcome.Output;
    }

    /// Runs a command that must fail; returns its one line.
    QByteArray Failure(const QStringList& arguments, int code = 1) {
        const Outcome outcome = RunCommand(QStringList{QStringLiteral("csf")} + arguments);
        EXPECT_EQ(outcome.Code, code) << outcome.Error.constData();
        EXPECT_EQ(outcome.Output, QByteArray());
        if (code == 1) {
            EXPECT_EQ(outcome.Error.count('\n'), 1) << outcome.Error.constData();
        }
        return outcome.Error;
    }

    /// Runs a command that must end with 1 for what it found, without a word on standard error.
    QByteArray Findings(const QStringList& arguments) {
        const Outcome outcome = RunCommand(QStringList{QStringLiteral("csf")} + arguments);
        EXPECT_EQ(outcome.Code, 1);
        EXPECT_EQ(outcome.Error, QByteArray());
        return outcome.Output;
    }

    World world_;
};
