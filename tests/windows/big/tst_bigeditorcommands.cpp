// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/mMain.h"
#include "platform/Files.h"
#include "tests/windows/big/BigEditorWindow.h"
#include "ui/window/NoticeStrip.h"

using namespace Qt::StringLiterals;
using Answer = Host::Answer;

class tst_bigeditorcommands : public BigEditorWindow {
    Q_OBJECT
private Q_SLOTS:

    void init() { Begin(); }

    void cleanup() { End(); }

    void withoutAnArchiveItsCommandsAreDisabled() {
        Open();
        for (const char* command : {"mnuModify", "mnuExtract", "mnuDelete", "mnuNewFolder", "mnuAdd", "mnuSave"})
            QVERIFY2(!Part<QAction>(command)->isEnabled(), command);
        for (const int link : {5, 7})
            QVERIFY(!Link(link)->isEnabled());
    }

    void whatIsAddedIsRescuedAndOfferedBeforeOtherNotices() {
        OpenArchive();
        host_->FileNames = {world_->WriteFile(u"new.txt"_s, "new")};
        Part<QAction>("mnuAdd")->trigger();
        QVERIFY(window_->isWindowModified());
        Part<QTimer>("tmrRescue")->start(0);
        QTRY_VERIFY(::Files::FolderExists(Rescues::Folder()));
        QTRY_COMPARE(Part<QTimer>("tmrRescue")->interval(), RescuedDocument::Interval);
        window_.reset();
        Open();
        auto* const strip = window_->findChild<NoticeStrip*>();
        QCOMPARE(strip->Text(), u"Rescued"_s);
        QVERIFY(Part<QWidget>("lblNoticeLink_1")->isVisible());
        QTest::mouseClick(Part<QWidget>("lblNoticeLink_0"), Qt::LeftButton);
        QVERIFY(!strip->isVisible());
        QVERIFY(window_->isWindowModified());
        QVERIFY(Rows().contains(u"new.txt"_s));
        QTest::keyClick(window_.get(), Qt::Key_S, Qt::ControlModifier);
        QVERIFY(!window_->isWindowModified());
        QCOMPARE(::Files::ListFolder(Rescues::Folder() + u"\\*"_s, true), QStringList());
    }

    void newMakesAnArchiveByLinkAndByKey() {
        Open();
        int versions = 0;
        for (const bool byLink : {true, false}) {
            host_->FileNames = {world_->Root() + u"\\fresh.big"_s};
            AnswerDialog([&](QWidget* dialog) {
                ++versions;
                QTest::keyClick(dialog, Qt::Key_Return);
            });
            window_->activateWindow();
            QVERIFY(QTest::qWaitForWindowActive(window_.get()));
            if (byLink)
                QTest::mouseClick(Link(3), Qt::LeftButton);
            else
                QTest::keyClick(window_.get(), Qt::Key_N, Qt::ControlModifier);
            QCOMPARE(Tree()->currentIndex().data().toString(), u"fresh.big"_s);
            QCOMPARE(Rows(), QStringList());
            QVERIFY(Files()->isEnabled());
        }
        QCOMPARE(versions, 2);
    }

    void openByKeyTakesTheChosenArchive() {
        Open();
        host_->FileNames = {archive_};
        QTest::keyClick(window_.get(), Qt::Key_O, Qt::ControlModifier);
        QCOMPARE(Rows(), QStringList({u"data"_s, u"readme.txt"_s}));
    }

    void aLinkCanBeUsedWithTheKeyboard() {
        Open();
        host_->FileNames = {archive_, std::nullopt};
        Link(4)->setFocus();
        QTest::keyClick(Link(4), Qt::Key_Return);
        QCOMPARE(Rows().size(), 2);
        QTest::keyClick(Link(4), Qt::Key_Space);
        QCOMPARE(host_->Dialogs.size(), 2U);
    }

    void addedFilesAreBlueAndSavedByKey() {
        OpenArchive();
        host_->FileNames = {world_->WriteFile(u"added.txt"_s, "added")};
        QTest::keyClick(window_.get(), Qt::Key_Insert);
        QCOMPARE(Rows(), QStringList({u"data"_s, u"readme.txt"_s, u"added.txt"_s}));
        const QModelIndex added = Files()->Current()->model()->index(2, 0);
        QCOMPARE(added.data(Qt::ForegroundRole).value<QColor>(), QColor(0, 0, 255));
        QVERIFY(window_->isWindowModified());
        QTest::keyClick(window_.get(), Qt::Key_S, Qt::ControlModifier);
        QVERIFY(!window_->isWindowModified());
        QVERIFY(!Files()->Current()->model()->index(2, 0).data(Qt::ForegroundRole).isValid());
        QVERIFY(mBIG::ReadBigFile(archive_));
        QCOMPARE(mBIG::BigEntries.size(), 4U);
    }

    void saveAsByKeyNamesTheRoot() {
        OpenArchive();
        host_->FileNames = {world_->Root() + u"\\other.big"_s};
        QTest::keyClick(window_.get(), Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(Tree()->model()->index(0, 0).data().toString(), u"other.big"_s);
        QVERIFY(Files::FileExists(world_->Root() + u"\\other.big"_s));
    }

    void toolsAndHelpAskTheNavigator() {
        Open();
        Part<QAction>("mnuOptions")->trigger();
        Part<QAction>("mnuCheckForUpdates")->trigger();
        Part<QAction>("mnuAbout")->trigger();
        QCOMPARE(navigator_->Calls, QStringList({u"ShowOptions"_s, u"CheckForUpdates manual"_s, u"ShowAbout"_s}));
    }

    void closingShowsTheToolsMenuAgain() {
        Open();
        QTest::keyClick(window_.get(), Qt::Key_W, Qt::ControlModifier);
        QVERIFY(!window_->isVisible());
        QCOMPARE(navigator_->Calls, QStringList({u"ShowToolsMenu"_s}));
    }

    void openedByItsSwitchItEndsAlone_data() {
        QTest::addColumn<QString>("commandLine");
        QTest::addColumn<bool>("menu");
        QTest::newRow("its switch") << u"/tbig C:\\a.big"_s << false;
        QTest::newRow("other case") << u"/TBIG"_s << true;
        QTest::newRow("extraction") << u"/bige C:\\a.big"_s << true;
    }

    void openedByItsSwitchItEndsAlone() {
        QFETCH(QString, commandLine);
        QFETCH(bool, menu);
        mMain::CommandLine = commandLine;
        Open();
        window_->close();
        QCOMPARE(navigator_->Calls.contains(u"ShowToolsMenu"_s), menu);
    }

    void closingWithChangesAsks() {
        OpenArchive();
        host_->FileNames = {world_->WriteFile(u"added.txt"_s, "added")};
        QTest::mouseClick(Link(1), Qt::LeftButton);
        host_->Answers = {Answer::Cancel};
        window_->close();
        QVERIFY(window_->isVisible());
        QVERIFY(navigator_->Calls.isEmpty());
        host_->Answers = {Answer::No};
        window_->close();
        QVERIFY(!window_->isVisible());
        QCOMPARE(navigator_->Calls, QStringList({u"ShowToolsMenu"_s}));
    }

    void aFileThatIsNotThereOpensNothing() {
        window_ = std::make_unique<frmBigEditor>();
        window_->OpenBigFile(world_->Root() + u"\\none.big"_s);
        QVERIFY(!window_->isVisible());
    }
};

WINDOW_TEST(tst_bigeditorcommands)

#include "tst_bigeditorcommands.moc"
