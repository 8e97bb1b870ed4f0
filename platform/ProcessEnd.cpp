// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/ProcessEnd.h"

#include <utility>

ProcessEnd::ProcessEnd(Processes::Handle process, QObject* parent) : QObject(parent), process_(process) {
    if (process_ != 0)
        notifier_ = MakeNotifier();
}

ProcessEnd::~ProcessEnd() {
    // The notifier looks at the handle, which must outlive it.
    delete notifier_;
    Processes::Close(process_);
}

void ProcessEnd::Look() {
    if (process_ == 0 || !Processes::ExitCode(process_))
        return;
    delete std::exchange(notifier_, nullptr);
    Processes::Close(std::exchange(process_, 0));
    Q_EMIT Ended();
}
