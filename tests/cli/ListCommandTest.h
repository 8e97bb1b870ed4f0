// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// What the tests of the commands for maps, mods and shell maps share.
#pragma once

#include "core/mMain.h"
#include "platform/Files.h"
#include "platform/Paths.h"
#include "tests/cli/Command.h"
#include "tests/support/Printing.h"
#include "tests/support/World.h"

#include <gtest/gtest.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

class ListCommandTest : public testing::Test {
protected:
    explicit ListCommandTest(QString word) : word_(std::move(word)) {
        world_.InstallGame(0);
        world_.UseLanguage("[LNG]\r\nName=Name\r\nFileName=File\r\n");
        world_.Start();
    }

    /// A file in the game's own folder; returns its path.
    QString Install(const QString& name, const QByteArray& bytes = "x") const {
        return world_.WriteFile(QStringLiteral("games\\Generals\\") + name, bytes);
    }

    /// Runs a command of the group that must succeed without a word on standard error.
    [[nodiscard]] QByteArray Output(const QStringList& arguments) const {
        const Outcome outcome = RunCommand(QStringList(word_) + arguments);
        EXPECT_EQ(outcome.Code, 0) << outcome.Error.constData();
        EXPECT_EQ(outcome.Error, QByteArray());
        return outcome.Output;
    }

    /// Runs a command of the group that must fail; returns what it says.
    [[nodiscard]] QByteArray Failure(const QStringList& arguments, int code = 1) const {
        const Outcome outcome = RunCommand(QStringList(word_) + arguments);
        EXPECT_EQ(outcome.Code, code) << outcome.Output.constData() << outcome.Error.constData();
        EXPECT_EQ(outcome.Output, QByteArray());
        if (code == 1) {
            EXPECT_EQ(outcome.Error.count('\n'), 1) << outcome.Error.constData();
        }
        return outcome.Error;
    }

    [[nodiscard]] QJsonArray Json(const QStringList& arguments) const {
        return QJsonDocument::fromJson(Output(arguments + QStringList(QStringLiteral("--json")))).array();
    }

    World world_;

private:
    QString word_;
};
