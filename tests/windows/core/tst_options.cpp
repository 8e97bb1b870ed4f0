// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/windows/core/OptionsWindowTest.h"
#include "ui/window/NoticeStrip.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QCheckBox>
#include <QComboBox>
#include <QFile>
#include <QRadioButton>
#include <QScopeGuard>

class tst_options : public OptionsWindowTest {
    Q_OBJECT
private Q_SLOTS:

    void init() { BeginWithGames(); }

    void cleanup() { End(); }

    void languagesAreListedAndTheOneInUseIsSelected() {
        AddLanguage("A");
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

    void whatAScreenReaderSetsIsStored() {
        AddContent();
        Open();
        Select(u"Generals"_s);
        for (const char* name : {"opRndShellMap", "checkMod"})
            QAccessible::queryAccessibleInterface(Part<QWidget>(name))
                ->actionInterface()
                ->doAction(QAccessibleActionInterface::toggleAction());
        Select(u"ZeroHour"_s);
        QCOMPARE(ReadSetting(u"GenShellMapMode"_s), u"Random"_s);
        QCOMPARE(ReadSetting(u"GenLoadMod"_s), u"Alpha.big"_s);
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

    void withNoTheListKeepsTheNewSelectionAndNothingIsStored() {
        AddLanguage("A");
        Open();
        ChooseByKeyboard(Qt::Key_Up);
        host_->Answers = {Host::Answer::No};
        Part<QAbstractButton>("UserControl11")->click();
        QVERIFY(!window_->isVisible());
        QCOMPARE(Part<QComboBox>("cmbLanguage")->currentIndex(), 0);
        QCOMPARE(ReadSetting(u"TradFileName"_s), u"Test.lng"_s);
    }

    void yesStoresTheLanguageAndStartsTheProgramAnew() {
        QVERIFY(QFile::remove(Paths::ToNative(world_->Root() + u'\\' + ProgramFile()))); // the tests' own starts
        const QString told = Paths::ToNative(world_->Root()) + u"/told"_s;
        qputenv(RestartTold, told.toUtf8());
        const auto untold = qScopeGuard([] { qunsetenv(RestartTold); });
        AddLanguage("Zulu");
        Open();
        ChooseByKeyboard(Qt::Key_Down);
        host_->Answers = {Host::Answer::Yes};
        Part<QAbstractButton>("UserControl11")->click();
        QVERIFY(!window_->isVisible());
        QCOMPARE(window_->result(), static_cast<int>(QDialog::Accepted));
        QCOMPARE(ReadSetting(u"TradFileName"_s), u"Zulu.lng"_s);
        QVERIFY(mMain::RestartRequested);
        QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(told), 30'000);
    }

    void iconsThatAreOnAlreadyNeedNoRestart() {
        WriteSetting(u"ViewFileIcons"_s, u"1"_s);
        Open();
        QVERIFY(Part<QCheckBox>("ckViewIcons")->isChecked());
        Part<QAbstractButton>("UserControl11")->click();
        QVERIFY(!window_->isVisible());
        QVERIFY(host_->Messages.empty());
        QCOMPARE(ReadSetting(u"ViewFileIcons"_s), u"1"_s);
    }

    void aRefusedRestartStoresNoBoxAndCancelLeavesThemSo() {
        Open();
        Part<QCheckBox>("ckCheckForUpdates")->click();
        Part<QCheckBox>("ckViewIcons")->click();
        navigator_->ProgramMayEnd = false;
        host_->Answers = {Host::Answer::Yes};
        Part<QAbstractButton>("UserControl11")->click();
        QVERIFY(window_->isVisible());
        window_->close();
        QCOMPARE(ReadSetting(u"AutoCheckForUpdates"_s), QString());
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

private:
    void ChooseByKeyboard(Qt::Key key) {
        auto* const list = Part<QComboBox>("cmbLanguage");
        list->setFocus();
        const int before = list->currentIndex();
        QTest::keyClick(list, key);
        QVERIFY(list->currentIndex() != before);
    }
};

WINDOW_TEST(tst_options)
#include "tst_options.moc"
