// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Another process, for what one leaves that is killed.
#pragma once

#include <gtest/gtest.h>

#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <functional>

class ChildProcess {
public:
    /// Says a word to the process that made this one.
    using Tell = std::function<void(char word)>;

    /// Runs that in a process of its own, which then waits to be killed: what `run` holds lives until then where it
    /// calls Wait itself.
    explicit ChildProcess(const std::function<void(const Tell&)>& run) {
        EXPECT_EQ(::pipe(told_.data()), 0);
        process_ = ::fork();
        if (process_ == 0) {
            run([this](char word) { static_cast<void>(!::write(told_[1], &word, 1)); });
            Wait();
        }
    }

    ~ChildProcess() {
        Kill();
        ::close(told_[0]);
        ::close(told_[1]);
    }

    ChildProcess(const ChildProcess&) = delete;
    ChildProcess& operator=(const ChildProcess&) = delete;

    /// Never returns.
    [[noreturn]] static void Wait() {
        for (;;)
            ::pause();
    }

    /// Waits for the next word.
    [[nodiscard]] char Word() const {
        char word = 0;
        EXPECT_EQ(::read(told_[0], &word, 1), 1);
        return word;
    }

    void Kill() {
        if (process_ > 0) {
            ::kill(process_, SIGKILL);
            ::waitpid(process_, nullptr, 0);
        }
        process_ = 0;
    }

private:
    std::array<int, 2> told_{-1, -1};
    pid_t process_ = 0;
};
