// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/Navigator.h"

#include "platform/RuntimeError.h"

using namespace Qt::StringLiterals;

namespace {

Navigator* inUse = nullptr;

} // namespace

Navigator& Navigator::Current() {
    if (inUse == nullptr)
        throw RuntimeError(ErrorNumber::ObjectNotSet, u"There are no windows to show."_s);
    return *inUse;
}

void Navigator::Use(Navigator* navigator) {
    inUse = navigator;
}
