// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/FirstLanguage.h"

#include "core/Settings.h"
#include "core/mMain.h"
#include "tests/support/Printing.h"
#include "tests/support/World.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class FirstLanguageTest : public testing::Test {
protected:
    /// What is stored after a first start of somebody with these languages.
    [[nodiscard]] QString ChosenFor(const QStringList& languages) const {
        WriteSetting(u"TradFileName"_s, {});
        FirstLanguage::Choose(languages);
        return ReadSetting(u"TradFileName"_s);
    }

    void LayOut() const {
        for (const char* const language : {"French", "English", "German"})
            world_.WriteFile(u"program\\%1.lng"_s.arg(QLatin1StringView(language)), "[LNG]\r\n");
        world_.WriteFile(u"program\\setup.cfg"_s,
                         "[Languages]\r\nfr=French.lng\r\nde=German.lng\r\nit=Italian.lng\r\ndefault=English.lng\r\n");
    }

    World world_;
};

} // namespace

TEST_F(FirstLanguageTest, TheFirstOneThatIsKnownIsStored) {
    LayOut();
    EXPECT_EQ(ChosenFor({u"fr-CA"_s, u"de"_s}), u"French.lng"_s);
    EXPECT_EQ(ChosenFor({u"ja-JP"_s, u"de-AT"_s, u"fr"_s}), u"German.lng"_s);
    EXPECT_EQ(ChosenFor({u"FR_fr.UTF-8"_s}), u"French.lng"_s);
    EXPECT_EQ(ChosenFor({u"ja"_s}), u"English.lng"_s);
    EXPECT_EQ(ChosenFor({}), u"English.lng"_s);
    for (const QString& unknown : {u"C"_s, u"C.UTF-8"_s, u"fur-IT"_s, u"d"_s, u""_s})
        EXPECT_EQ(ChosenFor({unknown}), u"English.lng"_s) << unknown.toStdString();
}

TEST_F(FirstLanguageTest, AFileThatIsNotThereIsNotStored) {
    LayOut();
    EXPECT_EQ(ChosenFor({u"it"_s}), QString());
}

TEST_F(FirstLanguageTest, AChoiceStays) {
    LayOut();
    WriteSetting(u"TradFileName"_s, u"Own.lng"_s);
    FirstLanguage::Choose({u"fr"_s});
    EXPECT_EQ(ReadSetting(u"TradFileName"_s), u"Own.lng"_s);
}

TEST_F(FirstLanguageTest, WithoutThePackagesFileNothingIsStored) {
    EXPECT_EQ(ChosenFor({u"fr"_s}), QString());
}

TEST_F(FirstLanguageTest, AStartChoosesBeforeTheFirstTextIsRead) {
    LayOut();
    mMain::Prepare({});
    EXPECT_TRUE(mMain::LanguageFileName.endsWith(u".lng"_s)) << mMain::LanguageFileName.toStdString();
}
