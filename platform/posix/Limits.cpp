// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/Limits.h"

#include <sys/resource.h>
#include <unistd.h>

#include <fstream>

namespace {

/// Of address space, in bytes; 0 where the system does not tell.
qint64 Reserved() {
    qint64 pages = 0;
    std::ifstream("/proc/self/statm") >> pages;
    return pages * ::sysconf(_SC_PAGESIZE);
}

bool SetSoft(__rlimit_resource resource, rlim_t value) {
    rlimit limit{};
    if (::getrlimit(resource, &limit) != 0)
        return false;
    limit.rlim_cur = value;
    return ::setrlimit(resource, &limit) == 0;
}

} // namespace

bool Limits::BoundMemory(qint64 bytes) {
    SetSoft(RLIMIT_CORE, 0);
    return Reserved() < bytes && SetSoft(RLIMIT_AS, static_cast<rlim_t>(bytes));
}

bool Limits::BoundProcessorTime(int seconds) {
    rusage used{};
    if (::getrusage(RUSAGE_SELF, &used) != 0)
        return false;
    // The two parts of a second that are cut here make a whole one at most.
    const auto now = used.ru_utime.tv_sec + used.ru_stime.tv_sec + 1;
    return SetSoft(RLIMIT_CPU, static_cast<rlim_t>(now + seconds));
}
