// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/Application.h"

#include "core/Host.h"
#include "core/LastMessage.h"
#include "core/rescue/RescuedDocument.h"
#include "platform/Processes.h"

bool Application::notify(QObject* receiver, QEvent* event) {
    try {
        return QApplication::notify(receiver, event);
    } catch (const std::exception& failure) {
        Fail(failure);
    }
}

void Application::Fail(const std::exception& failure) {
    KeepAllRescues();
    try {
        Host::Current().Message(LastMessage::Text(LastMessage::AsRuntimeError(failure)), Host::Icon::Critical);
    } catch (const std::exception&) {
        Processes::End(1); // no memory for the message either
    }
    Processes::End(1);
}
