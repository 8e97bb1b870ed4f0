// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The language files against the keys that code, forms and data use.

#include "Places.h"
#include "core/mMain.h"
#include "core/mTraduction.h"
#include "platform/AnsiCodec.h"
#include "platform/Files.h"
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

QByteArray LanguageBytes(const QString& language) {
    return BytesOf(SourceFolder() + u"/data/languages/"_s + language + u".lng"_s);
}

/// Section LNG; the keys in lower case, as they are found without regard to case.
Texts TextsOf(const QString& language) {
    Texts texts;
    bool inTexts = false;
    for (const QString& line : AnsiCodec::Decode(LanguageBytes(language)).split(u"\r\n"_s)) {
        if (line.startsWith(u'['))
            inTexts = line == u"[LNG]"_s;
        const qsizetype equals = line.indexOf(u'=');
        if (!inTexts || equals < 0 || line.startsWith(u';'))
            continue;
        const QString key = line.first(equals).toLower();
        EXPECT_FALSE(texts.contains(key)) << key.toStdString() << " stands twice";
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

class LanguageFiles : public testing::TestWithParam<const char*> {
protected:
    QString language_ = QString::fromUtf8(GetParam());
    Texts texts_ = TextsOf(language_);

    void ExpectEach(const std::set<QString>& keys) {
        EXPECT_FALSE(keys.empty());
        for (const QString& key : keys)
            EXPECT_TRUE(texts_.contains(key.toLower())) << key.toStdString() << " is missing";
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

TEST_P(LanguageFiles, HoldTheSameKeysInEachLanguage) {
    EXPECT_EQ(texts_.keys(), TextsOf(u"English"_s).keys());
}

TEST_P(LanguageFiles, KeepEveryTextWithin254Characters) {
    for (auto text = texts_.cbegin(); text != texts_.cend(); ++text) {
        EXPECT_FALSE(text->isEmpty()) << text.key().toStdString();
        EXPECT_LE(text->size(), 254) << text.key().toStdString();
    }
}

TEST_P(LanguageFiles, ComeBackWholeThroughGetText) {
    World world;
    world.UseLanguage(LanguageBytes(language_));
    world.Start();
    for (auto text = texts_.cbegin(); text != texts_.cend(); ++text)
        EXPECT_EQ(mTraduction::GetText(text.key()), QString(*text).replace(u"\\n"_s, u"\r\n"_s));
    EXPECT_FALSE(Files::FileExists(world.ProgramFolder() + u"\\localization.log"_s));
}

TEST_P(LanguageFiles, NameThemselvesForTheLanguageList) {
    World world;
    const QString file = world.WriteFile(u"program\\x.lng"_s, LanguageBytes(language_));
    EXPECT_EQ(mMain::INI().ReadINI(u"Infos"_s, u"Version"_s, file), u"2005"_s);
    EXPECT_FALSE(mMain::INI().ReadINI(u"Infos"_s, u"Language"_s, file).isEmpty());
    EXPECT_FALSE(mMain::INI().ReadINI(u"Infos"_s, u"Translator"_s, file).isEmpty());
}

TEST_P(LanguageFiles, HaveWindowsLineEndsAndNoUtf8) {
    const QByteArray bytes = LanguageBytes(language_);
    EXPECT_EQ(bytes.count('\n'), bytes.count("\r\n"));
    EXPECT_TRUE(bytes.endsWith("\r\n"));
    EXPECT_FALSE(bytes.contains('\xC3')) << "a letter stands in UTF-8";
}

TEST_P(LanguageFiles, KeepThePlaceholders) {
    const Texts english = TextsOf(u"English"_s);
    for (auto text = texts_.cbegin(); text != texts_.cend(); ++text) {
        for (const QString& placeholder : {u"%1"_s, u"%2"_s, u"%3"_s})
            EXPECT_EQ(text->contains(placeholder), english[text.key()].contains(placeholder))
                << text.key().toStdString();
    }
    EXPECT_TRUE(english[u"quitsave"_s].contains(u"%1"_s));
    EXPECT_TRUE(english[u"progresslbl"_s].contains(u"%3"_s));
}

TEST_P(LanguageFiles, EndALabelFormWithItsColon) {
    for (auto text = texts_.cbegin(); text != texts_.cend(); ++text) {
        const bool isName = text.key() == u"bfme2"_s || text.key().startsWith(u"aftext"_s);
        if (text.key().endsWith(u'2') && !isName) {
            EXPECT_TRUE(text->endsWith(language_ == u"French"_s ? u" :"_s : u":"_s)) << text.key().toStdString();
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Each, LanguageFiles, testing::Values("English", "French"),
                         [](const auto& tested) { return std::string(tested.param); });
