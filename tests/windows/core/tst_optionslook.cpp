// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/windows/LanguageChecks.h"
#include "tests/windows/core/OptionsWindowTest.h"
#include "ui/window/NoticeStrip.h"

#include <QAbstractButton>
#include <QGroupBox>
#include <QLabel>

namespace {

QString Plain(QString text) {
    return text.remove(u'&');
}

} // namespace

class tst_optionslook : public OptionsWindowTest {
    Q_OBJECT
private Q_SLOTS:

    void init() { BeginWithGames(); }

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

    void aDescriptionThatIsMissingIsLoggedOnceADialog() {
        Open();
        for (const QString& key : {u"BFME"_s, u"BFME2"_s, u"Options"_s, u"ZeroHour"_s})
            Select(key);
        for (int row = 0; row < Options()->count(); ++row) {
            Click(*Options(), row);
            QVERIFY(!Part<QLabel>("lblOption")->text().isEmpty());
        }
        const QByteArray log = World::ReadFile(world_->ProgramFolder() + u"\\localization.log"_s);
        for (const char* option : {"quickstart", "noaudio", "noshaders"})
            QCOMPARE(log.count("ID=" + QByteArray(option) + ','), 1);
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
                                      u"opLoadShellMap"_s, u"lstShellMaps"_s, u"opRndShellMap"_s, u"UserControl11"_s,
                                      u"UserControl12"_s}));
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

    void textIsNeverCut_data() { AddEachLanguage(); }

    void textIsNeverCut() {
        QFETCH(QString, language);
        world_->UseOwnLanguage(language);
        WriteSetting(u"BFMELoadMod"_s, u"Gone.big"_s);
        world_->Start();
        Open();
        QVERIFY(AllTextsHaveRoom(*window_));
        Select(u"BFME"_s);
        QVERIFY(Part<NoticeStrip>("Notices")->isVisible());
        QVERIFY(!Part<NoticeStrip>("Notices")->IsElided());
        QVERIFY(AllTextsHaveRoom(*window_));
    }

    void aSmallScreenIsEnough_data() { AddEachLanguage(); }

    void aSmallScreenIsEnough() {
        QFETCH(QString, language);
        world_->UseOwnLanguage(language);
        WriteSetting(u"BFMELoadMod"_s, u"A mod that has gone.big"_s);
        WriteSetting(u"BFMEStartupOptions"_s, QString(u" -xres 1024"_s).repeated(20));
        WriteSetting(u"BFMEShellMapMode"_s, u"Load003"_s);
        world_->Start();
        Open();
        QVERIFY(AllTextsHaveRoom(*window_));
        Select(u"BFME"_s);
        QVERIFY(Part<NoticeStrip>("Notices")->isVisible());
        window_->resize(window_->minimumSizeHint());
        QTest::qWait(1);
        for (int row = 0; row < Options()->count(); ++row) {
            Click(*Options(), row);
            QVERIFY(AllTextsHaveRoom(*window_));
            QVERIFY(Options()->viewport()->rect().contains(Options()->visualItemRect(Options()->item(row))));
        }
        QVERIFY2(window_->height() <= 500, QByteArray::number(window_->height()).constData());
        QVERIFY2(window_->width() <= 784, QByteArray::number(window_->width()).constData());
    }

private:
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
};

WINDOW_TEST(tst_optionslook)
#include "tst_optionslook.moc"
