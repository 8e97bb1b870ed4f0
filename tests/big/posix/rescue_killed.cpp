// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Editors that are killed while they keep a rescue, and disks that are full.
#include "tests/big/rescue_fixture.h"
#include "tests/support/posix/FileLengthLimit.h"

#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <csignal>

using namespace Qt::StringLiterals;

namespace {

constexpr int entries = 4;
constexpr int size = 50'000;

class RescueKilled : public EditorRescue {
protected:
    /// Changes sources and keeps them, until it is killed. Tells when the first ones are kept.
    [[noreturn]] void GoOn(int told) {
        for (char letter = 'a';; letter = letter == 'z' ? 'a' : static_cast<char>(letter + 1)) {
            for (int entry = 0; entry < entries; ++entry)
                Place.WriteFile(u"sources\\"_s + QString::number(entry), QByteArray(size, letter));
            while (Editor.KeepRescue()) {
            }
            static_cast<void>(!::write(told, "x", 1));
        }
    }

    enum class From { Start, FirstKept };

    void KillAfter(From from, useconds_t time) {
        std::array<int, 2> told{};
        ASSERT_EQ(::pipe(told.data()), 0);
        const pid_t child = ::fork();
        if (child == 0)
            GoOn(told[1]);
        char word = 0;
        const bool waits = from == From::FirstKept;
        EXPECT_EQ(waits ? ::read(told[0], &word, 1) : 1, 1);
        ::usleep(time);
        ::kill(child, SIGKILL);
        ::waitpid(child, nullptr, 0);
        ::close(told[0]);
        ::close(told[1]);
    }

    /// Whether every number that a rescue names leads to bytes that were once those of a source.
    static void ExpectWhole(const Rescues::Left& left) {
        const RescuedArchive rescued = RescuedArchive::Decoded(Rescues::ContentOf(left));
        EXPECT_EQ(rescued.NewCount(), entries);
        for (const ArchiveChange& change : rescued.Changes) {
            if (change.Content < 0)
                continue;
            const QByteArray bytes = World::ReadFile(left.Folder + QString::number(change.Content));
            EXPECT_EQ(bytes.size(), size);
            EXPECT_EQ(bytes.count(bytes.isEmpty() ? '?' : bytes.front()), bytes.size());
        }
    }
};

} // namespace

TEST_F(RescueKilled, KilledAtAnyMomentItIsWholeOrAbsent) {
    OpenSample();
    for (int entry = 0; entry < entries; ++entry)
        AddTo(Editor, QString::number(entry), QByteArray(size, 'z'));
    int found = 0;
    constexpr int rounds = 120;
    for (int round = 0; round < rounds; ++round) {
        KillAfter(round % 2 == 0 ? From::Start : From::FirstKept, static_cast<useconds_t>(round * 97));
        Rescues::Sweep();
        const std::vector<Rescues::Left> all = Rescues::LeftFor(ArchiveRescue::Kind);
        EXPECT_EQ(static_cast<std::size_t>(Files::ListFolder(Rescues::Folder() + u"\\*"_s, true).size()), all.size());
        for (const Rescues::Left& left : all) {
            ExpectWhole(left);
            EXPECT_TRUE(Rescues::ThrowAway(left.Folder));
            ++found;
        }
    }
    EXPECT_GE(found, rounds / 2) << "what was kept once is there from then on";
}

TEST_F(RescueKilled, WhereTheBytesDoNotFitTheChangesAreKeptAllTheSame) {
    const QString path = OpenSample();
    AddTo(Editor, u"long.bin"_s, QByteArray(size, 'x'));
    AddTo(Editor, u"short.txt"_s, "short");
    {
        const FileLengthLimit limit(10'000);
        while (Editor.KeepRescue()) {
        }
    }
    EXPECT_EQ(View.Told.Text, u"RescueFailed"_s);
    EXPECT_EQ(FilesThere(), (QStringList{u"2"_s, u"rescue"_s}));
    const FileState before = StateOf(FileThere(u"rescue"_s));
    EXPECT_FALSE(Editor.KeepRescue()) << "what did not fit is not tried again until it changes";
    EXPECT_EQ(StateOf(FileThere(u"rescue"_s)), before);
    EXPECT_TRUE(Files::FileExists(path));
}
