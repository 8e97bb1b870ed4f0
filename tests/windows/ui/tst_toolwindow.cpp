// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/mMain.h"
#include "tests/support/ScriptedNavigator.h"
#include "tests/support/World.h"
#include "tests/windows/WindowTests.h"
#include "ui/window/NoticeStrip.h"
#include "ui/window/ScreenKeeper.h"
#include "ui/window/ToolWindow.h"

#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QLineEdit>
#include <QMenuBar>
#include <QScopedValueRollback>
#include <QScreen>
#include <QTimer>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

/// A tool with one command of its own and two boxes.
class SampleTool : public ToolWindow {
public:
    SampleTool() {
        QMenu* const menu = menuBar()->addMenu(u"File"_s);
        QAction* const own = menu->addAction(u"Own"_s);
        Exit->setShortcut(QKeySequence(u"Ctrl+W"_s));
        menu->addActions({Exit, Options, CheckForUpdates, About});
        auto* const content = new QWidget;
        auto* const column = new QVBoxLayout(content);
        column->addWidget(First);
        column->addWidget(Second);
        setCentralWidget(content);
        Equip({.Exit = Exit, .Options = Options, .Manual = Manual, .CheckForUpdates = CheckForUpdates, .About = About},
              {{own, nullptr, {}, [this] { ++Runs; }}});
        First->setFocus();
        own->trigger();
    }

    using ToolWindow::KeepFromTimeToTime;
    using ToolWindow::SetBusy;
    using ToolWindow::SetNotice;
    using ToolWindow::SetOffer;

    QAction* Exit = new QAction(u"Exit"_s, this);
    QAction* Options = new QAction(u"Options"_s, this);
    QAction* Manual = new QAction(u"Manual"_s, this);
    QAction* CheckForUpdates = new QAction(u"Updates"_s, this);
    QAction* About = new QAction(u"About"_s, this);
    QLineEdit* First = new QLineEdit;
    QLineEdit* Second = new QLineEdit;
    int Runs = 0;
    int Questions = 0;
    bool Closes = true;
    bool Menu = true;

private:
    bool MayClose() override {
        ++Questions;
        return Closes;
    }

    [[nodiscard]] bool MenuFollows() const override { return Menu; }
};

} // namespace

class tst_toolwindow : public QObject {
    Q_OBJECT
private Q_SLOTS:

    void init() {
        world_ = std::make_unique<World>();
        navigator_ = std::make_unique<ScriptedNavigator>();
        world_->UseLanguage("[LNG]\r\n");
        world_->Start();
        window_ = std::make_unique<SampleTool>();
        window_->show();
        QVERIFY(QTest::qWaitForWindowActive(window_.get()));
    }

    void cleanup() {
        window_.reset();
        navigator_.reset();
        world_.reset();
    }

    void itsOwnCommandsRun() { QCOMPARE(window_->Runs, 1); }

    void optionsAndAboutOpenOverIt() {
        window_->Options->trigger();
        QCOMPARE(navigator_->Owner, window_.get());
        navigator_->Owner = nullptr;
        window_->About->trigger();
        QCOMPARE(navigator_->Owner, window_.get());
        window_->CheckForUpdates->trigger();
        QCOMPARE(navigator_->Calls, (QStringList{u"ShowOptions"_s, u"ShowAbout"_s, u"CheckForUpdates manual"_s}));
        QVERIFY(window_->isVisible());
    }

    void theProgramEndsBehindTheOptionsOnlyForARestart() {
        int ends = 0;
        const QScopedValueRollback<std::function<void()>> end(mMain::EndProgram, [&] { ++ends; });
        window_->Options->trigger();
        QCOMPARE(ends, 0);
        navigator_->OnCall = [&](const QString&) {
            QCOMPARE(ends, 0);
            mMain::RestartRequested = true;
        };
        window_->Options->trigger();
        QCOMPARE(ends, 1);
        QCOMPARE(window_->Questions, 0);
    }

    void anOfferStandsUntilItIsClosedAndNoticesWaitBehindIt() {
        auto* const strip = window_->findChild<NoticeStrip*>();
        window_->SetOffer({.Text = u"offer"_s});
        window_->SetNotice({.Text = u"first"_s});
        window_->SetNotice({.Text = u"second"_s});
        QCOMPARE(strip->Text(), u"offer"_s);
        window_->SetOffer({.Text = u"next offer"_s});
        QCOMPARE(strip->Text(), u"next offer"_s);
        strip->Close();
        QCOMPARE(strip->Text(), u"second"_s);
        strip->Close();
        QVERIFY(!strip->isVisible());
        window_->SetOffer({.Text = u"offer"_s});
        QCOMPARE(strip->Text(), u"offer"_s);
        window_->SetNotice({.Text = u"notice"_s});
        window_->SetNotice({});
        window_->SetOffer({});
        QVERIFY2(!strip->isVisible(), "the notice was taken back");
    }

    void anEmptyOfferLeavesTheNotice() {
        auto* const strip = window_->findChild<NoticeStrip*>();
        window_->SetNotice({.Text = u"notice"_s});
        window_->SetOffer({});
        QCOMPARE(strip->Text(), u"notice"_s);
    }

    void theLinkOfAnOfferMayShowTheNextOne() {
        auto* const strip = window_->findChild<NoticeStrip*>();
        window_->SetNotice({.Text = u"notice"_s});
        window_->SetOffer({.Text = u"offer"_s,
                           .Links = {{u"Go"_s, [this] { window_->SetOffer({.Text = u"next"_s}); }},
                                     {u"B"_s, {}},
                                     {u"C"_s, [this] { window_->SetNotice({.Text = u"done"_s}); }}}});
        QTest::mouseClick(window_->findChild<QWidget*>(u"lblNoticeLink_0"_s), Qt::LeftButton);
        QCOMPARE(strip->Text(), u"next"_s);
        strip->Close();
        QCOMPARE(strip->Text(), u"notice"_s);
        window_->SetOffer(
            {.Text = u"offer"_s,
             .Links = {{u"A"_s, {}}, {u"B"_s, {}}, {u"C"_s, [this] { window_->SetNotice({.Text = u"done"_s}); }}}});
        QTest::mouseClick(window_->findChild<QWidget*>(u"lblNoticeLink_2"_s), Qt::LeftButton);
        QCOMPARE(strip->Text(), u"done"_s);
    }

    void theDocumentIsAskedFromTimeToTime() {
        int asked = 0;
        window_->KeepFromTimeToTime([&] { return ++asked < 3; });
        auto* const timer = window_->findChild<QTimer*>(u"tmrRescue"_s);
        QVERIFY(timer != nullptr && timer->isActive());
        QCOMPARE(timer->interval(), 30'000);
        timer->start(0);
        QTRY_COMPARE(asked, 3);
        QCOMPARE(timer->interval(), 30'000);
    }

    void closingAsksOnceAndGoesBackToTheMenu() {
        window_->close();
        QCOMPARE(window_->Questions, 1);
        QVERIFY(!window_->isVisible());
        QCOMPARE(navigator_->Calls, QStringList{u"ShowToolsMenu"_s});
    }

    void aRefusedCloseLeavesTheWindowAndNoMenu() {
        window_->Closes = false;
        window_->Exit->trigger();
        QCOMPARE(window_->Questions, 1);
        QVERIFY(window_->isVisible());
        QVERIFY(navigator_->Calls.isEmpty());
    }

    void beforeTheProgramEndsItIsAskedAndNothingCloses() {
        QVERIFY(window_->MayEnd());
        window_->Closes = false;
        QVERIFY(!window_->MayEnd());
        QCOMPARE(window_->Questions, 2);
        QVERIFY(window_->isVisible());
        QVERIFY(navigator_->Calls.isEmpty());
    }

    void withoutAMenuBehindItTheWindowJustCloses() {
        window_->Menu = false;
        window_->close();
        QVERIFY(!window_->isVisible());
        QVERIFY(navigator_->Calls.isEmpty());
    }

    void bothKeysOfExitCloseIt() {
        QTest::keyClick(window_.get(), Qt::Key_F4, Qt::AltModifier);
        QVERIFY(!window_->isVisible());
        window_->show();
        QVERIFY(QTest::qWaitForWindowActive(window_.get()));
        QTest::keyClick(window_.get(), Qt::Key_W, Qt::ControlModifier);
        QVERIFY(!window_->isVisible());
    }

    void aNoticeStandsAcrossTheWindowUnderTheMenuBar() {
        auto* const strip = window_->findChild<NoticeStrip*>();
        QVERIFY(strip != nullptr);
        QVERIFY(!strip->isVisible());
        window_->SetNotice({.Text = u"Something"_s});
        QVERIFY(strip->isVisible());
        QCoreApplication::processEvents();
        QCOMPARE(strip->width(), window_->width());
        QCOMPARE(strip->mapTo(window_.get(), QPoint()).y(), window_->menuBar()->geometry().bottom() + 1);
        QVERIFY(window_->First->mapTo(window_.get(), QPoint()).y() > strip->geometry().bottom());
        window_->SetNotice({});
        QVERIFY(!strip->isVisible());
    }

    void theControlsKeepTheirFocusAndTheirOrder() {
        QCOMPARE(QApplication::focusWidget(), window_->First);
        QTest::keyClick(window_->First, Qt::Key_Tab);
        QCOMPARE(QApplication::focusWidget(), window_->Second);
    }

    void theBusyPointerNests() {
        SampleTool::SetBusy(true);
        SampleTool::SetBusy(true);
        SampleTool::SetBusy(false);
        QVERIFY(QApplication::overrideCursor() != nullptr);
        QCOMPARE(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
        SampleTool::SetBusy(false);
        QVERIFY(QApplication::overrideCursor() == nullptr);
    }

    void theRoomOnAScreen_data() {
        QTest::addColumn<QRect>("wanted");
        QTest::addColumn<QSize>("least");
        QTest::addColumn<QSize>("screen");
        QTest::addColumn<QRect>("placed");
        const QSize small(800, 600);
        const QSize dense(960, 540); // 1920 x 1080 at scale 2
        QTest::newRow("fits") << QRect(100, 100, 400, 300) << QSize() << small << QRect(100, 100, 400, 300);
        QTest::newRow("too large") << QRect(-100, -20, 1000, 640) << QSize(640, 440) << small << QRect(8, 40, 784, 552);
        QTest::newRow("dense") << QRect(-20, -50, 1000, 640) << QSize(640, 440) << dense << QRect(8, 40, 944, 492);
        QTest::newRow("beyond") << QRect(700, 500, 400, 300) << QSize() << small << QRect(392, 292, 400, 300);
        QTest::newRow("least") << QRect(0, 0, 1000, 700) << QSize(900, 600) << small << QRect(8, 40, 900, 600);
    }

    void theRoomOnAScreen() {
        QFETCH(const QRect, wanted);
        QFETCH(const QSize, least);
        QFETCH(const QSize, screen);
        QFETCH(const QRect, placed);
        QCOMPARE(ScreenKeeper::Placed(wanted, least, QRect(QPoint(), screen)), placed);
    }

    // The test's screen has 800 x 800 pixels.
    void noWindowOpensLargerThanTheScreenOrOutsideOfIt() {
        ScreenKeeper keeper;
        qApp->installEventFilter(&keeper);
        const QRect screen = window_->screen()->availableGeometry();
        const QRect room = screen.marginsRemoved(ScreenKeeper::Frame);
        SampleTool tool;
        tool.resize(screen.size() * 2);
        tool.move(screen.center());
        tool.show();
        QVERIFY(QTest::qWaitForWindowExposed(&tool));
        QCOMPARE(tool.size(), room.size());
        QCOMPARE(tool.geometry(), room); // the title has its place above
        QDialog dialog(&tool);
        dialog.resize(screen.size() * 2);
        dialog.show();
        QCOMPARE(dialog.size(), room.size());
        QVERIFY(screen.contains(dialog.pos()));
    }

    void aDialogThatNeedsMoreRoomScrollsAndKeepsItsOrder() {
        QDialog dialog;
        auto* const column = new QVBoxLayout(&dialog);
        std::vector<QLineEdit*> fields;
        for (int row = 0; row < 30; ++row) {
            fields.push_back(new QLineEdit(&dialog));
            column->addWidget(fields.back());
        }
        QWidget::setTabOrder(fields[0], fields[29]);
        fields[0]->setFocus();
        dialog.show();
        dialog.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&dialog));
        ScreenKeeper::Fit(dialog, {0, 0, 640, 360});
        QCoreApplication::processEvents();
        QVERIFY(dialog.height() <= 360);
        QVERIFY(fields[0]->hasFocus());
        QVERIFY(fields[29]->visibleRegion().isEmpty());
        QTest::keyClick(fields[0], Qt::Key_Tab);
        QVERIFY(fields[29]->hasFocus());
        QVERIFY(!fields[29]->visibleRegion().isEmpty());
    }

private:
    std::unique_ptr<World> world_;
    std::unique_ptr<ScriptedNavigator> navigator_;
    std::unique_ptr<SampleTool> window_;
};

WINDOW_TEST(tst_toolwindow)
#include "tst_toolwindow.moc"
