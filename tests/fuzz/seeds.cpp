// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// The seeds of the fuzzers, run through their targets without any fuzzer.
#include "Places.h"
#include "fuzz/Fuzzing.h"

#include "tests/support/Printing.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>

using namespace Qt::StringLiterals;

namespace {

QDir SeedsOf(const QString& target) {
    return {QString::fromUtf8(Places::Sources) + u"/fuzz/seeds/"_s + target};
}

class Seeds : public testing::TestWithParam<std::string> {};

std::vector<std::string> Targets() {
    std::vector<std::string> names;
    for (const auto& [name, run] : FuzzTarget::All())
        names.push_back(name);
    return names;
}

} // namespace

TEST_P(Seeds, AreReadOrRefusedAsTheTargetExpects) {
    const QDir seeds = SeedsOf(QString::fromStdString(GetParam()));
    const QStringList names = seeds.entryList(QDir::Files);
    ASSERT_FALSE(names.isEmpty());
    for (const QString& name : names) {
        QFile file(seeds.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        EXPECT_NO_THROW(FuzzTarget::All().at(GetParam())(file.readAll())) << name.toStdString();
    }
}

INSTANTIATE_TEST_SUITE_P(Target, Seeds, testing::ValuesIn(Targets()), [](const auto& target) { return target.param; });

TEST(SeedFolders, BelongToTargets) {
    QStringList targets;
    for (const std::string& name : Targets())
        targets << QString::fromStdString(name);
    EXPECT_EQ(SeedsOf({}).entryList(QDir::Dirs | QDir::NoDotAndDotDot), targets);
}
