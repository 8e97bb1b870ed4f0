// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The one function of the module that NetworkLoaded looks up.
#include "update/WebClient.h"

extern "C" Q_DECL_EXPORT HttpClient* BrindockMakeWebClient(const HttpWait* wait) {
    return MakeWebClient(*wait).release();
}
