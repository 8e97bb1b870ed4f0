// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "media/MediaJob.h"

#include "tests/support/Printing.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

// The words are the Base64 of "\a" and "\b c", two bytes a letter with the lower one first.
TEST(MediaJobs, AreOneLineOfAKindAndTwoPaths) {
    const MediaJob job{.What = MediaJob::Kind::Sound, .Source = u"\\a"_s, .Target = u"\\b c"_s};
    const MediaJob read = MediaJob::OfLine("sound XABhAA== XABiACAAYwA=\n");
    EXPECT_EQ(read.What, job.What);
    EXPECT_EQ(read.Source, job.Source);
    EXPECT_EQ(read.Target, job.Target);
    EXPECT_TRUE(job.Line().startsWith("sound "));
    EXPECT_EQ(MediaJob::OfLine(MediaJob{.Source = u"x"_s, .Target = u"y"_s}.Line()).What, MediaJob::Kind::Picture);
}

TEST(MediaJobs, ADamagedLineNamesNothing) {
    for (const QByteArray& line :
         {QByteArray(), QByteArray("sound"), QByteArray("sound = ="), QByteArray("picture QQ==")}) {
        const MediaJob job = MediaJob::OfLine(line);
        EXPECT_TRUE(job.Source.isEmpty()) << line.toStdString();
        EXPECT_TRUE(job.Target.isEmpty()) << line.toStdString();
    }
}
