// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/Host.h"
#include "update/NetworkClient.h"
#include "update/WebClient.h"

std::unique_ptr<HttpClient> NetworkClient::Make() {
    return MakeWebClient([](const std::function<bool()>& condition) { return Host::Current().WaitUntil(condition); });
}
