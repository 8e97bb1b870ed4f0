// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The restart out of the options dialog, with a script in the place of the program.

#include "core/options/OptionsPlan.h"
#include "platform/Paths.h"
#include "tests/core/OptionsTest.h"
#include "tests/support/Raised.h"

#include <QFile>
#include <QThread>

using namespace Qt::StringLiterals;

namespace {

class Restarts : public OptionsTest {
protected:
    Restarts() {
        const QString name = Paths::LastPart(Paths::Executable());
        program_ = world_.WriteFile(u"program\\"_s + name, "#!/bin/sh\nprintf \"%s;\" \"$0\" \"$#\" > \"$0.part\"\n"
                                                           "cat \"$BRINDOCK_REGISTRY\" >> \"$0.part\"\n"
                                                           "mv \"$0.part\" \"$0.started\"\n");
        MayRun(true);
        world_.WriteFile(u"program\\Other.lng"_s, "[Infos]\r\nLanguage=Other\r\nVersion=2005\r\n");
    }

    void MayRun(bool may) const {
        QFile::setPermissions(Paths::ToNative(program_),
                              QFile::ReadOwner | QFile::WriteOwner | (may ? QFile::ExeOwner : QFile::Permissions()));
    }

    /// What the new program saw, as soon as it has told it.
    [[nodiscard]] QByteArray Seen() const {
        for (int round = 0; round < 500 && !Files::FileExists(program_ + u".started"_s); ++round)
            QThread::msleep(10);
        return World::ReadFile(program_ + u".started"_s);
    }

    QString program_;
};

} // namespace

TEST_F(Restarts, YesStoresLanguageAndIconsStartsTheProgramAndHasTheOldOneEnd) {
    OptionsPlan plan;
    plan.ChooseLanguage(0);
    plan.ShowIcons(true);
    host_.Answers = {Host::Answer::Yes};
    navigator_.OnCall = [](const QString&) { EXPECT_EQ(ReadSetting(u"TradFileName"_s), u"Test.lng"_s); };
    EXPECT_TRUE(plan.Accept());
    EXPECT_EQ(navigator_.Calls, QStringList{u"MayEndProgram"_s});
    EXPECT_TRUE(mMain::RestartRequested);
    const QByteArray seen = Seen();
    EXPECT_TRUE(seen.startsWith(Paths::EncodeNative(Paths::ToNative(program_)) + ";0;")) << seen.constData();
    EXPECT_TRUE(seen.contains("\"TradFileName\"=\"Other.lng\"")) << "the new program reads what is stored";
    EXPECT_TRUE(seen.contains("\"ViewFileIcons\"=\"1\""));
}

TEST_F(Restarts, TheLanguageThatIsSelectedAlreadyRestartsTooWhereItIsClicked) {
    OptionsPlan plan;
    plan.ChooseLanguage(plan.Language());
    host_.Answers = {Host::Answer::Yes};
    EXPECT_TRUE(plan.Accept());
    EXPECT_TRUE(Seen().contains("\"TradFileName\"=\"Test.lng\""));
    EXPECT_EQ(ReadSetting(u"ViewFileIcons"_s), u"0"_s);
}

TEST_F(Restarts, AToolThatStaysStartsNothing) {
    OptionsPlan plan;
    plan.ShowIcons(true);
    host_.Answers = {Host::Answer::Yes};
    navigator_.ProgramMayEnd = false;
    EXPECT_FALSE(plan.Accept());
    QThread::msleep(200);
    EXPECT_FALSE(Files::FileExists(program_ + u".started"_s));
}

TEST_F(Restarts, AProgramThatCannotBeStartedRaisesAndNothingEnds) {
    MayRun(false);
    OptionsPlan plan;
    plan.ShowIcons(true);
    host_.Answers = {Host::Answer::Yes};
    EXPECT_EQ(NumberRaisedBy([&] { plan.Accept(); }), ErrorNumber::FileNotFound);
    EXPECT_FALSE(mMain::RestartRequested);
}
