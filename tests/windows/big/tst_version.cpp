// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "big/format/mBIG.h"
#include "big/window/frmVersion.h"
#include "tests/support/World.h"
#include "tests/windows/LanguageChecks.h"
#include "tests/windows/WindowTests.h"

#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

using namespace Qt::StringLiterals;

class tst_version : public QObject {
    Q_OBJECT
private Q_SLOTS:

    void init() {
        world_ = std::make_unique<World>();
        world_->UseLanguage(
            "[LNG]\r\nGenerals=Generals\r\nZeroHour=Zero Hour\r\nBFME=Middle-earth\r\nYes=Oui\r\nNo=Non\r\n"
            "BIGFormatVersion=Version BIG\r\nBigFileVersion2=Version :\r\nOK=D'accord\r\nCancel=Annuler\r\n");
        world_->Start();
    }

    void cleanup() {
        window_.reset();
        world_.reset();
    }

    void theGamesAreOfferedInTwoRows() {
        Open(0);
        QCOMPARE(Games()->count(), 2);
        QCOMPARE(Games()->itemText(0), u"Generals & Zero Hour"_s);
        QCOMPARE(Games()->itemText(1), u"Middle-earth I & II"_s);
    }

    void textsAreInTheUsersLanguage() {
        Open(0);
        QCOMPARE(window_->windowTitle(), u"Version BIG"_s);
        QCOMPARE(Part<QLabel>("lblVersion")->text(), u"Version :"_s);
        QCOMPARE(Part<QPushButton>("cmdOK")->text(), u"D'accord"_s);
        QCOMPARE(Part<QPushButton>("cmdDefault")->text(), u"Annuler"_s);
        QCOMPARE(Part<QRadioButton>("optYes")->text(), u"Oui"_s);
        QCOMPARE(Part<QRadioButton>("optYes")->accessibleName(), Part<QLabel>("lblTranslated")->text() + u" Oui"_s);
        QCOMPARE(Part<QRadioButton>("optNo")->accessibleName(), Part<QLabel>("lblTranslated")->text() + u" Non"_s);
    }

    void theControlsShowTheVersion_data() { Versions(); }

    void theControlsShowTheVersion() {
        QFETCH(int, version);
        QFETCH(int, row);
        QFETCH(bool, translated);
        Open(version);
        QCOMPARE(Games()->currentIndex(), row);
        QCOMPARE(Part<QRadioButton>("optYes")->isChecked(), translated);
        QCOMPARE(Part<QRadioButton>("optNo")->isChecked(), !translated);
    }

    void okStoresWhatIsChosen_data() { Versions(); }

    void okStoresWhatIsChosen() {
        QFETCH(int, version);
        QFETCH(int, row);
        QFETCH(bool, translated);
        Open((version + 3) % 4);
        Games()->setFocus();
        QTest::keyClick(Games(), row == 0 ? Qt::Key_Home : Qt::Key_End);
        auto* option = Part<QRadioButton>(translated ? "optYes" : "optNo");
        QTest::mouseClick(option, Qt::LeftButton, {}, QPoint(8, option->height() / 2));
        QTest::mouseClick(Part<QPushButton>("cmdOK"), Qt::LeftButton);
        QCOMPARE(mBIG::BigVersion, version);
        QVERIFY(!window_->isVisible());
    }

    void cancelAndEscapeChangeNothing() {
        Open(1);
        Games()->setCurrentIndex(1);
        QTest::mouseClick(Part<QPushButton>("cmdDefault"), Qt::LeftButton);
        QCOMPARE(mBIG::BigVersion, 1);
        QVERIFY(!window_->isVisible());
        Open(1);
        Games()->setCurrentIndex(1);
        QTest::keyClick(window_.get(), Qt::Key_Escape);
        QCOMPARE(mBIG::BigVersion, 1);
        QVERIFY(!window_->isVisible());
    }

    void enterIsOk() {
        Open(0);
        Games()->setCurrentIndex(1);
        QTest::keyClick(window_.get(), Qt::Key_Return);
        QCOMPARE(mBIG::BigVersion, 2);
    }

    void withNoRowChosenTheVersionStays() {
        Open(3);
        Games()->setCurrentIndex(-1);
        QTest::mouseClick(Part<QPushButton>("cmdOK"), Qt::LeftButton);
        QCOMPARE(mBIG::BigVersion, 3);
    }

    void textIsNeverCut_data() { AddEachLanguage(); }

    void textIsNeverCut() {
        QFETCH(QString, language);
        world_->UseOwnLanguage(language);
        world_->Start();
        Open(0);
        for (int row = 0; row < Games()->count(); ++row) {
            Games()->setCurrentIndex(row);
            QVERIFY(AllTextsHaveRoom(*window_));
        }
    }

private:
    static void Versions() {
        QTest::addColumn<int>("version");
        QTest::addColumn<int>("row");
        QTest::addColumn<bool>("translated");
        QTest::newRow("L225") << 0 << 0 << false;
        QTest::newRow("L231") << 1 << 0 << true;
        QTest::newRow("L219") << 2 << 1 << false;
        QTest::newRow("L253") << 3 << 1 << true;
    }

    void Open(qint32 version) {
        mBIG::BigVersion = version;
        window_ = std::make_unique<frmVersion>();
        window_->show();
        QVERIFY(QTest::qWaitForWindowExposed(window_.get()));
    }

    template <typename Control>
    Control* Part(const char* name) {
        return window_->findChild<Control*>(QString::fromLatin1(name));
    }

    QComboBox* Games() { return Part<QComboBox>("cbVersion"); }

    std::unique_ptr<World> world_;
    std::unique_ptr<frmVersion> window_;
};

WINDOW_TEST(tst_version)

#include "tst_version.moc"
