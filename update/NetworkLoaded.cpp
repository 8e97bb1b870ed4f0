// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/Host.h"
#include "media/ModuleLoader.h"
#include "platform/RuntimeError.h"
#include "update/NetworkClient.h"
#include "update/WebClient.h"

using namespace Qt::StringLiterals;

std::unique_ptr<HttpClient> NetworkClient::Make() {
    using Entry = HttpClient* (*)(const HttpWait*);
    static const auto entry = reinterpret_cast<Entry>(ModuleEntry(u"brindock-network"_s, "BrindockMakeWebClient"));
    if (entry == nullptr)
        throw RuntimeError(ErrorNumber::FileNotFound, u"brindock-network: can't be loaded"_s);
    const HttpWait wait = [](const std::function<bool()>& condition) { return Host::Current().WaitUntil(condition); };
    return std::unique_ptr<HttpClient>(entry(&wait));
}
