// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/Application.h"

#include "core/Host.h"
#include "platform/Processes.h"

using namespace Qt::StringLiterals;

bool Application::notify(QObject* receiver, QEvent* event) {
    try {
        return QApplication::notify(receiver, event);
    } catch (const RuntimeError& error) {
        Fail(error);
    }
}

void Application::Fail(const RuntimeError& error) {
    Host::Current().Message(u"%1\r\n\r\n%2"_s.arg(error.Number()).arg(error.Description()), Host::Icon::Critical);
    Processes::End(1);
}
