// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Replays that are broken in every way: told as they should be or named in a message, never a crash or a hang.
#include "Places.h"
#include "personal/replay/Replay.h"
#include "platform/FileNumbers.h"
#include "platform/NumberedFiles.h"
#include "platform/Paths.h"
#include "tests/personal/replay_bytes.h"

#include <random>

using namespace Qt::StringLiterals;

namespace {

class ReplayBadInput : public ReplayFolders {
protected:
    ReplayBadInput() {
        world_.UseLanguage("[LNG]\r\nObservers=O\r\nObserver=O\r\nTeam=T\r\nNoTeam=N\r\nAI=A\r\nEasyAI=E\r\n"
                           "MediumAI=M\r\nHardAI=H\r\n");
        world_.Start();
    }

    /// Lists a folder with this one replay; returns the number that is raised.
    int Listed(const QByteArray& bytes) {
        NumberedFiles::CloseAll();
        const QString path = Put(u"x.rep"_s, bytes);
        try {
            EXPECT_EQ(List(), 1);
        } catch (const RuntimeError& error) {
            EXPECT_TRUE(error.Description().startsWith(Paths::ToNative(path))) << error.Description().toStdString();
            return error.Number();
        }
        return 0;
    }

    /// What is known of a listing whatever the bytes are.
    void ExpectToldOutcome(const QByteArray& bytes) {
        const int number = Listed(bytes);
        const bool marked = Replays::HasMark(bytes);
        ASSERT_TRUE(number == 0 || number == 5 || number == 9) << number;
        ASSERT_EQ(list_.Rows().Count(), marked ? 1 : 0);
        ASSERT_EQ(NumberedFiles::IsOpen(FileNumbers::Replay), number != 0 || !marked);
        if (!marked || number != 0)
            return;
        const ListRow& row = list_.Rows().Row(0);
        ASSERT_TRUE(row.Tag.endsWith(u';'));
        ASSERT_GE(row.Tag.count(u':'), 7);
        ASSERT_LE(row.SubItems[ReplayList::Players - 1].toInt(), 8);
        list_.Select(0);
        std::vector<PlayerNode> tree;
        ASSERT_NO_THROW(list_.LoadPlayerList(tree));
    }

    /// A replay that is longer than what is read.
    static QByteArray LongSample() {
        const QByteArray sample = ReplayBytes(
            MatchOf("03maps/alpine assault", "HAlice,0,0,TT,1,8,1,0,1:CE,1,2,-1,1:O:X:X:X:X:X:"), "Version 1.04");
        return sample + QByteArray(Replays::HeaderLength - sample.size(), '\x11') + QByteArray(100, 'Z');
    }
};

} // namespace

TEST_F(ReplayBadInput, AReplayCutAtEachOfItsFirst2048BytesIsToldAsItShouldBe) {
    const QByteArray whole = LongSample();
    const qsizetype mark = 6;
    const qsizetype slotsEnd = whole.indexOf(';', whole.indexOf(";S=") + 1) + 1;
    for (qsizetype length = 0; length <= Replays::HeaderLength; ++length) {
        const int number = Listed(whole.first(length));
        EXPECT_EQ(number, length < mark || length >= slotsEnd ? 0 : 5) << length;
        EXPECT_EQ(list_.Rows().Count(), length < mark ? 0 : 1) << length;
        if (length >= slotsEnd) {
            EXPECT_EQ(list_.Rows().Row(0).SubItems.sliced(1), QStringList({u"1.04"_s, u"3"_s, u"Alpine assault"_s}));
        }
    }
}

TEST_F(ReplayBadInput, ThousandsOfRandomChangesAreToldAsTheyShouldBe) {
    std::mt19937 random(2005);
    const auto below = [&](qsizetype bound) {
        return static_cast<qsizetype>(random() % static_cast<std::uint32_t>(bound));
    };
    const QByteArray sample = LongSample();
    const qsizetype text = sample.indexOf("US=");
    constexpr int rounds = Places::SystemIsEmulated ? 1000 : 10000;
    for (int round = 0; round < rounds; ++round) {
        QByteArray bytes = sample;
        for (qsizetype changes = below(4) + 1; changes > 0; --changes) {
            // Most of them where the entries stand.
            const qsizetype at = below(3) == 0 ? below(bytes.size()) : text + below(170);
            switch (below(4)) {
            case 0:
                bytes[at] = static_cast<char>(below(256));
                break;
            case 1:
                bytes.remove(at, below(8) + 1);
                break;
            case 2:
                bytes.insert(at, QByteArray(below(3) + 1, ";:=,/MSXHCO\0\xFF"[below(13)]));
                break;
            default:
                bytes.replace(at, 1, bytes.mid(below(bytes.size()), below(20)));
                break;
            }
        }
        ExpectToldOutcome(bytes);
        if (HasFatalFailure())
            FAIL() << "round " << round;
    }
}

TEST_F(ReplayBadInput, BytesOfEveryKindAreToldAsTheyShouldBe) {
    std::mt19937 random(11);
    for (int round = 0; round < 500; ++round) {
        QByteArray bytes = "BFME2RPL";
        while (bytes.size() < 2 * Replays::HeaderLength)
            bytes += static_cast<char>(random() % 256);
        ExpectToldOutcome(bytes);
    }
}

TEST_F(ReplayBadInput, TheLettersOfAnotherCodePageComeOutOneEach) {
    Put(u"x.rep"_s, ReplayBytes(MatchOf("maps/\xCC\xE8\xF0", "H\xCC\xE8\xF0,0,0,TT,1,8,1,0,1:X:X:X:X:X:X:X:")));
    EXPECT_EQ(List(), 1);
    EXPECT_EQ(Column(ReplayList::Map), QStringList{u"Ìèð"_s});
    EXPECT_TRUE(list_.Rows().Row(0).Tag.startsWith(u"HÌèð,"_s));
}
