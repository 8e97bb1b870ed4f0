// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The language files against the keys that code, forms and data use.

#include "Places.h"
#include "core/FirstLanguage.h"
#include "core/Settings.h"
#include "core/mMain.h"
#include "core/mTraduction.h"
#include "platform/AnsiCodec.h"
#include "platform/Files.h"
#include "tests/support/OwnLanguages.h"
#include "tests/support/Printing.h"
#include "tests/support/World.h"

#include <gtest/gtest.h>

#include <QDirIterator>
#include <QFile>
#include <QMap>
#include <QRegularExpression>

#include <set>

using namespace Qt::StringLiterals;

namespace {

/// Keys of all windows and messages, those that are not built yet included.
constexpr auto KnownKeys =
    "About Actions Add AddFiles AdvancedParameters AFText1 AFText2 AFText22 AFText3 AI AutoCheckForUpdates BFME "
    "BFME2 BIGEditorDescription BIGFile BigFileVersion2 BIGFormatVersion Browse BrowseForFolder "
    "BuildingFileList Cancel CheckForUpdates Close Comments2 CompressFiles ConfirmDelete "
    "ContainsTranslatedText2 Content2 CreateDirs CreatingFile CSFEditorDescription CSFError CSFFile "
    "CurrentFile2 Date Date2 Delete Description Details DontCompressFiles DontLoadShellMap Download "
    "DownloadStatus EasyAI Edit ElapsedTime2 EmptyFile Exit Export ExportComplete ExportFiles Extract "
    "ExtractFilesTo ExtractionCanceled ExtractionComplete File File2 FileAlreadyExists FileLanguage2 FileName "
    "FileNotFound Files FilesToExport FileToAdd2 FileType FileType2 FileVersion Find Folder GeneralOptions "
    "Generals HardAI Help IncludeReadMe Informations InsertModifiedFile Install InstallationComplete KiloBytes "
    "LoadMod2 LoadRandomShellMap LoadShellMap2 Map Map2 Maps MediumAI Mod Modify Mods Name Name2 New NewFolder "
    "NewVersion Next No noaudio NoGameDetected nologo noshaders noshellmap NoTeam NoUpdateAvailable Observer "
    "Observers OK Open Options OptionsDescription PersonalFiles PersonalFilesDescription Players Players2 "
    "Previous ProgramLanguage ProgramOptions ProgressLbl quickstart QuitSave Ready RebootConfirm RemainingTime2 "
    "Replay Replays Save SaveAs SaveFailed SearchingUpdate Seconds ServerError ShellMap ShellMaps Size Size2 "
    "StartupParameters Team Text Tools TransferRate2 Type2 UnsupportedFormat Update UpdateAvailable Value "
    "Value2 vDetails Version Version2 vIcons View ViewFileIcons vList vSmallIcons WritingFiles WritingHeader "
    "WrongGame Yes ZeroHour ZIP ";

using Texts = QMap<QString, QString>;

QString SourceFolder() {
    return QString::fromUtf8(Places::Sources);
}

QByteArray BytesOf(const QString& nativePath) {
    QFile file(nativePath);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << nativePath.toStdString();
    return file.readAll();
}

/// Section LNG.
Texts TextsOf(const QString& language) {
    Texts texts;
    std::set<QString> found; // in lower case, as keys are found without regard to case
    bool inTexts = false;
    for (const QString& line : AnsiCodec::Decode(OwnLanguages::Bytes(language)).split(u"\r\n"_s)) {
        if (line.startsWith(u'['))
            inTexts = line == u"[LNG]"_s;
        const qsizetype equals = line.indexOf(u'=');
        if (!inTexts || equals < 0 || line.startsWith(u';'))
            continue;
        const QString key = line.first(equals);
        EXPECT_TRUE(found.insert(key.toLower()).second)
            << language.toStdString() << ".lng: " << key.toStdString() << " stands twice";
        texts.insert(key, line.sliced(equals + 1));
    }
    return texts;
}

void Collect(std::set<QString>& keys, const QString& text, const QString& pattern) {
    auto found = QRegularExpression(pattern).globalMatch(text);
    while (found.hasNext())
        keys.insert(found.next().captured(1));
}

/// The keys that stand in the project's code and forms.
std::set<QString> KeysInSources() {
    std::set<QString> keys;
    for (const QString& room :
         {u"app"_s, u"core"_s, u"big"_s, u"csf"_s, u"personal"_s, u"install"_s, u"update"_s, u"ui"_s}) {
        QDirIterator files(SourceFolder() + u'/' + room, {u"*.cpp"_s, u"*.h"_s, u"*.ui"_s}, QDir::Files,
                           QDirIterator::Subdirectories);
        while (files.hasNext()) {
            const QString text = QString::fromUtf8(BytesOf(files.next()));
            Collect(keys, text, uR"x(GetText\(\s*(?:u|QStringLiteral\(\s*u?)"([^"]+)")x"_s);
            Collect(keys, text, uR"x(setProperty\(\s*"Tag",\s*(?:u|QStringLiteral\(\s*u?)"([^"]+)")x"_s);
            Collect(keys, text, uR"x(name="Tag"[^>]*>\s*<string[^>]*>([^<]+)</string>)x"_s);
        }
    }
    return keys;
}

std::set<QString> KeysOfData() {
    std::set<QString> keys;
    Collect(keys, AnsiCodec::Decode(BytesOf(SourceFolder() + u"/data/gdatas.cfg"_s)), uR"x(Side-?\d+=(\w+))x"_s);
    return keys;
}

QStringList EndsOf(const QString& text) {
    QStringList ends;
    for (const QString& end : {u"..."_s, u":"_s})
        if (text.endsWith(end))
            ends += end;
    return ends;
}

class LanguageFiles : public testing::TestWithParam<QString> {
protected:
    QString language_ = GetParam();
    Texts texts_ = TextsOf(language_);
    Texts english_ = TextsOf(u"English"_s);

    /// The file and one of its keys, as a message names them.
    [[nodiscard]] std::string At(const QString& key) const {
        return language_.toStdString() + ".lng: " + key.toStdString();
    }

    void ExpectEach(const std::set<QString>& keys) {
        EXPECT_FALSE(keys.empty());
        const QStringList found = texts_.keys();
        for (const QString& key : keys)
            EXPECT_TRUE(found.contains(key, Qt::CaseInsensitive)) << At(key) << " is missing";
    }
};

} // namespace

TEST_P(LanguageFiles, HoldEveryKnownKey) {
    const QStringList known = QString::fromUtf8(KnownKeys).split(u' ', Qt::SkipEmptyParts);
    ExpectEach({known.begin(), known.end()});
}

TEST_P(LanguageFiles, HoldEveryKeyThatCodeAndFormsUse) {
    const std::set<QString> keys = KeysInSources();
    EXPECT_TRUE(keys.contains(u"NoGameDetected"_s)) << "keys in code are not found";
    EXPECT_TRUE(keys.contains(u"PersonalFilesDescription"_s)) << "keys in forms are not found";
    ExpectEach(keys);
}

TEST_P(LanguageFiles, HoldEveryNameOfASide) {
    EXPECT_TRUE(KeysOfData().contains(u"SideGoblins"_s));
    ExpectEach(KeysOfData());
}

TEST_P(LanguageFiles, HoldTheKeysOfTheEnglishOneAndNoOther) {
    for (const QString& key : english_.keys())
        EXPECT_TRUE(texts_.contains(key)) << At(key) << " is missing, English.lng has it";
    for (const QString& key : texts_.keys())
        EXPECT_TRUE(english_.contains(key)) << At(key) << " stands there, English.lng lacks it";
}

TEST_P(LanguageFiles, KeepEveryTextWithin254Characters) {
    for (auto text = texts_.cbegin(); text != texts_.cend(); ++text) {
        EXPECT_FALSE(text->isEmpty()) << At(text.key());
        EXPECT_LE(text->size(), 254) << At(text.key());
    }
}

TEST_P(LanguageFiles, ComeBackWholeThroughGetText) {
    World world;
    world.UseOwnLanguage(language_);
    world.Start();
    for (auto text = texts_.cbegin(); text != texts_.cend(); ++text)
        EXPECT_EQ(mTraduction::GetText(text.key()), QString(*text).replace(u"\\n"_s, u"\r\n"_s));
    EXPECT_FALSE(Files::FileExists(world.ProgramFolder() + u"\\localization.log"_s));
}

TEST_P(LanguageFiles, NameThemselvesForTheLanguageList) {
    World world;
    const QString file = world.WriteFile(u"program\\x.lng"_s, OwnLanguages::Bytes(language_));
    EXPECT_EQ(mMain::INI().ReadINI(u"Infos"_s, u"Version"_s, file), u"2005"_s);
    EXPECT_FALSE(mMain::INI().ReadINI(u"Infos"_s, u"Language"_s, file).isEmpty());
    EXPECT_FALSE(mMain::INI().ReadINI(u"Infos"_s, u"Translator"_s, file).isEmpty());
}

TEST_P(LanguageFiles, HaveWindowsLineEndsAndCharacters) {
    const QByteArray bytes = OwnLanguages::Bytes(language_);
    EXPECT_EQ(bytes.count('\n'), bytes.count("\r\n"));
    EXPECT_TRUE(bytes.endsWith("\r\n"));
    const QString text = QString::fromLatin1(bytes);
    const QRegularExpression unassigned(uR"([\x00-\x09\x0B\x0C\x0E-\x1F\x7F\x81\x8D\x8F\x90\x9D])"_s);
    EXPECT_FALSE(text.contains(unassigned)) << At({}) << "a byte is no character of Windows-1252";
    EXPECT_FALSE(text.contains(QRegularExpression(uR"([\xC2-\xDF][\x80-\xBF]|\xE2\x80)"_s)))
        << At({}) << "a letter stands in UTF-8";
}

TEST_P(LanguageFiles, KeepPlaceholdersAndLineBreaks) {
    for (auto text = texts_.cbegin(); text != texts_.cend(); ++text)
        for (const QString& mark : {u"%1"_s, u"%2"_s, u"%3"_s, u"%"_s, u"\\n"_s})
            EXPECT_EQ(text->count(mark), english_[text.key()].count(mark)) << At(text.key());
    EXPECT_TRUE(english_[u"QuitSave"_s].contains(u"%1"_s));
    EXPECT_TRUE(english_[u"ProgressLbl"_s].contains(u"%3"_s));
}

// The dialog stays: OK is what restarts the program.
TEST_P(LanguageFiles, NameTheButtonThatFollowsTheChoiceOfALanguage) {
    EXPECT_TRUE(texts_[u"SelectLanguage"_s].contains(u' ' + texts_[u"OK"_s])) << At(u"SelectLanguage"_s);
}

TEST_P(LanguageFiles, EndInAColonOrDotsWhereTheEnglishTextDoes) {
    for (auto text = texts_.cbegin(); text != texts_.cend(); ++text)
        EXPECT_EQ(EndsOf(*text), EndsOf(english_[text.key()])) << At(text.key());
}

TEST_P(LanguageFiles, EndALabelFormWithItsColon) {
    for (auto text = texts_.cbegin(); text != texts_.cend(); ++text) {
        const bool isName = text.key() == u"BFME2"_s || text.key().startsWith(u"AFText"_s);
        if (text.key().endsWith(u'2') && !isName) {
            EXPECT_TRUE(text->endsWith(language_ == u"French"_s ? u" :"_s : u":"_s)) << At(text.key());
        }
    }
}

// A letter that one text marked for itself could be another's in the same menu.
TEST_P(LanguageFiles, LeaveTheChoiceOfLettersToMenusAndWindows) {
    for (auto text = texts_.cbegin(); text != texts_.cend(); ++text)
        EXPECT_FALSE(text->contains(u'&')) << At(text.key());
}

TEST_P(LanguageFiles, AreEachChosenForALocale) {
    static const QMap<QString, QString> locales{
        {u"Dutch"_s, u"nl"_s},   {u"English"_s, u"en"_s},    {u"French"_s, u"fr"_s}, {u"German"_s, u"de"_s},
        {u"Italian"_s, u"it"_s}, {u"Portuguese"_s, u"pt"_s}, {u"Spanish"_s, u"es"_s}};
    ASSERT_TRUE(locales.contains(language_)) << "no locale is known for " << At({});
    const World world;
    world.WriteFile(u"program\\setup.cfg"_s, BytesOf(SourceFolder() + u"/data/setup.cfg"_s));
    world.WriteFile(u"program\\%1.lng"_s.arg(language_), OwnLanguages::Bytes(language_));
    FirstLanguage::Choose({locales[language_] + u"-XX"_s});
    EXPECT_EQ(ReadSetting(u"TradFileName"_s), language_ + u".lng"_s);
}

INSTANTIATE_TEST_SUITE_P(Each, LanguageFiles, testing::ValuesIn(OwnLanguages::Names()),
                         [](const auto& tested) { return tested.param.toStdString(); });

TEST(LanguageNames, AreAllDifferent) {
    World world;
    std::set<QString> names;
    const QStringList languages = OwnLanguages::Names();
    for (const QString& language : languages) {
        const QString file = world.WriteFile(u"program\\x.lng"_s, OwnLanguages::Bytes(language));
        names.insert(mMain::INI().ReadINI(u"Infos"_s, u"Language"_s, file));
    }
    EXPECT_GE(languages.size(), 7);
    EXPECT_EQ(static_cast<qsizetype>(names.size()), languages.size());
    EXPECT_TRUE(names.contains(u"Fran\u00E7ais"_s));
}
