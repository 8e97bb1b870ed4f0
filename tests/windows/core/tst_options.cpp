// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Places.h"
#include "core/Settings.h"
#include "core/mMain.h"
#include "core/window/frmOptions.h"
#include "platform/Files.h"
#include "tests/windows/EditorTest.h"
#include "tests/windows/WindowTests.h"
#include "ui/window/NoticeStrip.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QListWidget>
#include <QRadioButton>
#include <QStackedWidget>
#include <QTabBar>

using namespace Qt::StringLiterals;

namespace {

constexpr auto texts = "[Infos]\r\nLanguage=Test\r\nVersion=2005\r\nTranslator=Nobody\r\n[LNG]\r\n"
                       "Options=R\xE9glages\r\nProgramOptions=Programme\r\nZeroHour=Heure H\r\n"
                       "GeneralOptions=G\xE9n\xE9ral\r\nAutoCheckForUpdates=Auto\r\nProgramLanguage=Langue :\r\n"
                       "ViewFileIcons=Ic\xF4nes\r\nExactOffsets=Exactes\r\nStartupParameters=Lancement\r\n"
                       "LoadMod2=Ce mod :\r\nShellMaps=Shellmaps\r\nDontLoadShellMap=Aucune\r\n"
                       "LoadShellMap2=Cette shellmap :\r\nLoadRandomShellMap=Une autre\r\nOK=Bon\r\nCancel=Annuler\r\n"
                       "nologo=Sans logo\\nni vid\xE9o\r\nnoshellmap=Image fixe\r\nPageReplaces=Perd %1.\r\n"
                       "KeepStored=Garder\r\nReplacesMod=mod %1\r\nReplacesShellMap=%2 pour %1\r\n"
                       "ReplacesOptions=options %1\r\nShellMapNone=rien\r\nShellMapRandom=hasard\r\n";

QString Plain(QString text) {
    return text.remove(u'&');
}

} // namespace

class tst_options : public EditorTest<frmOptions> {
    Q_OBJECT
private Q_SLOTS:

    void init() {
        BeginIn(texts);
        for (GameIndex game = 0; game < GameCount; ++game)
            world_->InstallGame(game);
        world_->Start();
    }

    void cleanup() { End(); }

    void everyControlSpeaksTheUsersLanguage() {
        Open();
        QCOMPARE(window_->windowTitle(), u"R\u00E9glages"_s);
        const QMap<QString, QString> shown{
            {u"ckCheckForUpdates"_s, u"Auto"_s},  {u"ckViewIcons"_s, u"Ic\u00F4nes"_s},
            {u"ckExactOffsets"_s, u"Exactes"_s},  {u"checkMod"_s, u"Ce mod :"_s},
            {u"opNoShellMap"_s, u"Aucune"_s},     {u"opLoadShellMap"_s, u"Cette shellmap :"_s},
            {u"opRndShellMap"_s, u"Une autre"_s}, {u"UserControl11"_s, u"Bon"_s},
            {u"UserControl12"_s, u"Annuler"_s}};
        for (auto text = shown.cbegin(); text != shown.cend(); ++text)
            QCOMPARE(Plain(window_->findChild<QAbstractButton*>(text.key())->text()), text.value());
        QCOMPARE(Part<QGroupBox>("Frame1")->title(), u"G\u00E9n\u00E9ral"_s);
        QCOMPARE(Part<QGroupBox>("Frame2")->title(), u"BIG Editor"_s);
        QCOMPARE(Part<QGroupBox>("Frame3")->title(), u"Lancement"_s);
        QCOMPARE(Part<QGroupBox>("Frame4")->title(), u"Shellmaps"_s);
        QCOMPARE(Plain(Part<QLabel>("Label1")->text()), u"Langue :"_s);
    }

    void tabsHaveKeysCaptionsAndTheGamesPictures() {
        Game[2].InstallPath.clear();
        Open();
        QCOMPARE(Tabs()->count(), 4);
        const QStringList keys{u"Options"_s, u"Generals"_s, u"ZeroHour"_s, u"BFME2"_s};
        const QStringList captions{u"Programme"_s, u"Generals"_s, u"Heure H"_s, u"BFME2"_s};
        QSet<QByteArray> pictures;
        for (int tab = 0; tab < 4; ++tab) {
            QCOMPARE(Tabs()->tabData(tab).toString(), keys[tab]);
            QCOMPARE(Tabs()->tabText(tab), captions[tab]);
            QCOMPARE(Tabs()->tabIcon(tab).isNull(), tab == 0);
            const QImage picture = Tabs()->tabIcon(tab).pixmap(16).toImage();
            pictures.insert(QByteArray(reinterpret_cast<const char*>(picture.constBits()),
                                       static_cast<int>(picture.sizeInBytes())));
        }
        QCOMPARE(pictures.size(), 4);
    }

    void thePagesFollowTheTabs() {
        Open();
        QVERIFY(Part<QWidget>("picTab_0")->isVisible());
        Select(u"Generals"_s);
        QVERIFY(!Part<QWidget>("picTab_0")->isVisible());
        QVERIFY(Part<QWidget>("picTab_1")->isVisible());
        Select(u"Options"_s);
        QVERIFY(Part<QWidget>("picTab_0")->isVisible());
    }

    void languagesAreListedAndTheOneInUseIsSelected() {
        world_->WriteFile(u"program\\A.lng"_s, "[Infos]\r\nLanguage=A\r\nVersion=2005\r\nTranslator=B\r\n");
        Open();
        auto* const list = Part<QComboBox>("cmbLanguage");
        QCOMPARE(list->count(), 2);
        QCOMPARE(list->itemText(0), u"A \\ B"_s);
        QCOMPARE(list->currentIndex(), 1);
    }

    void aGamesPageShowsItsOptionsModsAndShellMaps() {
        WriteSetting(u"GenStartupOptions"_s, u" -noshellmap"_s);
        WriteSetting(u"GenLoadMod"_s, u"Beta.big"_s);
        WriteSetting(u"GenShellMapMode"_s, u"Load001"_s);
        AddContent();
        Open();
        Select(u"Generals"_s);
        QCOMPARE(Options()->count(), 2);
        QCOMPARE(Options()->item(0)->text(), u"nologo"_s);
        QCOMPARE(Options()->item(0)->checkState(), Qt::Unchecked);
        QCOMPARE(Options()->item(1)->checkState(), Qt::Checked);
        QCOMPARE(Rows("lstMods"), (QStringList{u"First"_s, u"Beta.big"_s}));
        QCOMPARE(Row("lstMods"), 1);
        QVERIFY(Part<QCheckBox>("checkMod")->isChecked());
        QCOMPARE(Rows("lstShellMaps"), (QStringList{u"001 - One"_s, u"002 - Two"_s}));
        QCOMPARE(Row("lstShellMaps"), 0);
        QVERIFY(Part<QRadioButton>("opLoadShellMap")->isChecked());
        QVERIFY(!Part<NoticeStrip>("Notices")->isVisible());
    }

    void withoutModsAndShellMapsTheirControlsAreDisabled() {
        WriteSetting(u"ZHShellMapMode"_s, u"Random"_s);
        Open();
        Select(u"ZeroHour"_s);
        for (const char* name : {"checkMod", "lstMods", "opLoadShellMap", "opRndShellMap", "lstShellMaps"})
            QVERIFY(!Part<QWidget>(name)->isEnabled());
        QVERIFY(Part<QRadioButton>("opNoShellMap")->isEnabled());
        QVERIFY(Part<QRadioButton>("opNoShellMap")->isChecked());
        AddContent();
        Select(u"Generals"_s);
        for (const char* name : {"checkMod", "lstMods", "opLoadShellMap", "opRndShellMap", "lstShellMaps"})
            QVERIFY(Part<QWidget>(name)->isEnabled());
    }

    void aClickOnAnOptionTellsWhatItDoesAndAnotherTabClearsThat() {
        Open();
        Select(u"Generals"_s);
        QCOMPARE(Part<QLabel>("lblOption")->text(), QString());
        Click(*Options(), 0);
        QCOMPARE(Part<QLabel>("lblOption")->text(), u"Sans logo\nni vid\u00E9o"_s);
        QTest::keyClick(Options(), Qt::Key_Down);
        QCOMPARE(Part<QLabel>("lblOption")->text(), u"Image fixe"_s);
        Select(u"BFME"_s);
        QCOMPARE(Part<QLabel>("lblOption")->text(), QString());
    }

    void whatIsChosenIsStoredWhenTheTabIsLeft() {
        AddContent();
        Open();
        Select(u"Generals"_s);
        Click(*Options(), 0);
        QTest::keyClick(Options(), Qt::Key_Space);
        Part<QCheckBox>("checkMod")->click();
        Click(*List("lstMods"), 1);
        Part<QRadioButton>("opLoadShellMap")->click();
        Click(*List("lstShellMaps"), 1);
        QCOMPARE(ReadSetting(u"GenStartupOptions"_s), QString());
        Select(u"Options"_s);
        QCOMPARE(ReadSetting(u"GenStartupOptions"_s), u" -nologo"_s);
        QCOMPARE(ReadSetting(u"GenLoadMod"_s), u"Beta.big"_s);
        QCOMPARE(ReadSetting(u"GenShellMapMode"_s), u"Load002"_s);
    }

    void eachShellMapButtonStoresItsMode() {
        AddContent();
        Open();
        for (const auto& [button, mode] :
             {std::pair("opRndShellMap", u"Random"_s), {"opLoadShellMap", u"Load001"_s}, {"opNoShellMap", QString()}}) {
            Select(u"Generals"_s);
            Part<QRadioButton>(button)->click();
            Select(u"ZeroHour"_s);
            QCOMPARE(ReadSetting(u"GenShellMapMode"_s), mode);
        }
    }

    void aListKeepsARowSelectedUnderAClickWithCtrl() {
        AddContent();
        Open();
        Select(u"Generals"_s);
        QListView* const mods = List("lstMods");
        QTest::mouseClick(mods->viewport(), Qt::LeftButton, Qt::ControlModifier,
                          mods->visualRect(mods->model()->index(0, 0)).center());
        QVERIFY(mods->selectionModel()->isRowSelected(0));
    }

    void okStoresThePageAndTheProgramsBoxes() {
        Open();
        Part<QCheckBox>("ckCheckForUpdates")->click();
        Part<QCheckBox>("ckExactOffsets")->click();
        Select(u"Generals"_s);
        Click(*Options(), 1);
        QTest::keyClick(Options(), Qt::Key_Space);
        Part<QAbstractButton>("UserControl11")->click();
        QVERIFY(!window_->isVisible());
        QCOMPARE(window_->result(), static_cast<int>(QDialog::Accepted));
        QCOMPARE(ReadSetting(u"GenStartupOptions"_s), u" -noshellmap"_s);
        QCOMPARE(ReadSetting(u"AutoCheckForUpdates"_s), u"1"_s);
        QCOMPARE(ReadSetting(u"ExactOffsets"_s), u"1"_s);
        QVERIFY(host_->Messages.empty());
    }

    void anyOtherWayThanOkCancels_data() {
        QTest::addColumn<int>("way");
        QTest::newRow("button") << 0;
        QTest::newRow("Escape") << 1;
        QTest::newRow("cross") << 2;
        QTest::newRow("Escape over a notice") << 3;
    }

    void anyOtherWayThanOkCancels() {
        QFETCH(int, way);
        WriteSetting(u"GenStartupOptions"_s, u" -before"_s);
        WriteSetting(u"BFMELoadMod"_s, u"Before.big"_s);
        Open();
        for (const QString& key : {u"Generals"_s, u"BFME"_s, u"Options"_s})
            Select(key);
        QCOMPARE(ReadSetting(u"GenStartupOptions"_s), QString());
        QCOMPARE(ReadSetting(u"BFMELoadMod"_s), QString());
        if (way == 3) {
            WriteSetting(u"ZHLoadMod"_s, u"Gone.big"_s);
            Select(u"ZeroHour"_s);
            QVERIFY(Part<NoticeStrip>("Notices")->isVisible());
        }
        if (way == 0)
            Part<QAbstractButton>("UserControl12")->click();
        else if (way == 2)
            window_->close();
        else
            QTest::keyClick(window_.get(), Qt::Key_Escape);
        QVERIFY(!window_->isVisible());
        QCOMPARE(window_->result(), static_cast<int>(QDialog::Rejected));
        QCOMPARE(ReadSetting(u"GenStartupOptions"_s), u" -before"_s);
        QCOMPARE(ReadSetting(u"BFMELoadMod"_s), u"Before.big"_s);
        QCOMPARE(ReadSetting(u"AutoCheckForUpdates"_s), QString());
    }

    void changedIconsOrAClickedLanguageAskAboutTheRestart_data() {
        QTest::addColumn<bool>("icons");
        QTest::newRow("icons") << true;
        QTest::newRow("language") << false;
    }

    void changedIconsOrAClickedLanguageAskAboutTheRestart() {
        QFETCH(bool, icons);
        Open();
        if (icons) {
            Part<QCheckBox>("ckViewIcons")->click();
        } else {
            Part<QComboBox>("cmbLanguage")->setFocus();
            Part<QComboBox>("cmbLanguage")->showPopup();
            QTest::keyClick(Part<QComboBox>("cmbLanguage")->view(), Qt::Key_Return);
        }
        host_->Answers = {Host::Answer::No};
        Part<QAbstractButton>("UserControl11")->click();
        QCOMPARE(host_->Messages.size(), 1U);
        QCOMPARE(host_->Messages[0].Text, u"RebootConfirm"_s);
        QVERIFY(!window_->isVisible());
        QCOMPARE(ReadSetting(u"TradFileName"_s), u"Test.lng"_s);
        QCOMPARE(ReadSetting(u"ViewFileIcons"_s), QString());
    }

    void noLanguageAtTheRestartKeepsTheDialog() {
        WriteSetting(u"TradFileName"_s, u"Gone.lng"_s);
        Open();
        Part<QCheckBox>("ckViewIcons")->click();
        host_->Answers = {Host::Answer::Yes};
        Part<QAbstractButton>("UserControl11")->click();
        QVERIFY(window_->isVisible());
        QCOMPARE(host_->Messages.size(), 2U);
        QVERIFY(!mMain::RestartRequested);
    }

    void aToolThatStaysKeepsTheDialogWhichIsCancelledAgain() {
        WriteSetting(u"GenStartupOptions"_s, u" -before"_s);
        Open();
        Part<QCheckBox>("ckViewIcons")->click();
        Select(u"Generals"_s);
        navigator_->ProgramMayEnd = false;
        host_->Answers = {Host::Answer::Yes};
        Part<QAbstractButton>("UserControl11")->click();
        QVERIFY(window_->isVisible());
        QCOMPARE(ReadSetting(u"GenStartupOptions"_s), QString());
        window_->close();
        QCOMPARE(ReadSetting(u"GenStartupOptions"_s), u" -before"_s);
        QCOMPARE(ReadSetting(u"ViewFileIcons"_s), QString());
    }

    void theNoticeNamesWhatLeavingReplacesAndItsLinkKeepsIt() {
        WriteSetting(u"GenLoadMod"_s, u"Gone.big"_s);
        WriteSetting(u"GenShellMapMode"_s, u"Load002"_s);
        AddContent();
        Open();
        Select(u"Generals"_s);
        auto* const strip = Part<NoticeStrip>("Notices");
        QCOMPARE(strip->Text(), u"Perd mod Gone.big; 001 pour 002."_s);
        Part<QAbstractButton>("lblNoticeLink_0")->click();
        QVERIFY(!strip->isVisible());
        QCOMPARE(Row("lstShellMaps"), 1);
        Select(u"Options"_s);
        QCOMPARE(ReadSetting(u"GenLoadMod"_s), u"Gone.big"_s);
        QCOMPARE(ReadSetting(u"GenShellMapMode"_s), u"Load002"_s);
    }

    void theNoticeGoesWithTheTabAndWithWhatTheUserChooses() {
        WriteSetting(u"GenShellMapMode"_s, u"Load002"_s);
        AddContent();
        Open();
        auto* const strip = Part<NoticeStrip>("Notices");
        Select(u"Generals"_s);
        QVERIFY(strip->isVisible());
        Click(*List("lstShellMaps"), 1);
        QVERIFY(!strip->isVisible());
        WriteSetting(u"ZHLoadMod"_s, u"Gone.big"_s);
        Select(u"ZeroHour"_s);
        QVERIFY(strip->isVisible());
        Select(u"Options"_s);
        QVERIFY(!strip->isVisible());
    }

    void aNoticeThatWasClosedStaysClosed() {
        WriteSetting(u"GenLoadMod"_s, u"Gone.big"_s);
        AddContent();
        Open();
        Select(u"Generals"_s);
        Part<QAbstractButton>("cmdCloseNotice")->click();
        Part<QRadioButton>("opRndShellMap")->click();
        QVERIFY(!Part<NoticeStrip>("Notices")->isVisible());
    }

    void theKeyboardTurnsThePagesFromAnywhere() {
        Open();
        QVERIFY(Tabs()->hasFocus());
        QTest::keyClick(Tabs(), Qt::Key_Right);
        QCOMPARE(Tabs()->currentIndex(), 1);
        Options()->setFocus();
        QTest::keyClick(window_.get(), Qt::Key_Tab, Qt::ControlModifier);
        QCOMPARE(Tabs()->currentIndex(), 2);
        QVERIFY(Tabs()->hasFocus());
        QTest::keyClick(window_.get(), Qt::Key_Backtab, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(Tabs()->currentIndex(), 1);
        QTest::keyClick(window_.get(), Qt::Key_PageDown, Qt::ControlModifier);
        QCOMPARE(Tabs()->currentIndex(), 2);
        for (int turn = 0; turn < 3; ++turn)
            QTest::keyClick(window_.get(), Qt::Key_PageUp, Qt::ControlModifier);
        QCOMPARE(Tabs()->currentIndex(), 4);
    }

    void theTabKeyReachesEveryControlInOrder() {
        AddContent();
        Open();
        QCOMPARE(Walk(), (QStringList{u"Tab1"_s, u"ckCheckForUpdates"_s, u"cmbLanguage"_s, u"ckViewIcons"_s,
                                      u"ckExactOffsets"_s, u"UserControl11"_s, u"UserControl12"_s}));
        Select(u"Generals"_s);
        Tabs()->setFocus();
        QCOMPARE(Walk(), (QStringList{u"Tab1"_s, u"lstOptions"_s, u"checkMod"_s, u"lstMods"_s, u"opNoShellMap"_s,
                                      u"lstShellMaps"_s, u"UserControl11"_s, u"UserControl12"_s}));
    }

    void everyControlHasAMnemonicOfItsOwnAndAName() {
        Open();
        QStringList keys;
        for (const char* name :
             {"ckCheckForUpdates", "ckViewIcons", "ckExactOffsets", "UserControl11", "UserControl12"})
            keys += QKeySequence::mnemonic(Part<QAbstractButton>(name)->text()).toString();
        keys += QKeySequence::mnemonic(Part<QLabel>("Label1")->text()).toString();
        for (const char* name : {"checkMod", "opNoShellMap", "opLoadShellMap", "opRndShellMap"})
            QVERIFY(!QKeySequence::mnemonic(Part<QAbstractButton>(name)->text()).isEmpty());
        QCOMPARE(QSet<QString>(keys.begin(), keys.end()).size(), keys.size());
        QVERIFY(!keys.contains(QString()));
        QCOMPARE(Part<QWidget>("lstOptions")->accessibleName(), u"Lancement"_s);
        QCOMPARE(Part<QWidget>("lstMods")->accessibleName(), u"Ce mod :"_s);
        QCOMPARE(Part<QWidget>("lstShellMaps")->accessibleName(), u"Cette shellmap :"_s);
    }

    void wildSettingsAndModesAreBorne_data() {
        QTest::addColumn<QString>("mode");
        for (const QString& mode :
             {u"Load"_s, u"Load1"_s, u"LoadXYZ"_s, u"Load005"_s, u"NoShellMap"_s, u"L"_s, QString(10'000, u'\u00E9')})
            QTest::newRow(mode.left(12).toUtf8().constData()) << mode;
    }

    void wildSettingsAndModesAreBorne() {
        QFETCH(QString, mode);
        WriteSetting(u"GenShellMapMode"_s, mode);
        WriteSetting(u"GenStartupOptions"_s, QString(10'000, u'x'));
        WriteSetting(u"GenLoadMod"_s, QString(10'000, u'"'));
        AddContent();
        Open();
        Select(u"Generals"_s);
        QCOMPARE(Row("lstShellMaps"), 0);
        QCOMPARE(Part<QRadioButton>("opNoShellMap")->isChecked(), mode == u"NoShellMap");
        QVERIFY(window_->width() < 784);
        Part<QAbstractButton>("UserControl12")->click();
        QCOMPARE(ReadSetting(u"GenShellMapMode"_s), mode);
    }

    void noTextIsCutAndASmallScreenIsEnough_data() {
        QTest::addColumn<QString>("file");
        QTest::newRow("English") << u"English.lng"_s;
        QTest::newRow("French") << u"French.lng"_s;
    }

    void noTextIsCutAndASmallScreenIsEnough() {
        QFETCH(QString, file);
        QFile language(QString::fromUtf8(Places::Sources) + u"/data/languages/"_s + file);
        QVERIFY(language.open(QIODevice::ReadOnly));
        world_->UseLanguage(language.readAll());
        WriteSetting(u"BFMELoadMod"_s, u"A mod that has gone.big"_s);
        WriteSetting(u"BFMEStartupOptions"_s, QString(u" -xres 1024"_s).repeated(20));
        WriteSetting(u"BFMEShellMapMode"_s, u"Load003"_s);
        world_->Start();
        Open();
        QVERIFY2(Tabs()->width() >= Tabs()->sizeHint().width(),
                 QByteArray::number(Tabs()->sizeHint().width()).constData());
        ExpectNothingCut();
        Select(u"BFME"_s);
        QVERIFY(Part<NoticeStrip>("Notices")->isVisible());
        window_->resize(window_->minimumSizeHint());
        QTest::qWait(1);
        for (int row = 0; row < Options()->count(); ++row) {
            Click(*Options(), row);
            ExpectNothingCut();
            QVERIFY(Options()->viewport()->rect().contains(Options()->visualItemRect(Options()->item(row))));
        }
        QVERIFY2(window_->height() <= 500, QByteArray::number(window_->height()).constData());
        QVERIFY2(window_->width() <= 784, QByteArray::number(window_->width()).constData());
    }

private:
    void Open() {
        window_ = std::make_unique<frmOptions>();
        window_->show();
        QVERIFY(QTest::qWaitForWindowActive(window_.get()));
    }

    /// Two mods and two shell maps for the first game.
    void AddContent() const {
        const QString game = u"games\\Generals\\"_s;
        world_->WriteFile(game + u"Alpha.big"_s, "x");
        world_->WriteFile(game + u"Alpha.ini"_s, "[Mod]\r\nName=First\r\n");
        world_->WriteFile(game + u"Beta.big"_s, "x");
        world_->WriteFile(game + u"Maps\\QvShellMap001\\QvInfos.ini"_s, "[Infos]\r\nName=One\r\n");
        world_->WriteFile(game + u"Maps\\QvShellMap002\\QvInfos.ini"_s, "[Infos]\r\nName=Two\r\n");
    }

    QTabBar* Tabs() { return Part<QTabBar>("Tab1"); }

    QListWidget* Options() { return Part<QListWidget>("lstOptions"); }

    QListView* List(const char* name) { return Part<QListView>(name); }

    int Row(const char* list) {
        const QModelIndexList rows = List(list)->selectionModel()->selectedRows();
        return rows.size() == 1 ? rows.first().row() : -1;
    }

    QStringList Rows(const char* list) {
        QStringList rows;
        const QAbstractItemModel* const model = List(list)->model();
        for (int row = 0; row < model->rowCount(); ++row)
            rows += model->index(row, 0).data().toString();
        return rows;
    }

    void Select(const QString& key) {
        for (int tab = 0; tab < Tabs()->count(); ++tab)
            if (Tabs()->tabData(tab).toString() == key)
                QTest::mouseClick(Tabs(), Qt::LeftButton, {}, Tabs()->tabRect(tab).center());
        QCOMPARE(Tabs()->tabData(Tabs()->currentIndex()).toString(), key);
    }

    /// The names of the controls that the Tab key comes to, once around.
    QStringList Walk() {
        QStringList names;
        QWidget* const first = QApplication::focusWidget();
        do {
            names += QApplication::focusWidget()->objectName();
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        } while (QApplication::focusWidget() != first && names.size() < 30);
        return names;
    }

    void ExpectNothingCut() {
        for (const QAbstractButton* const button : window_->findChildren<QAbstractButton*>())
            if (button->isVisible() && !button->text().isEmpty())
                QVERIFY2(button->width() >= button->sizeHint().width() &&
                             button->height() >= button->sizeHint().height(),
                         qPrintable(button->objectName()));
        for (const QLabel* const label : window_->findChildren<QLabel*>())
            if (label->isVisible() && label->wordWrap())
                QVERIFY2(label->height() >= label->heightForWidth(label->width()), qPrintable(label->text()));
            else if (label->isVisible())
                QVERIFY2(label->width() >= label->sizeHint().width(), qPrintable(label->text()));
    }
};

WINDOW_TEST(tst_options)
#include "tst_options.moc"
