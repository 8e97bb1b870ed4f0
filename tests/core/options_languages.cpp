// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The languages that the options dialog lists.

#include "core/options/LanguageFiles.h"
#include "core/options/OptionsPlan.h"
#include "tests/core/OptionsTest.h"

#include <QElapsedTimer>

using namespace Qt::StringLiterals;

namespace {

class LanguageLists : public OptionsTest {
protected:
    void Add(const QString& name, const QByteArray& bytes) const { world_.WriteFile(u"program\\"_s + name, bytes); }

    static QStringList Shown() {
        QStringList shown;
        for (const LanguageFile& file : LanguageFiles::InProgramFolder())
            shown += file.FileName + u": "_s + file.Shown;
        return shown;
    }
};

} // namespace

TEST_F(LanguageLists, ALanguageIsListedWithItsTranslator) {
    Add(u"Deutsch.LNG"_s, "[infos]\r\nLanguage=Deutsch\r\nVersion=2005\r\nTranslator=J\xFCrgen\r\n");
    EXPECT_EQ(Shown(), (QStringList{u"Deutsch.LNG: Deutsch \\ Jürgen"_s, u"Test.lng: Test \\ Nobody"_s}));
}

TEST_F(LanguageLists, ALanguageWithoutATranslatorIsListedToo) {
    Add(u"A.lng"_s, "[Infos]\r\nLanguage=A\r\nVersion=2005\r\n");
    EXPECT_EQ(Shown().first(), u"A.lng: A \\ "_s);
}

TEST_F(LanguageLists, WhatDoesNotQualifyIsPassedOver) {
    Add(u"NoName.lng"_s, "[Infos]\r\nVersion=2005\r\n");
    Add(u"Empty.lng"_s, "");
    Add(u"Old.lng"_s, "[Infos]\r\nLanguage=Old\r\nVersion=2004\r\n");
    Add(u"Padded.lng"_s, "[Infos]\r\nLanguage=Padded\r\nVersion=02005\r\n");
    Add(u"NoSection.lng"_s, "Language=None\r\nVersion=2005\r\n");
    Add(u"Elsewhere.lng"_s, "[LNG]\r\nLanguage=Elsewhere\r\nVersion=2005\r\n");
    Add(u"Text.txt"_s, "[Infos]\r\nLanguage=Text\r\nVersion=2005\r\n");
    Files::MakeFolders(world_.ProgramFolder() + u"\\Folder.lng"_s);
    EXPECT_EQ(Shown(), QStringList{u"Test.lng: Test \\ Nobody"_s});
}

TEST_F(LanguageLists, TheLanguageInUseIsSelectedByItsExactFileName) {
    Add(u"A.lng"_s, "[Infos]\r\nLanguage=A\r\nVersion=2005\r\n");
    EXPECT_EQ(OptionsPlan().Language(), 1);
    WriteSetting(u"TradFileName"_s, u"a.lng"_s);
    EXPECT_EQ(OptionsPlan().Language(), -1);
    WriteSetting(u"TradFileName"_s, u"A.lng"_s);
    EXPECT_EQ(OptionsPlan().Language(), 0);
}

TEST_F(LanguageLists, WithoutAProgramFolderThereIsNoneAndTheTabsAreThere) {
    mMain::ProgramFolder += u"\\gone"_s;
    const OptionsPlan plan;
    EXPECT_TRUE(plan.Languages().empty());
    EXPECT_EQ(plan.Language(), -1);
    EXPECT_EQ(plan.Tabs().size(), 5U);
}

TEST_F(LanguageLists, FilesOfAnySizeAndShapeAreBorne) {
    constexpr qsizetype tenMegabytes = 10'000'000;
    const QByteArray infos = "[Infos]\r\nLanguage=Big\r\nVersion=2005\r\n";
    Add(u"Begin.lng"_s, infos + QByteArray(tenMegabytes, 'x'));
    Add(u"End.lng"_s, QByteArray(tenMegabytes, '\n') + infos);
    Add(u"Lines.lng"_s, QByteArray("[a]\r\nb=c\r\n").repeated(1'000'000));
    Add(u"Zeros.lng"_s, QByteArray(tenMegabytes, '\0'));
    QByteArray wide("\xFF\xFE", 2);
    for (const char letter : infos)
        wide.append(letter).append('\0');
    Add(u"Wide.lng"_s, wide.left(wide.size() / 2));
    QElapsedTimer timer;
    timer.start();
    const QStringList shown = Shown();
    EXPECT_TRUE(shown.contains(u"Begin.lng: Big \\ "_s));
    EXPECT_TRUE(shown.contains(u"Test.lng: Test \\ Nobody"_s));
    EXPECT_EQ(shown.size(), 2) << "no other names itself at its beginning: " << shown.join(u' ').toStdString();
    EXPECT_LT(timer.elapsed(), 10'000);
}

TEST_F(LanguageLists, FiveHundredFilesAreListed) {
    for (int number = 0; number < 500; ++number)
        Add(u"More %1.lng"_s.arg(100 + number), "[Infos]\r\nLanguage=More\r\nVersion=2005\r\n");
    EXPECT_EQ(Shown().size(), 501);
    EXPECT_EQ(Shown().first(), u"More 100.lng: More \\ "_s);
}
