// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Thousands of replays, and more than a 16-bit count holds; Wine would take minutes to make that many files.
#include "platform/Paths.h"
#include "tests/personal/replay_bytes.h"

#include <QFile>

#include <limits>

using namespace Qt::StringLiterals;

TEST_F(ReplayFolders, ACountOf32768IsError6) {
    Put(u"0.rep"_s, "");
    const QString native = Paths::ToNative(Folder());
    for (int i = 1; i <= std::numeric_limits<qint16>::max(); ++i) {
        QFile file(native + QString::number(i) + u".rep"_s);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    }
    qint32 game = 0;
    EXPECT_EQ(NumberRaisedBy([&] { list_.ListReplays(game, true); }), 6);
    ASSERT_TRUE(QFile::remove(native + u"0.rep"_s));
    EXPECT_EQ(list_.ListReplays(game, true), 32767);
}

TEST_F(ReplayFolders, TenThousandReplaysAreAllListed) {
    const QString native = Paths::ToNative(Folder());
    Put(u"0.rep"_s, SampleReplay());
    for (int i = 1; i < 10'000; ++i) {
        QFile file(native + QString::number(i) + u".rep"_s);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(SampleReplay());
    }
    EXPECT_EQ(List(), 10'000);
}
