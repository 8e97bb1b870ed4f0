// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/Limits.h"

#include "platform/windows/System.h"

namespace {

/// The job that this process is in, and what it may use. It goes with the process.
struct Job {
    Job() : Handle(::CreateJobObjectW(nullptr, nullptr)) {
        Limit.BasicLimitInformation.LimitFlags = JOB_OBJECT_LIMIT_DIE_ON_UNHANDLED_EXCEPTION;
        ::AssignProcessToJobObject(Handle, ::GetCurrentProcess());
        ::SetErrorMode(SEM_FAILCRITICALERRORS | SEM_NOGPFAULTERRORBOX | SEM_NOOPENFILEERRORBOX);
    }

    bool Set(DWORD flag) {
        Limit.BasicLimitInformation.LimitFlags |= flag;
        return ::SetInformationJobObject(Handle, JobObjectExtendedLimitInformation, &Limit, sizeof(Limit)) != 0;
    }

    HANDLE Handle;
    JOBOBJECT_EXTENDED_LIMIT_INFORMATION Limit{};
};

Job& Own() {
    static Job job;
    return job;
}

} // namespace

bool Limits::BoundMemory(qint64 bytes) {
    Own().Limit.ProcessMemoryLimit = static_cast<SIZE_T>(bytes);
    return Own().Set(JOB_OBJECT_LIMIT_PROCESS_MEMORY);
}

bool Limits::BoundProcessorTime(int seconds) {
    constexpr LONGLONG ticksPerSecond = 10'000'000;
    FILETIME created;
    FILETIME ended;
    FILETIME kernel;
    FILETIME user;
    if (::GetProcessTimes(::GetCurrentProcess(), &created, &ended, &kernel, &user) == 0)
        return false;
    LARGE_INTEGER used;
    used.LowPart = user.dwLowDateTime;
    used.HighPart = static_cast<LONG>(user.dwHighDateTime);
    used.QuadPart += seconds * ticksPerSecond;
    Own().Limit.BasicLimitInformation.PerProcessUserTimeLimit = used;
    return Own().Set(JOB_OBJECT_LIMIT_PROCESS_TIME);
}
