// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/Start.h"
#include "media/PictureChild.h"

int main(int argc, char** argv) {
    if (PictureChild::IsAsked(argc, argv))
        return PictureChild::Run(argc, argv);
    return RunSuite(argc, argv, nullptr);
}
