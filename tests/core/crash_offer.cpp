// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/CrashOffer.h"

#include "core/mMain.h"
#include "platform/File.h"
#include "platform/Files.h"
#include "platform/OwnFolder.h"
#include "tests/support/Printing.h"
#include "tests/support/ScriptedHost.h"
#include "tests/support/World.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using Answer = Host::Answer;

namespace {

class CrashOfferTest : public testing::Test {
protected:
    CrashOfferTest() { world_.Start(); }

    void Leave(const QString& name, const QByteArray& text) {
        Files::MakeFolders(OwnStateFolder() + u"\\crashes"_s);
        File::Open(OwnStateFolder() + u"\\crashes\\"_s + name, File::Access::ReadWrite).Write(0, text);
    }

    static QStringList Kept() {
        QStringList names = Files::ListFolder(OwnStateFolder() + u"\\crashes\\*"_s);
        names.sort();
        return names;
    }

    World world_;
    ScriptedHost host_;
};

} // namespace

TEST_F(CrashOfferTest, WithoutAReportNothingIsAsked) {
    CrashOffer::Offer();
    EXPECT_TRUE(host_.Messages.empty());
}

TEST_F(CrashOfferTest, TheLastReportIsShownToWhoWantsToSeeIt) {
    Leave(u"20261121-100000-7.txt"_s, "older\n");
    Leave(u"20261122-100000-7.txt"_s, "Brindock 2005 3.5.4\nSIGSEGV\nbrindock+0x1f\n");
    host_.Answers = {Answer::Yes};
    CrashOffer::Offer();
    ASSERT_EQ(host_.Messages.size(), 1U);
    EXPECT_EQ(host_.Messages[0].Text, u"CrashLeft"_s);
    EXPECT_EQ(host_.Messages[0].Default, Answer::No);
    EXPECT_EQ(host_.Listed,
              (QStringList{u"CrashReport"_s, u"Brindock 2005 3.5.4"_s, u"SIGSEGV"_s, u"brindock+0x1f"_s}));
}

TEST_F(CrashOfferTest, AReportIsOfferedOnce) {
    Leave(u"20261122-100000-7.txt"_s, "x\n");
    host_.Answers = {Answer::No};
    CrashOffer::Offer();
    EXPECT_TRUE(host_.Listed.isEmpty());
    EXPECT_EQ(Kept(), QStringList{u"20261122-100000-7.offered.txt"_s});
    CrashOffer::Offer();
    EXPECT_EQ(host_.Messages.size(), 1U);
}

TEST_F(CrashOfferTest, TheLastFiveStay) {
    for (int day = 1; day <= 7; ++day)
        Leave(u"2026110%1-100000-7.txt"_s.arg(day), "x\n");
    host_.Answers = {Answer::No};
    CrashOffer::Offer();
    EXPECT_EQ(Kept().size(), 5);
    EXPECT_EQ(Kept().first(), u"20261103-100000-7.offered.txt"_s);
}
