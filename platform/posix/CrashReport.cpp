// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/CrashText.h"
#include "platform/Paths.h"

#include <atomic>
#include <csignal>
#include <vector>

#include <dlfcn.h>
#include <execinfo.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr std::array signalsOfCrashes{SIGSEGV, SIGBUS, SIGFPE, SIGILL, SIGABRT};
constexpr std::size_t mostFrames = 64;
constexpr mode_t ownFolder = 0700;
constexpr mode_t ownFile = 0600;

QByteArray file;
QByteArray folder;
CrashText text;
std::atomic<bool> isWritten = false;
std::array<struct sigaction, signalsOfCrashes.size()> before{};

std::string_view NameOf(int signal) {
    switch (signal) {
    case SIGSEGV:
        return "SIGSEGV";
    case SIGBUS:
        return "SIGBUS";
    case SIGFPE:
        return "SIGFPE";
    case SIGILL:
        return "SIGILL";
    default:
        return "SIGABRT";
    }
}

void AddStack() {
    std::array<void*, mostFrames> frames{};
    const int count = ::backtrace(frames.data(), static_cast<int>(frames.size()));
    for (int i = 0; i < count; ++i) {
        const auto address = reinterpret_cast<std::uintptr_t>(frames.at(static_cast<std::size_t>(i)));
        Dl_info module{};
        if (::dladdr(frames.at(static_cast<std::size_t>(i)), &module) != 0 && module.dli_fname != nullptr)
            text.AddFrame(module.dli_fname, address - reinterpret_cast<std::uintptr_t>(module.dli_fbase));
        else
            text.AddFrame("?", address);
    }
}

void WriteAll() {
    ::mkdir(folder.constData(), ownFolder);
    const int out = ::open(file.constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, ownFile);
    std::string_view rest = text.Text();
    while (out >= 0 && !rest.empty()) {
        const ssize_t written = ::write(out, rest.data(), rest.size());
        if (written <= 0)
            break;
        rest.remove_prefix(static_cast<std::size_t>(written));
    }
    ::close(out);
}

void Handle(int signal) {
    if (!isWritten.exchange(true)) {
        CrashNotes::Begin(text);
        text.Add(NameOf(signal));
        text.Add("\n");
        AddStack();
        CrashNotes::End(text);
        WriteAll();
    }
    // Behind this the instruction that failed, or abort, fails once more, and whoever was there before is asked.
    for (std::size_t i = 0; i < signalsOfCrashes.size(); ++i)
        ::sigaction(signalsOfCrashes.at(i), &before.at(i), nullptr);
    ::raise(signal);
}

} // namespace

void CrashHandlers::Install(const QString& path) {
    file = Paths::EncodeNative(Paths::ToNative(path));
    folder = file.first(file.lastIndexOf('/'));
    // The first call brings a library in, which can't be done behind a crash.
    std::array<void*, 1> one{};
    ::backtrace(one.data(), 1);
    // A stack that has no room left has none for the handler.
    static std::vector<char> stack(std::size_t{64} * 1024);
    stack_t own{};
    own.ss_sp = stack.data();
    own.ss_size = stack.size();
    ::sigaltstack(&own, nullptr);

    struct sigaction handled {};

    handled.sa_handler = Handle;
    handled.sa_flags = SA_ONSTACK;
    for (std::size_t i = 0; i < signalsOfCrashes.size(); ++i)
        ::sigaction(signalsOfCrashes.at(i), &handled, &before.at(i));
}
