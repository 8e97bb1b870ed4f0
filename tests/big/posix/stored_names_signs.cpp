// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Files whose names hold the sign that stands for lost letters: only here there are any.
#include "tests/big/stored_names_fixture.h"

using namespace Qt::StringLiterals;
using Answer = Host::Answer;

TEST_F(StoredNamesTest, ANewArchiveAsksAboutItsOwnOnly) {
    OpenSample();
    Add(u"\u65E5.txt"_s);
    Speaker.Answers = {Answer::No};
    Speaker.FileNames = {Place.Root() + u"\\new.big"_s};
    Editor.New();
    Add(u"?.txt"_s);
    EXPECT_EQ(QuestionsOfSave(), 0U);
}

TEST_F(StoredNamesTest, ANameWithTheSignItselfMeetsOneThatLostItsLetter) {
    OpenSample();
    Add(u"?.txt"_s);
    Speaker.Answers = {Answer::Yes};
    Add(u"\u65E5.txt"_s);
    EXPECT_TRUE(View.Told.Text.contains(u"one: ?.txt + \u65E5.txt."_s)) << View.Told.Text.toStdString();
    Speaker.Answers = {Answer::Yes};
    Add(u"?.TXT"_s);
    EXPECT_EQ(Speaker.Messages.back().Text, u"?.TXT\r\n\r\nexists"_s);
    EXPECT_TRUE(View.Told.Text.contains(u"one: \u65E5.txt + ?.TXT."_s)) << View.Told.Text.toStdString();
}
