// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/mMain.h"
#include "platform/Files.h"
#include "tests/update/ScriptedHttp.h"
#include "tests/windows/EditorTest.h"
#include "tests/windows/LanguageChecks.h"
#include "tests/windows/WindowTests.h"
#include "ui/skin/TDLine.h"
#include "ui/window/BusyAnimation.h"
#include "update/mUpdater.h"
#include "update/window/frmUpdate.h"

#include <QFile>
#include <QGroupBox>
#include <QLabel>
#include <QMessageBox>
#include <QPointer>
#include <QProgressBar>
#include <QPushButton>
#include <QStackedWidget>

using namespace Qt::StringLiterals;

namespace {

const QString infoUrl = u"http://server/updates_info.inf"_s;
const QString updateUrl = u"http://other/a/setup.exe"_s;

/// How often a window comes up.
class ShowCounter : public QObject {
public:
    int Shows = 0;

    bool eventFilter(QObject* watched, QEvent* event) override {
        Shows += event->type() == QEvent::Show ? 1 : 0;
        return QObject::eventFilter(watched, event);
    }
};

} // namespace

class tst_update : public EditorTest<frmUpdate> {
    Q_OBJECT
private Q_SLOTS:

    void init() {
        BeginIn(
            "[LNG]\r\nDownload=Laden\r\nCancel=Abbrechen\r\nServerError=Kein Server\r\nKiloBytes=KB\r\nSeconds=s\r\n"
            "Size2=Size:\r\nNewVersion=New\r\nElapsedTime2=Elapsed:\r\n");
        mUpdater::AutoUpdateCheck = false;
        world_->WriteFile(u"program\\updater.cfg"_s, "[BrindockUpdater]\r\nUpdateServer=http://server/\r\n");
    }

    void cleanup() { End(); }

    void itHasItsTitleItsTextsAndTheVersionTwice() {
        Make();
        QCOMPARE(window_->windowTitle(), u"Brindock Auto-Updater"_s);
        QCOMPARE(Part<QLabel>("lblVersion1")->text(), u'v' + mMain::VersionText());
        QCOMPARE(Part<QLabel>("lblVersion2")->text(), u'v' + mMain::VersionText());
        QCOMPARE(Part<QPushButton>("cmdDownload")->text().remove(u'&'), u"Laden"_s);
        QVERIFY(!Part<QPushButton>("cmdDownload")->isEnabled());
        QVERIFY(Part<QPushButton>("cmdCancel")->isEnabled());
        QCOMPARE(Panel(), u"picSearching"_s);
        QCOMPARE(Part<TDLine>("linVersion")->height(), TDLine::Rows);
    }

    void eachControlHasItsKey_data() {
        QTest::addColumn<QByteArray>("control");
        QTest::addColumn<QString>("key");
        const auto row = [](const char* control, const char* key) {
            QTest::newRow(control) << QByteArray(control) << QString::fromLatin1(key);
        };
        row("Label7", "SearchingUpdate");
        row("lblNoUpdates", "NoUpdateAvailable");
        row("Frame1", "Description");
        row("Label9", "Version2");
        row("Label10", "Date2");
        row("Label11", "Type2");
        row("Label12", "Size2");
        row("Label8", "UpdateAvailable");
        row("Frame2", "DownloadStatus");
        row("lblTRate", "TransferRate2");
        row("lblETime", "ElapsedTime2");
        row("lblRTime", "RemainingTime2");
        row("lblDSize", "Size2");
        row("cmdDownload", "Download");
        row("cmdCancel", "Cancel");
    }

    void eachControlHasItsKey() {
        QFETCH(QByteArray, control);
        QFETCH(QString, key);
        Make();
        QCOMPARE(Part<QWidget>(control.constData())->property("Tag").toString(), key);
    }

    void theTimersAreAsTheyShouldBe() {
        Make();
        const auto interval = [&](const char* name) { return Part<QTimer>(name)->interval(); };
        QCOMPARE(interval("tmrZOrder"), 100);
        QCOMPARE(interval("tmrRate"), 100);
        QCOMPARE(interval("tmrTime"), 1000);
        QVERIFY(Part<QTimer>("tmrZOrder")->isActive());
        QVERIFY(!Part<QTimer>("tmrRate")->isActive());
        QVERIFY(!Part<QTimer>("tmrTime")->isActive());
    }

    void aManualCheckShowsTheSearchAndTheWindowCanBeLeftAtOnce() {
        Make();
        http_->Answers[infoUrl].NeverComes = true;
        bool searched = false;
        host_->OnWait = [&] {
            searched = window_->isVisible() && Panel() == u"picSearching"_s;
            QTest::keyClick(window_.get(), Qt::Key_Escape);
        };
        window_->Load();
        QVERIFY(searched);
        QVERIFY(!window_->isVisible());
        QCOMPARE(host_->Messages.size(), 0U);
    }

    void theCrossLeavesTheSearch() {
        Make();
        http_->Answers[infoUrl].NeverComes = true;
        host_->OnWait = [&] { window_->close(); };
        window_->Load();
        QVERIFY(!window_->isVisible());
        QCOMPARE(host_->Messages.size(), 0U);
        QVERIFY(!http_->IsActive());
    }

    void withoutANewReleaseItStaysUntilItIsClosed() {
        Make();
        http_->Answers[infoUrl].Body = "[Nothing]\r\n";
        window_->Load();
        QCOMPARE(Panel(), u"picNoUpdate"_s);
        QVERIFY(Part<QLabel>("imgNoUpdate")->pixmap().width() > 0);
        QTest::mouseClick(Part<QPushButton>("cmdCancel"), Qt::LeftButton);
        QVERIFY(!window_->isVisible());
        QVERIFY(navigator_->ToolsMenuEnabled);
    }

    void whatIsFoundIsShownAndReturnDownloadsIt() {
        Make();
        Offer();
        window_->Load();
        QVERIFY(QTest::qWaitForWindowActive(window_.get()));
        QCOMPARE(Panel(), u"picUpdateFound"_s);
        QCOMPARE(Part<QLabel>("lblVersion")->text(), u"Nine <b>"_s);
        QCOMPARE(Part<QLabel>("lblVersion")->textFormat(), Qt::PlainText);
        QCOMPARE(Part<QLabel>("lblDate")->text(), u"-"_s);
        QCOMPARE(Part<QLabel>("lblType")->text(), u"New"_s);
        QCOMPARE(Part<QLabel>("lblSize")->text(), u"29 KB"_s);
        QVERIFY(Part<QPushButton>("cmdDownload")->hasFocus());
        QVERIFY(!navigator_->ToolsMenuEnabled);

        bool started = false;
        int ends = 0;
        window_->Client().Download.Start = [&](const QString&) { started = true; };
        window_->Client().Download.End = [&] { ++ends; };
        QString panel;
        http_->OnChunk = [&] {
            panel = Panel();
            QVERIFY(Part<QTimer>("tmrRate")->isActive());
            QVERIFY(Part<QTimer>("tmrTime")->isActive());
        };
        QTest::keyClick(Part<QPushButton>("cmdDownload"), Qt::Key_Return);
        QCOMPARE(panel, u"picDownload"_s);
        QCOMPARE(Part<QProgressBar>("ProgressBar1")->value(), 100);
        QCOMPARE(Part<QLabel>("lblPercent")->text(), u"100%"_s);
        QCOMPARE(Part<QLabel>("lblFName")->text(), u"setup.exe"_s);
        QCOMPARE(Part<QLabel>("lblDSize")->text(), u"Size: 29 KB"_s);
        QVERIFY(started);
        QCOMPARE(ends, 1);
        QVERIFY(!window_->isVisible());
        QVERIFY(!Part<QTimer>("tmrRate")->isActive());
        QVERIFY(!Part<QTimer>("tmrTime")->isActive());
        QVERIFY(!Part<QTimer>("tmrZOrder")->isActive());
        QVERIFY(navigator_->ToolsMenuEnabled);
    }

    void aDownloadIsCancelledByTheButton() {
        Make();
        Offer();
        window_->Load();
        int chunks = 0;
        http_->OnChunk = [&] {
            if (++chunks == 5)
                QTest::mouseClick(Part<QPushButton>("cmdCancel"), Qt::LeftButton);
        };
        QTest::mouseClick(Part<QPushButton>("cmdDownload"), Qt::LeftButton);
        QCOMPARE(chunks, 5);
        QVERIFY(!window_->isVisible());
        QVERIFY(Files::FileExists(world_->ProgramFolder() + u"\\TempUpdater\\setup.exe"_s));
    }

    void anAutomaticCheckIsNeverSeenWithoutAnUpdate() {
        mUpdater::AutoUpdateCheck = true;
        Make();
        http_->Answers[infoUrl].Body = "[Nothing]\r\n";
        ShowCounter shows;
        window_->installEventFilter(&shows);
        window_->Load();
        QCOMPARE(http_->Requests.size(), 2);
        QCOMPARE(shows.Shows, 0);
        QVERIFY(!window_->isVisible());
        QCOMPARE(host_->Messages.size(), 0U);
    }

    void itComesToTheFrontAgainAndAgainAndLocksTheMenu() {
        Make();
        Offer();
        window_->Load();
        QWidget other;
        other.show();
        other.raise();
        navigator_->ToolsMenuEnabled = true;
        QTRY_VERIFY(!navigator_->ToolsMenuEnabled);
    }

    void theKeysComeToItFromAMenuThatIsLocked() {
        Make();
        Offer();
        window_->Load();
        QWidget menu;
        menu.show();
        menu.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&menu));
        QTest::qWait(250);
        QVERIFY2(menu.isActiveWindow(), "it takes the keys from nobody who has a use for them");
        menu.setEnabled(false);
        QTRY_VERIFY(window_->isActiveWindow());
    }

    void aQuestionIsNotCovered() {
        Make();
        Offer();
        window_->Load();
        QMessageBox question(QMessageBox::Question, u"?"_s, u"?"_s, QMessageBox::Ok);
        question.setModal(true);
        question.show();
        QVERIFY(QTest::qWaitForWindowActive(&question));
        QTest::qWait(250);
        QVERIFY(question.isActiveWindow());
    }

    void thereIsOneWindow() {
        int made = 0;
        ScriptedHttp* http = nullptr;
        const auto make = [&] {
            ++made;
            auto client = std::make_unique<ScriptedHttp>();
            client->Answers[infoUrl].Body = "[Nothing]\r\n";
            http = client.get();
            return client;
        };
        frmUpdate::LoadOnce(make);
        QCOMPARE(made, 1);
        QPointer<frmUpdate> first = Loaded();
        QVERIFY(first != nullptr);
        const qsizetype requests = http->Requests.size();
        mUpdater::AutoUpdateCheck = true;
        frmUpdate::LoadOnce(make);
        QCOMPARE(made, 1);
        QCOMPARE(http->Requests.size(), requests);
        first->close();
        frmUpdate::LoadOnce(make); // the closed one may still be there
        QCOMPARE(made, 2);
        QTRY_VERIFY(first == nullptr);
    }

    void aWindowThatIsClosedInItsOwnWaitGoesBehindIt() {
        QPointer<frmUpdate> window;
        host_->OnWait = [&] {
            window = Loaded();
            window->close();
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            QVERIFY(window != nullptr);
        };
        frmUpdate::LoadOnce([] {
            auto client = std::make_unique<ScriptedHttp>();
            client->Answers[infoUrl].NeverComes = true;
            return client;
        });
        QTRY_VERIFY(window == nullptr);
    }

    void textIsNeverCut_data() { AddEachLanguage(); }

    void textIsNeverCut() {
        QFETCH(QString, language);
        world_->UseOwnLanguage(language);
        world_->Start();
        Make();
        Offer();
        http_->Answers[updateUrl].Length = u"2147483647"_s;
        window_->Load();
        window_->resize(window_->minimumSizeHint());
        for (const char* panel : {"picSearching", "picNoUpdate", "picUpdateFound", "picDownload"}) {
            auto* const panels = Part<QStackedWidget>("picPanels");
            panels->setCurrentWidget(Part<QWidget>(panel));
            for (const char* figure : {"lblTRate", "lblETime", "lblRTime", "lblDSize"}) {
                auto* const label = Part<QLabel>(figure);
                label->setText(label->text().section(u':', 0, 0) + u": 12:44:44 PM"_s);
            }
            window_->resize(440, 232);
            QCoreApplication::processEvents();
            QVERIFY(window_->grab().width() > 0);
            QVERIFY(AllTextsHaveRoom(*window_));
        }
    }

    void theProgramsOwnAnimationPlays() {
        QFile file(QCoreApplication::applicationDirPath() + u"/usearch.rsc"_s);
        QVERIFY2(file.open(QIODevice::ReadOnly), "the build lays it into the program's folder");
        world_->WriteFile(u"program\\usearch.rsc"_s, file.readAll());
        Make();
        QVERIFY(Part<BusyAnimation>("Animation1")->PlaysFile());
    }

    void withoutItsAnimationItSearchesAllTheSame() {
        Make();
        QVERIFY(!Part<BusyAnimation>("Animation1")->PlaysFile());
        http_->Answers[infoUrl].Body = "[Nothing]\r\n";
        window_->Load();
        QCOMPARE(Panel(), u"picNoUpdate"_s);
    }

private:
    void Make() {
        auto http = std::make_unique<ScriptedHttp>();
        http_ = http.get();
        window_ = std::make_unique<frmUpdate>(std::move(http));
    }

    void Offer() {
        http_->Answers[infoUrl].Body =
            "[LatestVersion]\r\nVersion=9.9.9\r\nVersionName=Nine <b>\r\nURL=" + updateUrl.toLatin1() + "\r\n";
        http_->Answers[updateUrl].Body = QByteArray(30000, 'x');
    }

    QString Panel() { return Part<QStackedWidget>("picPanels")->currentWidget()->objectName(); }

    static frmUpdate* Loaded() {
        for (QWidget* const window : QApplication::topLevelWidgets()) {
            if (auto* const update = qobject_cast<frmUpdate*>(window); update != nullptr)
                return update;
        }
        return nullptr;
    }

    ScriptedHttp* http_ = nullptr;
};

WINDOW_TEST(tst_update)

#include "tst_update.moc"
