// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/ProcessEnd.h"

#include "platform/windows/System.h"

#include <QWinEventNotifier>

QObject* ProcessEnd::MakeNotifier() {
    // A process's handle is signalled once the process has ended.
    auto* const notifier =
        new QWinEventNotifier(reinterpret_cast<HANDLE>(process_), this); // NOLINT(performance-no-int-to-ptr)
    // The signal's own argument is of no type that a queued connection can carry. The handle stays signalled: an
    // enabled notifier would call again and again.
    connect(notifier, &QWinEventNotifier::activated, this, [this, notifier] {
        notifier->setEnabled(false);
        QMetaObject::invokeMethod(this, &ProcessEnd::Look, Qt::QueuedConnection);
    });
    return notifier;
}
