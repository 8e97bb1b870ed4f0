// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// A device that fails at every write: the process's own limit on the length of files stands in for a full disk.
#pragma once

#include <sys/resource.h>

#include <csignal>

/// While it lives, no file of this process or of one that it starts gets longer than so many bytes.
class FileLengthLimit {
public:
    explicit FileLengthLimit(rlim_t bytes) {
        ::signal(SIGXFSZ, SIG_IGN);
        ::getrlimit(RLIMIT_FSIZE, &before_);
        const rlimit limited{bytes, before_.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &limited);
    }

    ~FileLengthLimit() { ::setrlimit(RLIMIT_FSIZE, &before_); }

    FileLengthLimit(const FileLengthLimit&) = delete;
    FileLengthLimit& operator=(const FileLengthLimit&) = delete;

private:
    rlimit before_{};
};
