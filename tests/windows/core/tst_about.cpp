// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/mMain.h"
#include "core/window/frmAbout.h"
#include "tests/support/World.h"
#include "tests/windows/LanguageChecks.h"
#include "tests/windows/WindowTests.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QLabel>
#include <QPushButton>

using namespace Qt::StringLiterals;

class tst_about : public QObject {
    Q_OBJECT
private Q_SLOTS:

    void init() {
        world_ = std::make_unique<World>();
        world_->UseLanguage("[LNG]\r\nAbout=\xC0 propos\r\nDetailsCopied=Copi\xE9\r\n");
        world_->Start();
        about_ = std::make_unique<frmAbout>();
        about_->show();
        QVERIFY(QTest::qWaitForWindowExposed(about_.get()));
    }

    void cleanup() {
        about_.reset();
        world_.reset();
    }

    void itNamesTheVersionAndIsABeta() {
        QCOMPARE(about_->windowTitle(), u"\u00C0 propos"_s);
        QCOMPARE(about_->findChild<QLabel*>(u"lblVersion"_s)->text(), mMain::VersionText());
        QCOMPARE(about_->findChild<QLabel*>(u"Label2"_s)->text(), u"BETA Version"_s);
        QCOMPARE(about_->findChild<QLabel*>(u"Label3"_s)->text(), u"BETA Version"_s);
    }

    void aClickOnTheBackgroundClosesIt() {
        QTest::mouseClick(about_.get(), Qt::LeftButton, {}, QPoint(300, 20));
        QVERIFY(!about_->isVisible());
    }

    void aClickOnALabelClosesIt() {
        QTest::mouseClick(about_->findChild<QLabel*>(u"Label2"_s), Qt::LeftButton);
        QVERIFY(!about_->isVisible());
    }

    void escapeClosesIt() {
        QTest::keyClick(about_.get(), Qt::Key_Escape);
        QVERIFY(!about_->isVisible());
    }

    void enterClosesIt() {
        QTest::keyClick(about_.get(), Qt::Key_Return);
        QVERIFY(!about_->isVisible());
    }

    void theButtonCopiesTheDetailsAndTheBoxStays() {
        QGuiApplication::clipboard()->clear();
        QTest::mouseClick(Button(), Qt::LeftButton);
        QVERIFY(about_->isVisible());
        const QStringList lines = QGuiApplication::clipboard()->text().split(u'\n');
        QCOMPARE(lines.value(0), u"Brindock 2005 "_s + mMain::VersionText());
        QVERIFY(lines.value(3).startsWith(u"Display: %1, scale "_s.arg(QGuiApplication::platformName())));
        QCOMPARE(lines.size(), 10);
        QCOMPARE(Button()->text(), u"Copi\u00E9"_s);
    }

    void theKeyboardReachesTheButton_data() {
        QTest::addColumn<int>("key");
        QTest::newRow("blank") << static_cast<int>(Qt::Key_Space);
        QTest::newRow("Enter") << static_cast<int>(Qt::Key_Return);
    }

    void theKeyboardReachesTheButton() {
        QFETCH(int, key);
        QGuiApplication::clipboard()->clear();
        QVERIFY(!Button()->hasFocus());
        QTest::keyClick(about_.get(), Qt::Key_Tab);
        QVERIFY(Button()->hasFocus());
        QTest::keyClick(Button(), static_cast<Qt::Key>(key));
        QVERIFY(about_->isVisible());
        QVERIFY(QGuiApplication::clipboard()->text().startsWith(u"Brindock 2005 "_s));
        QTest::keyClick(Button(), Qt::Key_Escape);
        QVERIFY(!about_->isVisible());
    }

    void anotherKeyDoesNot() {
        QTest::keyClick(about_.get(), Qt::Key_A);
        QVERIFY(about_->isVisible());
    }

    void textIsNeverCut_data() { AddEachLanguage(); }

    void textIsNeverCut() {
        QFETCH(QString, language);
        world_->UseOwnLanguage(language);
        world_->Start();
        frmAbout about;
        about.show();
        QVERIFY(QTest::qWaitForWindowExposed(&about));
        QVERIFY(AllTextsHaveRoom(about));
        QTest::mouseClick(about.findChild<QPushButton*>(u"cmdCopyDetails"_s), Qt::LeftButton);
        QVERIFY(AllTextsHaveRoom(about));
    }

private:
    QPushButton* Button() { return about_->findChild<QPushButton*>(u"cmdCopyDetails"_s); }

    std::unique_ptr<World> world_;
    std::unique_ptr<frmAbout> about_;
};

WINDOW_TEST(tst_about)
#include "tst_about.moc"
