// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Places.h"

#include <QProcess>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

struct Ended {
    int Code = -1;
    QByteArray Output;
};

/// The suite without a display: a window would fail.
Ended Answered(const QStringList& words) {
    QProcess suite;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const QString& display : {u"DISPLAY"_s, u"WAYLAND_DISPLAY"_s, u"QT_QPA_PLATFORM"_s})
        environment.remove(display);
    suite.setProcessEnvironment(environment);
    suite.start(QString::fromUtf8(Places::Suite), words);
    const bool ended = suite.waitForFinished() && suite.exitStatus() == QProcess::NormalExit;
    return {.Code = ended ? suite.exitCode() : -1, .Output = suite.readAllStandardOutput()};
}

} // namespace

TEST(AnswersTest, HelpAndVersionArePrintedAndNothingIsOpened) {
    const Ended help = Answered({u"--help"_s});
    EXPECT_EQ(help.Code, 0);
    EXPECT_TRUE(help.Output.startsWith("usage: brindock [SWITCH] [FILE]\n"));
    EXPECT_TRUE(help.Output.contains("/addfile"));
    EXPECT_TRUE(help.Output.contains("manual"));
    EXPECT_EQ(Answered({u"-h"_s}).Output, help.Output);
    const Ended version = Answered({u"--version"_s});
    EXPECT_EQ(version.Code, 0);
    EXPECT_TRUE(version.Output.contains("3.5")) << version.Output.constData();
    EXPECT_EQ(version.Output.count('\n'), 1);
}

TEST(AnswersTest, AmongOtherWordsTheyAreNoQuestions) {
    const Ended other = Answered({u"/tbig"_s, u"--help"_s});
    EXPECT_NE(other.Code, 0);
    EXPECT_EQ(other.Output, QByteArray());
}
