// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/rescue/RescuedDocument.h"

#include "core/LastMessage.h"

#include <algorithm>
#include <exception>
#include <utility>
#include <vector>

namespace {

std::vector<RescuedDocument*>& All() {
    static std::vector<RescuedDocument*> all;
    return all;
}

} // namespace

RescuedDocument::RescuedDocument() {
    All().push_back(this);
}

RescuedDocument::~RescuedDocument() {
    std::erase(All(), this);
}

bool RescuedDocument::KeepRescue() {
    try {
        const bool more = KeepSome();
        told_ = false;
        return more;
    } catch (const std::exception& failure) {
        if (!std::exchange(told_, true))
            TellFailed(LastMessage::AsRuntimeError(failure).Description());
        return false;
    }
}

void KeepAllRescues() noexcept {
    for (RescuedDocument* const document : All()) {
        try {
            while (document->KeepSome()) {
            }
        } catch (...) {
            continue; // the others are not to be lost with it
        }
    }
}
