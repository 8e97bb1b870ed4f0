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

    /// In UTF-16, with its mark.
    static QByteArray Wide(const QByteArray& text) {
        QByteArray wide("\xFF\xFE", 2);
        for (const char letter : text)
            wide.append(letter).append('\0');
        return wide;
    }

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

TEST_F(LanguageLists, ALanguageIsNamedInThePageOfItsFile) {
    Add(u"Russian.lng"_s, "[Infos]\r\nLanguage=\xD0\xF3\xF1\r\nVersion=2005\r\nTranslator=\xC8\r\nCodePage=1251\r\n");
    EXPECT_EQ(Shown().first(), u"Russian.lng: \u0420\u0443\u0441 \\ \u0418"_s);
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

TEST_F(LanguageLists, ALanguageIsFoundWhereverInItsFileItNamesItself) {
    const QByteArray infos = "[Infos]\r\nLanguage=Far\r\nVersion=2005\r\n";
    const QByteArray texts = "[LNG]\r\n" + QByteArray("Key=text [not a section]\r\n").repeated(5000);
    Add(u"Behind.lng"_s, texts + infos);
    Add(u"Blanks.lng"_s, texts + "  [ \t Infos ] \r\nLanguage=Far\r\nVersion=2005\r\n");
    Add(u"Twice.lng"_s, texts + "[[Infos]\r\n" + infos);
    Add(u"Wide.lng"_s, Wide(texts + infos));
    Add(u"WideOdd.lng"_s, Wide(texts + infos) + 'x');
    Add(u"WideShort.lng"_s, Wide(infos));
    Add(u"Not.lng"_s, texts + "[Info s]\r\nLanguage=Far\r\nVersion=2005\r\n");
    Add(u"NotThis.lng"_s, texts + "[Infos2]\r\nLanguage=Far\r\nVersion=2005\r\n");
    EXPECT_EQ(Shown(), (QStringList{u"Behind.lng: Far \\ "_s, u"Blanks.lng: Far \\ "_s, u"Test.lng: Test \\ Nobody"_s,
                                    u"Twice.lng: Far \\ "_s, u"Wide.lng: Far \\ "_s, u"WideOdd.lng: Far \\ "_s,
                                    u"WideShort.lng: Far \\ "_s}));
}

TEST_F(LanguageLists, ALanguageIsFoundAcrossTheBlocksThatAreRead) {
    const QByteArray infos = "[  Infos  ]\r\nLanguage=Far\r\nVersion=2005\r\n";
    for (const qsizetype before : {65'524, 65'528, 65'530, 65'533, 65'535, 65'536, 131'064})
        Add(u"File %1.lng"_s.arg(before), QByteArray(before - 1, 'x') + '\n' + infos);
    EXPECT_EQ(Shown().size(), 1 + 7) << Shown().join(u' ').toStdString();
}

TEST_F(LanguageLists, FilesOfAnySizeAndShapeAreBorne) {
    constexpr qsizetype tenMegabytes = 10'000'000;
    const QByteArray infos = "[Infos]\r\nLanguage=Big\r\nVersion=2005\r\n";
    Add(u"Begin.lng"_s, infos + QByteArray(tenMegabytes, 'x'));
    Add(u"Brackets.lng"_s, QByteArray(tenMegabytes, '['));
    Add(u"End.lng"_s, QByteArray(tenMegabytes, '\n') + infos);
    Add(u"Lines.lng"_s, QByteArray("[a]\r\nb=c\r\n").repeated(1'000'000));
    Add(u"Zeros.lng"_s, QByteArray(tenMegabytes, '\0'));
    QElapsedTimer timer;
    timer.start();
    EXPECT_EQ(Shown(), (QStringList{u"Begin.lng: Big \\ "_s, u"End.lng: Big \\ "_s, u"Test.lng: Test \\ Nobody"_s}));
    EXPECT_LT(timer.elapsed(), 10'000);
}

TEST_F(LanguageLists, FiveHundredFilesAreListed) {
    for (int number = 0; number < 500; ++number)
        Add(u"More %1.lng"_s.arg(100 + number), "[Infos]\r\nLanguage=More\r\nVersion=2005\r\n");
    EXPECT_EQ(Shown().size(), 501);
    EXPECT_EQ(Shown().first(), u"More 100.lng: More \\ "_s);
}
