// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/Paths.h"
#include "tests/support/ScriptedHost.h"
#include "tests/support/World.h"
#include "tests/windows/OpenedPages.h"
#include "tests/windows/WindowTests.h"
#include "ui/window/frmProgress.h"

#include <QApplication>
#include <QLineEdit>
#include <QMessageBox>

using namespace Qt::StringLiterals;

class tst_manualkey : public QObject {
    Q_OBJECT

    /// Each with the folder that it lies in.
    [[nodiscard]] QStringList Opened() const {
        QStringList pages;
        for (const QUrl& url : opened_->Urls)
            pages += url.toLocalFile().section(u'/', -2);
        return pages;
    }

private Q_SLOTS:

    void init() {
        world_ = std::make_unique<World>();
        world_->UseLanguage("[LNG]\r\nManualNotOpened=Kein Handbuch: %1\r\n");
        world_->Start();
        world_->WriteFile(u"program\\manual\\en\\index.html"_s, "page");
        world_->WriteFile(u"program\\manual\\en\\at\\start.work.html"_s, "page");
        opened_ = std::make_unique<OpenedPages>();
    }

    void cleanup() {
        opened_.reset();
        world_.reset();
    }

    void f1AsksForTheWindowsPlace() {
        frmProgress window;
        QTest::keyClick(&window, Qt::Key_F1);
        QCOMPARE(Opened(), QStringList{u"at/start.work.html"_s});
    }

    void aBoxStandsForTheWindowBelowIt() {
        frmProgress window;
        QMessageBox box(&window);
        QTest::keyClick(&box, Qt::Key_F1);
        QCOMPARE(Opened(), QStringList{u"at/start.work.html"_s});
    }

    void whatHasNoPlaceLeadsToTheFirstPage() {
        QWidget window;
        auto* const edit = new QLineEdit(&window);
        QTest::keyClick(edit, Qt::Key_F1);
        QCOMPARE(Opened(), QStringList{u"en/index.html"_s});
        QVERIFY(edit->text().isEmpty());
    }

    void otherKeysGoToTheirWindow() {
        QLineEdit edit;
        QTest::keyClick(&edit, Qt::Key_A);
        QTest::keyClick(&edit, Qt::Key_F1, Qt::ShiftModifier);
        QTest::keyClick(&edit, Qt::Key_F1, Qt::ControlModifier);
        QTest::keyClick(&edit, Qt::Key_F2);
        QCOMPARE(edit.text(), u"a"_s);
        QVERIFY(opened_->Urls.isEmpty());
    }

    void aKeyThatIsHeldOpensItOnce() {
        QWidget window;
        QKeyEvent first(QEvent::KeyPress, Qt::Key_F1, Qt::NoModifier);
        QApplication::sendEvent(&window, &first);
        QKeyEvent again(QEvent::KeyPress, Qt::Key_F1, Qt::NoModifier, {}, true);
        QApplication::sendEvent(&window, &again);
        QCOMPARE(opened_->Urls.size(), 1);
    }

    void withoutAManualTheUserIsTold() {
        world_ = std::make_unique<World>();
        world_->UseLanguage("[LNG]\r\nManualNotOpened=Kein Handbuch: %1\r\n");
        world_->Start();
        QWidget window;
        QTest::keyClick(&window, Qt::Key_F1);
        QVERIFY(opened_->Urls.isEmpty());
        QCOMPARE(host_.Messages.size(), 1U);
        QCOMPARE(host_.Messages[0].Text,
                 u"Kein Handbuch: "_s + Paths::ToNative(world_->ProgramFolder() + u"\\manual"_s));
    }

private:
    std::unique_ptr<World> world_;
    ScriptedHost host_;
    std::unique_ptr<OpenedPages> opened_;
};

WINDOW_TEST(tst_manualkey)
#include "tst_manualkey.moc"
