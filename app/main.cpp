// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/Start.h"
#include "media/MediaChild.h"

int main(int argc, char** argv) {
    if (MediaChild::IsAsked(argc, argv))
        return MediaChild::Run(argc, argv);
    return RunSuite(argc, argv, nullptr);
}
