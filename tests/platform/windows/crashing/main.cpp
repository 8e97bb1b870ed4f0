// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// A program that crashes, for the tests of what is left then: crashing KIND REPORT.
#include "platform/CrashReport.h"

#include "platform/windows/System.h"

#include <cstdlib>
#include <map>
#include <string>

namespace {

volatile int depth = 0;

void WriteNowhere() {
    constexpr SIZE_T page = 4096;
    auto* const nothing = static_cast<volatile int*>(VirtualAlloc(nullptr, page, MEM_RESERVE, PAGE_NOACCESS));
    *nothing = 1;
}

int Deeper(int level) { // NOLINT(misc-no-recursion): until the stack is full
    volatile char room[4096];
    room[0] = static_cast<char>(level);
    return depth < 0 ? 0 : Deeper(level + 1) + room[0];
}

void FillStack() {
    depth = Deeper(0);
}

const std::map<std::string, void (*)()> kinds{{"fault", WriteNowhere}, {"stack", FillStack}, {"abort", std::abort}};

} // namespace

int main(int argc, char** argv) {
    if (argc != 3 || !kinds.contains(argv[1]))
        return 2;
    CrashReport::Leave(QString::fromLocal8Bit(argv[2]), "the facts\n");
    CrashReport::Note("window.command");
    kinds.at(argv[1])();
    return 0;
}
