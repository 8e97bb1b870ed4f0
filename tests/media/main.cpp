// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "media/MediaChild.h"

#include <QCoreApplication>

#include <gtest/gtest.h>

int main(int argc, char** argv) {
    // The preview starts its own executable as the child that decodes: here that is the tests'.
    if (MediaChild::IsAsked(argc, argv))
        return MediaChild::Run(argc, argv);
    const QCoreApplication application(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
