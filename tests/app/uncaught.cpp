// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/Application.h"
#include "platform/RuntimeError.h"
#include "tests/support/ScriptedHost.h"
#include "tests/support/UnsavedDocument.h"

#include <gtest/gtest.h>

#include <QTimer>

#include <cstdio>
#include <new>
#include <stdexcept>

using namespace Qt::StringLiterals;

namespace {

/// Prints its message boxes.
class PrintingHost : public ScriptedHost {
public:
    Answer Message(const QString& text, Icon icon, Buttons buttons, const QString& title,
                   std::optional<Answer> defaultAnswer) override {
        std::fputs(text.toUtf8().replace("\r\n", " ").constData(), stderr);
        return ScriptedHost::Message(text, icon, buttons, title, defaultAnswer);
    }
};

// Runs an event loop in which one event's handler fails.
template <typename Failure>
void RunWith(const Failure& failure) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    int count = 1;
    char name[] = "app_tests"; // NOLINT(modernize-avoid-c-arrays): as main() has it
    char* arguments = name;
    Application application(count, &arguments);
    const PrintingHost host;
    QTimer::singleShot(0, &application, [&failure] { throw failure; });
    Application::exec();
}

} // namespace

class UncaughtDeathTest : public testing::Test {
protected:
    void SetUp() override { GTEST_FLAG_SET(death_test_style, "threadsafe"); }
};

TEST_F(UncaughtDeathTest, ARunTimeErrorIsShownAndEndsTheProgram) {
    EXPECT_EXIT(RunWith(RuntimeError(ErrorNumber::DiskFull, u"The disk is full."_s)), testing::ExitedWithCode(1),
                "61  The disk is full\\.");
}

TEST_F(UncaughtDeathTest, NoMemoryIsShownAndEndsTheProgram) {
    EXPECT_EXIT(RunWith(std::bad_alloc()), testing::ExitedWithCode(1), "7  Out of memory\\.");
}

TEST_F(UncaughtDeathTest, AnIndexOutOfRangeIsShownAndEndsTheProgram) {
    EXPECT_EXIT(RunWith(std::out_of_range("at 7")), testing::ExitedWithCode(1), "9  Subscript out of range: at 7");
}

TEST_F(UncaughtDeathTest, WhatIsUnsavedIsKeptToTheEndBeforeTheMessage) {
    const auto run = [] {
        const UnkeptDocument unkept;
        const UnsavedDocument unsaved;
        RunWith(RuntimeError(ErrorNumber::Subscript, u"No row."_s));
    };
    EXPECT_EXIT(run(), testing::ExitedWithCode(1), "kept kept 9  No row\\.");
}
