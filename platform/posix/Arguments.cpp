// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/Arguments.h"

std::vector<std::string> ProcessArguments(int argc, char** argv) {
    return {argv + (argc > 0 ? 1 : 0), argv + argc};
}
