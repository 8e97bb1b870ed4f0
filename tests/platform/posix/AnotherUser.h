// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Makes the test's process somebody who has no rights of the system's administrator, until the end of the scope.
#pragma once

#include <unistd.h>

#include <cstdlib>

class AnotherUser {
public:
    AnotherUser() {
        if (administrator_ && ::seteuid(Nobody) != 0)
            std::abort();
    }

    ~AnotherUser() {
        if (administrator_ && ::seteuid(0) != 0)
            std::abort();
    }

    AnotherUser(const AnotherUser&) = delete;
    AnotherUser& operator=(const AnotherUser&) = delete;

private:
    static constexpr uid_t Nobody = 65'534;

    bool administrator_ = ::geteuid() == 0;
};
