// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// What a step raises.
#pragma once

#include "platform/RuntimeError.h"

#include <QString>

/// The number of the run-time error that the step raises, 0 for none.
template <typename Step>
int NumberRaisedBy(Step&& step) {
    try {
        step();
    } catch (const RuntimeError& error) {
        return error.Number();
    }
    return 0;
}

/// Its description, empty for none.
template <typename Step>
QString MessageOf(Step&& step) {
    try {
        step();
    } catch (const RuntimeError& error) {
        return error.Description();
    }
    return {};
}

/// For tests that look at both.
class RaisedError {
protected:
    /// The number of the run-time error that a step raises; 0 without one. Its text is in `failure_`.
    template <typename Step>
    int ErrorOf(Step&& step) {
        int number = 0;
        failure_ = MessageOf([&] {
            try {
                step();
            } catch (const RuntimeError& error) {
                number = error.Number();
                throw;
            }
        });
        return number;
    }

    QString failure_;
};
