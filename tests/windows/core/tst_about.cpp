// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/mMain.h"
#include "core/window/frmAbout.h"
#include "tests/support/World.h"
#include "tests/windows/LanguageChecks.h"
#include "tests/windows/WindowTests.h"

#include <QLabel>

using namespace Qt::StringLiterals;

class tst_about : public QObject {
    Q_OBJECT
private Q_SLOTS:

    void init() {
        world_ = std::make_unique<World>();
        world_->UseLanguage("[LNG]\r\nAbout=\xC0 propos\r\n");
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
    }

private:
    std::unique_ptr<World> world_;
    std::unique_ptr<frmAbout> about_;
};

WINDOW_TEST(tst_about)
#include "tst_about.moc"
