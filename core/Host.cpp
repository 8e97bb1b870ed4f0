// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/Host.h"

#include "platform/RuntimeError.h"

using namespace Qt::StringLiterals;

namespace {

Host* inUse = nullptr;

} // namespace

Host& Host::Current() {
    if (inUse == nullptr)
        throw RuntimeError(ErrorNumber::ObjectNotSet, u"There is no window to speak through."_s);
    return *inUse;
}

void Host::Use(Host* host) {
    inUse = host;
}
