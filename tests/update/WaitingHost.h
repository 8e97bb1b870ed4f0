// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// A scripted host whose waits are those of the program.
#pragma once

#include "tests/support/ScriptedHost.h"

#include <QCoreApplication>

class WaitingHost : public ScriptedHost {
public:
    bool WaitUntil(const std::function<bool()>& condition) override { return Host::WaitUntil(condition); }

    void Yield() override { QCoreApplication::processEvents(); }
};
