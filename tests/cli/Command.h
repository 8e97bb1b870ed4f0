// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Runs the real brindock-cli.
#pragma once

#include <QByteArray>
#include <QStringList>

struct Outcome {
    int Code = -1;
    QByteArray Output; ///< standard output
    QByteArray Error;  ///< standard error
};

/// With the environment of the test's World, and `input` as standard input. A run that crashes or hangs has the code
/// -1.
Outcome RunCommand(const QStringList& arguments, const QByteArray& input = {});
