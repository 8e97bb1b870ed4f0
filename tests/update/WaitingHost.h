// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// A scripted host whose waits are those of the program.
#pragma once

#include "tests/support/ScriptedHost.h"

#include <QCoreApplication>

class WaitingHost : public ScriptedHost {
public:
    // Not the scripted host's, which is the one above.
    bool WaitUntil(const std::function<bool()>& condition) override {
        return Host::WaitUntil(condition); // NOLINT(bugprone-parent-virtual-call)
    }

    void Yield() override { QCoreApplication::processEvents(); }
};
