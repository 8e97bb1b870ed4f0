// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Several programs that save one archive, one table or one settings file at the same time.

#include "Places.h"
#include "tests/cli/BigCommandTest.h"

#include <QProcess>

#include <memory>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

constexpr int programs = 6;
constexpr int rounds = 3;

class AtOnce : public BigCommandTest {
protected:
    /// Starts them all and waits for all of them; each must end with 0.
    template <typename Words>
    static void Run(const Words& words) {
        std::vector<std::unique_ptr<QProcess>> running;
        for (int program = 0; program < programs; ++program) {
            running.push_back(std::make_unique<QProcess>());
            running.back()->start(QString::fromUtf8(Places::Commands), words(program));
        }
        for (const auto& process : running) {
            EXPECT_TRUE(process->waitForFinished());
            EXPECT_EQ(process->exitCode(), 0) << process->readAllStandardError().constData();
        }
    }
};

} // namespace

TEST_F(AtOnce, NoSaveOfAnArchiveLosesAnothersEntry) {
    for (int round = 0; round < rounds; ++round) {
        TwoEntries();
        world_.WriteFile(u"new"_s, QByteArray(70'000, 'n'));
        Run([&](int program) {
            return QStringList{u"big"_s,
                               u"save"_s,
                               Native(u"two.big"_s),
                               Native(u"two.big"_s),
                               u"--add"_s,
                               u"Data\\New%1=%2"_s.arg(program).arg(Native(u"new"_s))};
        });
        const QByteArray listed = Output({u"big"_s, u"list"_s, Native(u"two.big"_s)});
        EXPECT_EQ(listed.count('\n'), 1 + 2 + programs) << listed.constData();
        EXPECT_EQ(RunCommand({u"big"_s, u"verify"_s, Native(u"two.big"_s)}).Code, 0);
    }
}

TEST_F(AtOnce, NoSaveOfATableLosesAnothersString) {
    world_.WriteFile(u"t.json"_s, R"({"language":0,"strings":[{"name":"a","value":"b"}]})");
    const Outcome made = RunCommand({u"csf"_s, u"import"_s, Native(u"t.json"_s), Native(u"t.csf"_s)});
    ASSERT_EQ(made.Code, 0) << made.Error.constData();
    for (int round = 0; round < rounds; ++round) {
        Run([&](int program) {
            return QStringList{u"csf"_s,           u"save"_s,  Native(u"t.csf"_s),
                               Native(u"t.csf"_s), u"--set"_s, u"NAME:%1:%2=value"_s.arg(round).arg(program)};
        });
    }
    const QByteArray listed = Output({u"csf"_s, u"list"_s, Native(u"t.csf"_s)});
    EXPECT_EQ(listed.count('\n'), 1 + 1 + rounds * programs) << listed.constData();
}

TEST_F(AtOnce, WhoReadsAnArchiveMeanwhileSeesItWhole) {
    TwoEntries();
    world_.WriteFile(u"new"_s, QByteArray(3'000'000, 'n'));
    Run([&](int program) {
        if (program % 2 == 0)
            return QStringList{u"big"_s,
                               u"save"_s,
                               u"--exact"_s,
                               Native(u"two.big"_s),
                               Native(u"two.big"_s),
                               u"--add"_s,
                               u"Data\\New%1=%2"_s.arg(program).arg(Native(u"new"_s))};
        return QStringList{u"big"_s, u"verify"_s, Native(u"two.big"_s)};
    });
}

TEST_F(AtOnce, NoSettingIsLost) {
    Run([](int program) { return QStringList{u"setting"_s, u"set"_s, u"Key%1"_s.arg(program), u"%1"_s.arg(program)}; });
    for (int program = 0; program < programs; ++program)
        EXPECT_EQ(Output({u"setting"_s, u"get"_s, u"Key%1"_s.arg(program)}), QByteArray::number(program) + '\n');
}
