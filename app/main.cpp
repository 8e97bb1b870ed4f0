// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/Start.h"

int main(int argc, char** argv) {
    return RunSuite(argc, argv, nullptr);
}
