// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/cli/Command.h"

#include "Places.h"

#include <QProcess>

Outcome RunCommand(const QStringList& arguments, const QByteArray& input) {
    QProcess process;
    process.start(QString::fromUtf8(Places::Commands), arguments);
    process.write(input);
    process.closeWriteChannel();
    const bool ended = process.waitForFinished() && process.exitStatus() == QProcess::NormalExit;
    return {.Code = ended ? process.exitCode() : -1,
            .Output = process.readAllStandardOutput(),
            .Error = process.readAllStandardError()};
}
