// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// A temporary folder for one test, whole files in it, and environment variables that come back when the test ends.
#pragma once

#include "platform/Paths.h"
#include "tests/support/Printing.h"

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QString>
#include <QTemporaryDir>

#include <optional>

class Scratch {
public:
    /// A native path; the folders above it are made.
    [[nodiscard]] QString Native(const QString& name) const {
        QString path = folder_.filePath(name);
        QDir().mkpath(QFileInfo(path).path());
        return path;
    }

    /// The inside path of the same file.
    [[nodiscard]] QString Inside(const QString& name) const {
        return Paths::FromNative(QDir::toNativeSeparators(Native(name)));
    }

    /// Writes a file and returns its inside path.
    QString Write(const QString& name, const QByteArray& bytes) const {
        QFile file(Native(name));
        if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate) || file.write(bytes) != bytes.size())
            qFatal("A test's file can't be written");
        return Inside(name);
    }

    [[nodiscard]] QByteArray Read(const QString& name) const {
        QFile file(Native(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

private:
    QTemporaryDir folder_;
};

/// Sets an environment variable, or takes it away, until the end of the scope.
class Variable {
public:
    Variable(const char* name, const std::optional<QByteArray>& value)
        : name_(name),
          wasSet_(qEnvironmentVariableIsSet(name)),
          old_(qgetenv(name)) {
        if (value)
            qputenv(name, *value);
        else
            qunsetenv(name);
    }

    ~Variable() {
        if (wasSet_)
            qputenv(name_, old_);
        else
            qunsetenv(name_);
    }

    Variable(const Variable&) = delete;
    Variable& operator=(const Variable&) = delete;

private:
    const char* name_;
    bool wasSet_;
    QByteArray old_;
};
