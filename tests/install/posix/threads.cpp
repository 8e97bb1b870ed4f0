// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Threads that are not to be had: each is a help that others do without; and a thread that is not waited for.
#include "tests/install/journal_fixture.h"
#include "tests/install/zip_fixture.h"

#include <pthread.h>

#include <atomic>
#include <cerrno>
#include <chrono>
#include <thread>

#include <dlfcn.h>

using namespace Qt::StringLiterals;

namespace {

std::atomic<bool> noThreads = false;
std::atomic<bool> slowReads = false;
std::atomic<int> reads = 0;

/// While it lives the system is one way or the other.
class While {
public:
    explicit While(std::atomic<bool>& which) : which_(which) { which_ = true; }

    ~While() { which_ = false; }

    While(const While&) = delete;
    While& operator=(const While&) = delete;

private:
    std::atomic<bool>& which_;
};

template <typename Function>
Function* Systems(const char* name) {
    return reinterpret_cast<Function*>(::dlsym(RTLD_NEXT, name));
}

void PassSlowly() {
    if (!slowReads)
        return;
    ++reads;
    std::this_thread::sleep_for(std::chrono::milliseconds(20));
}

class WithoutThreads : public ZipReadTest {};

class SlowSource : public JournalTest {};

} // namespace

// These stand before the system library's in this program.
// NOLINTBEGIN(readability-inconsistent-declaration-parameter-name)
extern "C" int pthread_create(pthread_t* thread, const pthread_attr_t* attributes, void* (*routine)(void*),
                              void* argument) noexcept {
    static auto* const systems = Systems<decltype(pthread_create)>("pthread_create");
    return noThreads ? EAGAIN : systems(thread, attributes, routine, argument);
}

extern "C" ssize_t pread(int file, void* bytes, size_t count, off_t offset) {
    static auto* const systems = Systems<decltype(pread)>("pread");
    PassSlowly();
    return systems(file, bytes, count, offset);
}

extern "C" ssize_t pread64(int file, void* bytes, size_t count, off64_t offset) {
    static auto* const systems = Systems<decltype(pread64)>("pread64");
    PassSlowly();
    return systems(file, bytes, count, offset);
}

// NOLINTEND(readability-inconsistent-declaration-parameter-name)

TEST_F(WithoutThreads, EntriesAreUnpackedOneBehindTheOther) {
    Open({{.Name = "a", .Content = "1", .Method = 8}, {.Name = "b", .Content = "2"}});
    {
        const While none(noThreads);
        zip_.Ahead({1, 2}, true);
    }
    EXPECT_EQ(Extract(u"a"_s), ZipResult::Done);
    EXPECT_EQ(Extract(u"b"_s), ZipResult::Done);
    EXPECT_EQ(Got(u"a"_s), "1");
    EXPECT_EQ(Got(u"b"_s), "2");
}

TEST_F(WithoutThreads, AFileHasNoHash) {
    const QString path = Make(u"f"_s, "abc");
    const While none(noThreads);
    EXPECT_EQ(BackgroundHash(path).Result(), QByteArray());
}

TEST_F(SlowSource, IsNotWaitedForWhereNothingIsWritten) {
    constexpr qint64 length = qint64{64} << 20U; // some 5 seconds to be read
    const QString path = Source(u"Long.zip"_s);
    File::OpenAsGiven(path, File::Access::ReadWrite).SetLength(length);
    const While slow(slowReads);
    {
        JournalRun run(path, 0);
        while (reads == 0)
            std::this_thread::yield();
        run.End();
    }
    EXPECT_LT(reads, 100) << "of 257";
    EXPECT_FALSE(IsKnown(1));
}
