// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The end of another program as a notification, so that nobody waits for it in a loop.
#pragma once

#include "platform/Processes.h"

#include <QObject>

/// Takes a process handle over and tells when that process has ended, whatever its exit code. Lives in a thread with an
/// event loop. Destroying it gives the handle back; a process that still runs runs on.
class ProcessEnd : public QObject {
    Q_OBJECT

public:
    /// Of the handle 0, which is none, no end is ever told.
    explicit ProcessEnd(Processes::Handle process, QObject* parent = nullptr);
    ProcessEnd(const ProcessEnd&) = delete;
    ProcessEnd& operator=(const ProcessEnd&) = delete;
    ~ProcessEnd() override;

Q_SIGNALS:
    /// Emitted once, out of the event loop, also for a process that had ended before. Its receiver may delete this.
    void Ended();

private:
    /// Makes the system's notifier, which has Look called when the process may have ended: by a
    /// queued call, so that it can be deleted there.
    QObject* MakeNotifier();
    void Look();

    Processes::Handle process_;
    QObject* notifier_ = nullptr;
};
