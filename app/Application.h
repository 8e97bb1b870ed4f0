// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The event loop's top: a failure that nothing caught is shown, and the program ends.
#pragma once

#include <QApplication>

#include <exception>

class Application : public QApplication {
public:
    using QApplication::QApplication;

    bool notify(QObject* receiver, QEvent* event) override;

    /// Keeps what is unsaved, shows number and description, then ends the program.
    [[noreturn]] static void Fail(const std::exception& failure);
};
