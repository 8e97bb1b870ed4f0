// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The project's own scripts, run over files of a test.
#pragma once

#include "Places.h"
#include "tests/support/Printing.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QMap>
#include <QProcess>
#include <QTemporaryDir>

class ScriptTest : public testing::Test {
protected:
    struct Ran {
        int Code = 0; ///< -1 when it did not end
        QByteArray Output;
        QString Errors;
    };

    /// Runs a program in the test's folder; `variables` go over those of this process.
    [[nodiscard]] Ran RunProgram(const QString& program, const QStringList& arguments,
                                 const QMap<QString, QString>& variables = {}) const {
        constexpr int patience = 120000; // milliseconds
        QProcess process;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        for (auto variable = variables.begin(); variable != variables.end(); ++variable)
            environment.insert(variable.key(), variable.value());
        process.setProcessEnvironment(environment);
        process.setWorkingDirectory(folder_.path());
        process.setStandardInputFile(QProcess::nullDevice());
        process.start(program, arguments);
        if (!process.waitForFinished(patience))
            return {-1, {}, QStringLiteral("it did not end")};
        return {process.exitCode(), process.readAllStandardOutput(), QString::fromUtf8(process.readAllStandardError())};
    }

    /// A script of the project, as "packaging/release".
    [[nodiscard]] static QString Script(const QString& name) {
        return QLatin1StringView(Places::Sources) + QLatin1Char('/') + name;
    }

    [[nodiscard]] QString Path(const QString& name) const { return folder_.filePath(name); }

    void Write(const QString& name, const QByteArray& bytes) const {
        QDir().mkpath(QFileInfo(Path(name)).path());
        QFile file(Path(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }

    [[nodiscard]] QByteArray Read(const QString& name) const {
        QFile file(Path(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("unreadable");
    }

    QTemporaryDir folder_;
};
