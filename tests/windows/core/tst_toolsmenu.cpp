// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/mMain.h"
#include "core/window/frmToolsMenu.h"
#include "tests/support/ScriptedNavigator.h"
#include "tests/support/World.h"
#include "tests/windows/LanguageChecks.h"
#include "tests/windows/WindowTests.h"
#include "ui/look/PictureButton.h"

#include <QCloseEvent>
#include <QLabel>
#include <QScopedValueRollback>
#include <QSignalSpy>

#include <array>

using namespace Qt::StringLiterals;

namespace {
constexpr QColor orange{242, 142, 0};
constexpr QColor white{255, 255, 255};

/// A tool whose user may keep the document.
class RefusingTool : public QWidget {
public:
    bool Refuses = true;
    int Asked = 0;

protected:
    void closeEvent(QCloseEvent* event) override {
        ++Asked;
        event->setAccepted(!Refuses);
    }
};
} // namespace

class tst_toolsmenu : public QObject {
    Q_OBJECT
private Q_SLOTS:

    void init() {
        world_ = std::make_unique<World>();
        navigator_ = std::make_unique<ScriptedNavigator>();
        world_->InstallGame(0);
        world_->UseLanguage("[LNG]\r\nPersonalFiles=Mes fichiers\r\nOptions=R\xE9glages\r\nExit=Partir\r\n"
                            "BIGEditorDescription=Les BIG\r\n");
    }

    void cleanup() {
        menu_.reset();
        navigator_.reset();
        world_.reset();
    }

    void theWindowHasItsTitleAndTheVersionWithoutPadding() {
        Open();
        QCOMPARE(menu_->windowTitle(), u"Brindock 2005"_s);
        QCOMPARE(Child<PictureButton>(u"lblVersion"_s)->text(), mMain::VersionText());
        QVERIFY(menu_->windowFlags().testFlag(Qt::FramelessWindowHint));
        QVERIFY(menu_->findChild<QWidget*>(u"ucShadow1"_s) != nullptr);
    }

    void entriesShadowsAndDescriptionsSpeakTheUsersLanguage() {
        Open();
        QCOMPARE(Entry(0)->text(), u"BIG Editor"_s);
        QCOMPARE(Entry(1)->text(), u"CSF Editor"_s);
        QCOMPARE(Entry(2)->text(), u"Mes fichiers"_s);
        QCOMPARE(Entry(3)->text(), u"R\u00E9glages"_s);
        QCOMPARE(Entry(4)->text(), u"Partir"_s);
        for (int index = 0; index < 4; ++index)
            QCOMPARE(Child<QLabel>(u"Label3_%1"_s.arg(index))->text(), Entry(index)->text());
        QCOMPARE(Description(0)->text(), u"Les BIG"_s);
        QCOMPARE(Description(1)->text(), u"CSFEditorDescription"_s);
    }

    void anEntryWhoseKeyIsMissingShowsTheKeyEnabledOrNot() {
        world_->UseLanguage("[LNG]\r\nExit=Partir\r\n");
        Open();
        QCOMPARE(Entry(2)->text(), u"PersonalFiles"_s);
        QVERIFY(Entry(2)->isEnabled());
        Game = {};
        menu_ = std::make_unique<frmToolsMenu>();
        QCOMPARE(Entry(2)->text(), u"PersonalFiles"_s);
        QVERIFY(!Entry(2)->isEnabled());
    }

    void withoutAGamePersonalFilesAloneIsDisabled() {
        Open(false);
        const std::array<bool, 5> enabled{true, true, false, true, true};
        for (int index = 0; index < 5; ++index)
            QCOMPARE(Entry(index)->isEnabled(), enabled.at(static_cast<std::size_t>(index)));
    }

    void theSecondBattleForMiddleEarthAloneDoesNotCountAsAGame() {
        Open(false);
        Game[3].InstallPath = u"C:\\B2\\"_s;
        menu_ = std::make_unique<frmToolsMenu>();
        QVERIFY(!Entry(2)->isEnabled());
    }

    void eachOfTheFirstThreeGamesEnablesPersonalFiles() {
        for (std::size_t game = 0; game < 3; ++game) {
            Open(false);
            Game.at(game).InstallPath = u"C:\\G\\"_s;
            menu_ = std::make_unique<frmToolsMenu>();
            QVERIFY(Entry(2)->isEnabled());
            Game = {};
        }
    }

    void aClickShowsTheToolAndThenClosesTheMenu_data() {
        QTest::addColumn<int>("index");
        QTest::addColumn<QString>("tool");
        QTest::newRow("BIG Editor") << 0 << u"ShowBigEditor"_s;
        QTest::newRow("CSF Editor") << 1 << u"ShowCSFEditor"_s;
        QTest::newRow("Personal Files") << 2 << u"ShowPersonalFiles"_s;
    }

    void aClickShowsTheToolAndThenClosesTheMenu() {
        QFETCH(int, index);
        QFETCH(QString, tool);
        Open();
        bool stillOpen = false;
        navigator_->OnCall = [&](const QString&) { stillOpen = menu_->isVisible(); };
        QTest::mouseClick(Entry(index), Qt::LeftButton);
        QCOMPARE(navigator_->Calls, QStringList{tool});
        QVERIFY(stillOpen);
        QVERIFY(!menu_->isVisible());
    }

    void aToolThatIsNotBuiltLeavesTheMenuAsItIs() {
        Open();
        navigator_->WindowsComeUp = false;
        for (int index = 0; index < 3; ++index)
            QTest::mouseClick(Entry(index), Qt::LeftButton);
        QVERIFY(menu_->isVisible());
    }

    void aDisabledEntryOpensNothing() {
        Open(false);
        QTest::mouseClick(Entry(2), Qt::LeftButton);
        QVERIFY(navigator_->Calls.isEmpty());
        QVERIFY(menu_->isVisible());
    }

    void theOptionsOpenOverTheMenuWhichStays() {
        Open();
        QTest::mouseClick(Entry(3), Qt::LeftButton);
        QCOMPARE(navigator_->Calls, QStringList{u"ShowOptions"_s});
        QCOMPARE(navigator_->Owner, menu_.get());
        QVERIFY(menu_->isVisible());
    }

    void theProgramEndsBehindTheOptionsOnlyForARestart() {
        Open();
        int ends = 0;
        const QScopedValueRollback<std::function<void()>> end(mMain::EndProgram, [&] { ++ends; });
        QTest::mouseClick(Entry(3), Qt::LeftButton);
        QCOMPARE(ends, 0);
        navigator_->OnCall = [&](const QString&) {
            QCOMPARE(ends, 0);
            mMain::RestartRequested = true;
        };
        QTest::mouseClick(Entry(3), Qt::LeftButton);
        QCOMPARE(ends, 1);
    }

    void theVersionOpensTheAboutBox() {
        Open();
        QTest::mouseClick(Child<PictureButton>(u"lblVersion"_s), Qt::LeftButton);
        QCOMPARE(navigator_->Calls, QStringList{u"ShowAbout"_s});
        QCOMPARE(navigator_->Owner, menu_.get());
        QVERIFY(menu_->isVisible());
    }

    void exitClosesTheMenuAndEveryOtherWindow() {
        Open();
        QWidget other;
        other.show();
        QTest::mouseClick(Entry(4), Qt::LeftButton);
        QVERIFY(!menu_->isVisible());
        QVERIFY(!other.isVisible());
    }

    void exitAsksAToolOnceAndStaysWhereItKeepsItsDocument() {
        Open();
        RefusingTool tool;
        tool.show();
        QTest::mouseClick(Entry(4), Qt::LeftButton);
        QCOMPARE(tool.Asked, 1);
        QVERIFY(tool.isVisible());
        QVERIFY(menu_->isVisible());
        tool.Refuses = false;
        QTest::mouseClick(Entry(4), Qt::LeftButton);
        QCOMPARE(tool.Asked, 2);
        QVERIFY(!tool.isVisible());
        QVERIFY(!menu_->isVisible());
    }

    void theEntryUnderThePointerIsOrangeAndTheOthersAreWhite() {
        Open();
        for (int hovered = 0; hovered < 5; ++hovered) {
            MoveOver(Entry(hovered));
            for (int index = 0; index < 5; ++index)
                QCOMPARE(Entry(index)->TextColour(), index == hovered ? orange : white);
        }
    }

    void theColourIsReallyPainted() {
        Open();
        MoveOver(Entry(0));
        const QImage painted = menu_->grab().toImage();
        const QRect area = Entry(0)->geometry();
        bool found = false;
        for (int y = area.top(); y < area.bottom() && !found; ++y)
            for (int x = area.left(); x < area.right() && !found; ++x)
                found = painted.pixelColor(x, y) == orange;
        QVERIFY(found);
    }

    void theBackgroundTurnsTheEntriesWhite() {
        Open();
        MoveOver(Entry(1));
        QTest::mouseMove(menu_.get(), QPoint(500, 60));
        QCOMPARE(Entry(1)->TextColour(), white);
    }

    void aDescriptionTurnsTheEntriesWhite() {
        Open();
        MoveOver(Entry(1));
        MoveOver(Description(1));
        QCOMPARE(Entry(1)->TextColour(), white);
    }

    void leavingTheWindowFromAnEntryLeavesItColoured() {
        Open();
        MoveOver(Entry(1));
        QEvent leave(QEvent::Leave);
        QApplication::sendEvent(Entry(1), &leave);
        QApplication::sendEvent(menu_.get(), &leave);
        QCOMPARE(Entry(1)->TextColour(), orange);
    }

    void aDisabledEntryIsBackground() {
        Open(false);
        MoveOver(Entry(1));
        MoveOver(Entry(2));
        QCOMPARE(Entry(1)->TextColour(), white);
        QCOMPARE(Entry(2)->TextColour(), white);
    }

    void theWindowIsDraggedByItsBackground() {
        Open();
        menu_->move(100, 80);
        DragBy(menu_.get(), QPoint(500, 60), QPoint(30, 20));
        QCOMPARE(menu_->pos(), QPoint(130, 100));
    }

    void withoutAButtonHeldTheWindowStays() {
        Open();
        menu_->move(100, 80);
        QTest::mouseMove(menu_.get(), QPoint(500, 60));
        QTest::mouseMove(menu_.get(), QPoint(530, 80));
        QCOMPARE(menu_->pos(), QPoint(100, 80));
    }

    void aDescriptionIsNoHandleForTheWindow() {
        Open();
        menu_->move(100, 80);
        DragBy(Description(0), QPoint(20, 5), QPoint(30, 20));
        QCOMPARE(menu_->pos(), QPoint(100, 80));
    }

    void theKeyboardReachesEveryEntryAndOpensIt() {
        Open();
        QVERIFY(Entry(0)->hasFocus());
        QTest::keyClick(menu_->focusWidget(), Qt::Key_Tab);
        QVERIFY(Entry(1)->hasFocus());
        QTest::keyClick(menu_->focusWidget(), Qt::Key_Down);
        QVERIFY(Entry(2)->hasFocus());
        QTest::keyClick(menu_->focusWidget(), Qt::Key_Up);
        QTest::keyClick(menu_->focusWidget(), Qt::Key_Up);
        QVERIFY(Entry(0)->hasFocus());
        QTest::keyClick(menu_->focusWidget(), Qt::Key_Down);
        QTest::keyClick(menu_->focusWidget(), Qt::Key_Return);
        QCOMPARE(navigator_->Calls, QStringList{u"ShowCSFEditor"_s});
    }

    void spaceOpensAnEntryAndEscapeDoesNothing() {
        Open();
        QTest::keyClick(menu_->focusWidget(), Qt::Key_Escape);
        QVERIFY(menu_->isVisible());
        QTest::keyClick(menu_->focusWidget(), Qt::Key_Space);
        QCOMPARE(navigator_->Calls, QStringList{u"ShowBigEditor"_s});
    }

    void textIsNeverCut_data() { AddEachLanguage(); }

    void textIsNeverCut() {
        QFETCH(QString, language);
        world_->UseOwnLanguage(language);
        Open();
        QVERIFY(AllTextsHaveRoom(*menu_));
        for (int index = 0; index < 4; ++index) { // each is seen at its entry only
            Entry(index)->setFocus();
            QVERIFY(AllTextsHaveRoom(*menu_));
        }
    }

private:
    void Open(bool withGame = true) {
        world_->Start();
        if (!withGame)
            Game = {};
        menu_ = std::make_unique<frmToolsMenu>();
        menu_->show();
        QVERIFY(QTest::qWaitForWindowActive(menu_.get()));
    }

    template <typename Control>
    Control* Child(const QString& name) {
        auto* const control = menu_->findChild<Control*>(name);
        return control;
    }

    PictureButton* Entry(int index) { return Child<PictureButton>(u"Label1_%1"_s.arg(index)); }

    QLabel* Description(int index) { return Child<QLabel>(u"Label2_%1"_s.arg(index)); }

    void MoveOver(QWidget* control) {
        QTest::mouseMove(menu_.get(), control->geometry().center() - QPoint(5, 0));
        QTest::mouseMove(menu_.get(), control->geometry().center());
        QCoreApplication::processEvents();
    }

    void DragBy(QWidget* handle, QPoint from, QPoint by) {
        QTest::mousePress(handle, Qt::LeftButton, {}, from);
        QMouseEvent move(QEvent::MouseMove, from + by, handle->mapToGlobal(from + by), Qt::NoButton, Qt::LeftButton,
                         {});
        QApplication::sendEvent(handle, &move);
        QTest::mouseRelease(handle, Qt::LeftButton, {}, from);
    }

    std::unique_ptr<World> world_;
    std::unique_ptr<ScriptedNavigator> navigator_;
    std::unique_ptr<frmToolsMenu> menu_;
};

WINDOW_TEST(tst_toolsmenu)
#include "tst_toolsmenu.moc"
