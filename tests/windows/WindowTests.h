// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Window tests: one Qt Test object a window, all run by one executable. Each registers itself with WINDOW_TEST.
#pragma once

#include <QObject>
#include <QtTest/QTest>

#include <functional>
#include <memory>
#include <vector>

using WindowTestMaker = std::function<std::unique_ptr<QObject>()>;

/// Where this environment variable names a file (a native path), the executable makes that and ends.
inline constexpr auto RestartTold = "BRINDOCK_TEST_RESTART_TOLD";

/// The test objects of this executable, in no promised order.
std::vector<WindowTestMaker>& WindowTests();

#define WINDOW_TEST(Class)                                                                                             \
    static const bool Class##Registered = [] {                                                                         \
        WindowTests().push_back([] { return std::make_unique<Class>(); });                                             \
        return true;                                                                                                   \
    }();
