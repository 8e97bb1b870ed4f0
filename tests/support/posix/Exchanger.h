// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Another program that exchanges what stands in a folder, as fast as it can, while somebody writes there.
#pragma once

#include "platform/Files.h"
#include "platform/Paths.h"
#include "tests/support/World.h"

#include <gtest/gtest.h>

#include <fcntl.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <atomic>
#include <cstdio>
#include <string>
#include <thread>

/// Works below `folder`: "d" is now a folder, now a link to the folder "outside" beside it; "d\f" and "f" are now
/// files, now links to the file "outside\victim", now that file itself under a second name.
class Exchanger {
public:
    Exchanger(const World& world, const QString& folder)
        : inside_(world.Root()),
          root_(Paths::ToNative(inside_).toStdString()),
          folder_(root_ + '/' + folder.toStdString()) {
        Files::MakeFolders(inside_ + QStringLiteral("\\links"));
        Files::MakeFolders(inside_ + u'\\' + folder + QStringLiteral("\\d"));
        victim_ = world.WriteFile(QStringLiteral("outside\\victim"), "keep");
        Link(root_ + "/outside", root_ + "/links/d");
        worker_ = std::thread([this] { Work(); });
    }

    ~Exchanger() {
        over_ = true;
        worker_.join();
        EXPECT_GT(exchanges_, 0U);
        EXPECT_EQ(Files::ListFolder(inside_ + QStringLiteral("\\outside\\*"), true),
                  QStringList{QStringLiteral("victim")});
        EXPECT_EQ(World::ReadFile(victim_), "keep");
    }

    Exchanger(const Exchanger&) = delete;
    Exchanger& operator=(const Exchanger&) = delete;

private:
    static void Link(const std::string& to, const std::string& at) { ASSERT_EQ(::symlink(to.c_str(), at.c_str()), 0); }

    static bool Exchange(const std::string& one, const std::string& other) {
        return ::syscall(SYS_renameat2, AT_FDCWD, one.c_str(), AT_FDCWD, other.c_str(), RENAME_EXCHANGE) == 0;
    }

    /// Puts a link of either kind to the file outside in a file's place.
    void Plant(const std::string& at, bool hard) const {
        const std::string link = root_ + "/links/f";
        const std::string victim = root_ + "/outside/victim";
        const int made = hard ? ::link(victim.c_str(), link.c_str()) : ::symlink(victim.c_str(), link.c_str());
        if (made != 0 || ::rename(link.c_str(), at.c_str()) != 0 || hard)
            ::unlink(link.c_str()); // renaming one of two names of a file to the other does nothing
    }

    void Work() {
        for (unsigned turn = 0; !over_; ++turn) {
            if (Exchange(folder_ + "/d", root_ + "/links/d"))
                ++exchanges_;
            Plant(folder_ + "/f", turn % 3 == 0);
            // Below a link that would be planting outside.
            const int held = ::open((folder_ + "/d").c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
            if (held < 0)
                continue;
            ::unlinkat(held, "link", 0);
            if (::symlinkat((root_ + "/outside/victim").c_str(), held, "link") == 0)
                ::renameat(held, "link", held, "f");
            ::close(held);
        }
        Restore();
    }

    /// The folder stands in its own place at the end.
    void Restore() const {
        const int held = ::open((folder_ + "/d").c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
        if (held < 0)
            Exchange(folder_ + "/d", root_ + "/links/d");
        else
            ::close(held);
    }

    QString inside_;
    std::string root_;
    std::string folder_;
    QString victim_;
    std::atomic<bool> over_ = false;
    std::atomic<unsigned> exchanges_ = 0;
    std::thread worker_;
};
