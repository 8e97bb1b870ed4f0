// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// HTTP and HTTPS by the toolkit's network library: the system's proxy and, on Windows, the system's own TLS.
#pragma once

#include "update/HttpClient.h"

#include <memory>

namespace NetworkClient {

/// A client for the one thread. What a server sends faster than it is taken waits at the server. Redirects are followed
/// at most five times, and never from HTTPS down to HTTP. An answer of 4xx or 5xx has failed, and so has one that ends
/// before its Content-length. Other addresses than those of the web have failed at once.
/// Raises 53 where the library is not installed.
std::unique_ptr<HttpClient> Make();

} // namespace NetworkClient
