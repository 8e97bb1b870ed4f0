// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/support/Printing.h"

#include <QSslSocket>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(TlsBackend, IsTheSystemsOwn) {
    EXPECT_TRUE(QSslSocket::supportsSsl());
    EXPECT_EQ(QSslSocket::activeBackend(), u"schannel"_s);
}
