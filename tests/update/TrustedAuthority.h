// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// While it lives, the system's TLS trusts the tests' own authority.
#pragma once

class TrustedAuthority {
public:
    TrustedAuthority();
    ~TrustedAuthority();
    TrustedAuthority(const TrustedAuthority&) = delete;
    TrustedAuthority& operator=(const TrustedAuthority&) = delete;
    TrustedAuthority(TrustedAuthority&&) = delete;
    TrustedAuthority& operator=(TrustedAuthority&&) = delete;
};
