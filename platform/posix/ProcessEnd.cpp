// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/ProcessEnd.h"

#include <QSocketNotifier>
#include <QTimer>

#include <sys/syscall.h>
#include <unistd.h>

using namespace std::chrono_literals;

namespace {

/// How often a process is looked at where the system has no descriptors for processes, or none is left.
constexpr auto Pause = 250ms;

/// A descriptor that can be read from once the process has ended; -1 when there is none to be had.
int DescriptorOf(Processes::Handle process) {
    return static_cast<int>(::syscall(SYS_pidfd_open, static_cast<pid_t>(process), 0U));
}

} // namespace

QObject* ProcessEnd::MakeNotifier() {
    if (const int descriptor = DescriptorOf(process_); descriptor >= 0) {
        auto* const notifier = new QSocketNotifier(descriptor, QSocketNotifier::Read, this);
        connect(notifier, &QSocketNotifier::activated, this, &ProcessEnd::Look, Qt::QueuedConnection);
        connect(notifier, &QObject::destroyed, [descriptor] { ::close(descriptor); });
        return notifier;
    }
    auto* const timer = new QTimer(this);
    connect(timer, &QTimer::timeout, this, &ProcessEnd::Look, Qt::QueuedConnection);
    timer->start(Pause);
    return timer;
}
