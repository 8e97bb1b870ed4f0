// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "big/FileListView.h"
#include "big/frmBigEditor.h"
#include "core/Settings.h"
#include "core/mMain.h"
#include "platform/Files.h"
#include "tests/big/document_support.h"
#include "tests/support/ScriptedHost.h"
#include "tests/support/World.h"
#include "tests/windows/RecordingNavigator.h"
#include "tests/windows/WindowTests.h"
#include "ui/SideMenu.h"

#include <QAbstractItemView>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QMouseEvent>
#include <QStatusBar>
#include <QTimer>
#include <QTreeView>

#include <set>

using namespace Qt::StringLiterals;
using Answer = Host::Answer;

class tst_bigeditor : public QObject {
    Q_OBJECT
private Q_SLOTS:

    void init() {
        world_ = std::make_unique<World>();
        host_ = std::make_unique<ScriptedHost>();
        navigator_ = std::make_unique<RecordingNavigator>();
        world_->UseLanguage("[LNG]\r\nReady=Bereit\r\nFile=Datei\r\nNew=Neu\r\nOpen=Auf\r\nBIGFile=BIG-Datei\r\n"
                            "Actions=Aktionen\r\nKiloBytes=KB\r\nSize2=Gr\xF6\xDF"
                            "e:\r\n");
        world_->Start();
        mBIG::BigEntries.clear();
        mBIG::BigFileName.clear();
        archive_ = world_->WriteFile(u"a.big"_s, ArchiveOf({{u"readme.txt"_s, "hello"},
                                                            {u"Data\\INI\\Object.ini"_s, "Object"},
                                                            {u"Data\\map.tga"_s, QByteArray(3000, 'x')}}));
    }

    void cleanup() {
        window_.reset();
        navigator_.reset();
        host_.reset();
        world_.reset();
    }

    void itOpensEmptyWithNewAndOpenOnly() {
        Open();
        for (const int link : {3, 4})
            QVERIFY(Link(link)->isEnabled());
        for (const int link : {0, 1, 2, 5, 6, 7})
            QVERIFY(!Link(link)->isEnabled());
        QVERIFY(!Part<QWidget>("lvFiles")->isEnabled());
        QVERIFY(!Part<QWidget>("mnuActions")->isVisible());
        QVERIFY(!Part<QWidget>("mnuDetails")->isVisible());
        for (const char* command : {"mnuSave", "mnuSaveAs", "mnuFileVersion", "mnuAdd"})
            QVERIFY(!Part<QAction>(command)->isEnabled());
        QVERIFY(!Part<QMenu>("mnuEdit")->isEnabled());
        QCOMPARE(Status(), u"Bereit"_s);
        QCOMPARE(window_->windowTitle(), u"BIG Editor"_s);
    }

    void textsAreInTheUsersLanguage() {
        Open();
        QCOMPARE(Part<SideGroup>("xpMenu1")->Caption(), u"BIG-Datei"_s);
        QCOMPARE(Part<SideGroup>("mnuActions")->Caption(), u"Aktionen"_s);
        QCOMPARE(Link(3)->text(), u"Neu"_s);
        QCOMPARE(Part<QMenu>("mnuFile")->title(), u"&Datei"_s);
        QCOMPARE(Part<QAction>("mnuOpen")->text(), u"&Auf"_s);
        QCOMPARE(Part<QLabel>("Label3")->text(), u"Gr\u00F6\u00DFe:"_s);
    }

    void everyEntryOfAMenuHasAKeyOfItsOwn() {
        Open();
        for (const QAction* menu : window_->menuBar()->actions()) {
            std::set<QChar> keys;
            qsizetype entries = 0;
            for (const QAction* entry : menu->menu()->actions()) {
                if (entry->isSeparator())
                    continue;
                ++entries;
                const qsizetype mark = entry->text().indexOf(u'&');
                QVERIFY2(mark >= 0, qPrintable(entry->text()));
                keys.insert(entry->text()[mark + 1].toLower());
            }
            QCOMPARE(static_cast<qsizetype>(keys.size()), entries);
        }
    }

    void anArchiveShowsItsTreeAndListWithEverythingEnabled() {
        OpenArchive();
        QVERIFY(window_->isVisible());
        QCOMPARE(Tree()->currentIndex().data().toString(), u"a.big"_s);
        QCOMPARE(Rows(), QStringList({u"data"_s, u"readme.txt"_s}));
        for (const int link : {1, 3, 4, 5, 7})
            QVERIFY(Link(link)->isEnabled());
        for (const char* command : {"mnuSave", "mnuSaveAs", "mnuFileVersion", "mnuAdd"})
            QVERIFY(Part<QAction>(command)->isEnabled());
        QVERIFY(Part<QMenu>("mnuEdit")->isEnabled());
        QVERIFY(Part<QWidget>("mnuActions")->isVisible());
        QCOMPARE(window_->windowTitle(), u"a.big[*] - BIG Editor"_s);
        QVERIFY(!window_->isWindowModified());
        const QModelIndex data = Tree()->model()->index(0, 0, Tree()->currentIndex());
        QVERIFY(Tree()->isExpanded(data));
    }

    void whatIsNotBuiltYetIsVisibleAndDisabled() {
        OpenArchive();
        for (const char* command : {"mnuModify", "mnuExtract", "mnuDelete", "mnuNewFolder"}) {
            QVERIFY(!Part<QAction>(command)->isEnabled());
            QVERIFY(Part<QAction>(command)->isVisible());
        }
        for (const int link : {0, 2, 6})
            QVERIFY(Link(link)->isVisible() && !Link(link)->isEnabled());
    }

    void clicksAndKeysWalkTheTree() {
        OpenArchive();
        const QModelIndex data = Tree()->model()->index(0, 0, Tree()->currentIndex());
        QTest::mouseClick(Tree()->viewport(), Qt::LeftButton, {}, Tree()->visualRect(data).center());
        QCOMPARE(Rows(), QStringList({u"ini"_s, u"map.tga"_s}));
        QCOMPARE(Status(), u"data\\"_s);
        QTest::keyClick(Tree(), Qt::Key_Down);
        QCOMPARE(Rows(), QStringList({u"Object.ini"_s}));
        QCOMPARE(Status(), u"data\\ini\\"_s);
        QTest::keyClick(Tree(), Qt::Key_Home);
        QCOMPARE(Rows(), QStringList({u"data"_s, u"readme.txt"_s}));
    }

    void aFileRowShowsItsDetailsAndANodeHidesThem() {
        OpenArchive();
        Select(u"data\\"_s);
        ClickRow(1);
        QVERIFY(Part<QWidget>("mnuDetails")->isVisible());
        QCOMPARE(Part<QLabel>("lblFName")->text(), u"map.tga"_s);
        QCOMPARE(Part<QLabel>("lblFSize")->text(), u"2 KB"_s);
        QCOMPARE(Status(), u"Data\\map.tga"_s);
        QTest::mouseClick(Tree()->viewport(), Qt::LeftButton, {}, Tree()->visualRect(Tree()->currentIndex()).center());
        QVERIFY(!Part<QWidget>("mnuDetails")->isVisible());
        QCOMPARE(Status(), u"data\\"_s);
    }

    void aDoubleClickAndEnterOpenAFolderRow() {
        OpenArchive();
        QAbstractItemView* list = Files()->Current();
        const QPoint place = list->visualRect(list->model()->index(0, 0)).center();
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, place);
        QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, place);
        QCOMPARE(Rows(), QStringList({u"ini"_s, u"map.tga"_s}));
        QCOMPARE(Tree()->currentIndex().data().toString(), u"data"_s);
        QTest::keyClick(list, Qt::Key_Home);
        QTest::keyClick(list, Qt::Key_Return);
        QCOMPARE(Rows(), QStringList({u"Object.ini"_s}));
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

    void linksAreUnderlinedByThePointersMoves() {
        Open();
        MoveOver(Link(3), QPoint(10, 5));
        MoveOver(Link(4), QPoint(10, 5));
        QVERIFY(Link(4)->IsUnderlined());
        QVERIFY(!Link(3)->IsUnderlined());
        MoveOver(Link(3), QPoint(12, 6));
        QVERIFY(Link(3)->IsUnderlined());
        QVERIFY(!Link(4)->IsUnderlined());
        auto* pane = Part<SidePane>("picLeftMenu");
        MoveOver(pane, QPoint(20, pane->height() - 10));
        QVERIFY(!Link(3)->IsUnderlined());
    }

    void groupsFoldByClickAndKey() {
        Open();
        auto* group = Part<SideGroup>("xpMenu1");
        QAbstractButton* heading = nullptr;
        QVERIFY(Link(4)->isVisible());
        QTest::mouseClick(group, Qt::LeftButton, {}, QPoint(20, 200)); // below the heading
        QVERIFY(!group->IsFolded());
        for (QAbstractButton* button : group->findChildren<QAbstractButton*>())
            if (qobject_cast<SideLink*>(button) == nullptr)
                heading = button;
        QTest::mouseClick(heading, Qt::LeftButton);
        QVERIFY(group->IsFolded());
        QVERIFY(!Link(4)->isVisible());
        QTRY_COMPARE(group->height(), SideGroup::HeadingHeight);
        QTest::keyClick(heading, Qt::Key_Return);
        QVERIFY(!group->IsFolded());
        QVERIFY(Link(4)->isVisible());
    }

    void theViewOpensAsStored_data() {
        QTest::addColumn<QString>("stored");
        QTest::addColumn<int>("mode");
        QTest::newRow("nothing stored") << QString() << 2;
        QTest::newRow("large icons") << u"0"_s << 0;
        QTest::newRow("details") << u"1"_s << 1;
        QTest::newRow("list") << u"3"_s << 3;
    }

    void theViewOpensAsStored() {
        QFETCH(QString, stored);
        QFETCH(int, mode);
        WriteSetting(u"BigView"_s, stored);
        Open();
        QCOMPARE(static_cast<int>(Files()->Mode()), mode);
        for (int item = 0; item < 4; ++item)
            QCOMPARE(ViewItem(item)->isChecked(), item == mode);
    }

    void choosingAViewChecksItAloneAndStoresIt() {
        OpenArchive();
        for (const int item : {3, 0, 1, 2}) {
            ViewItem(item)->trigger();
            QCOMPARE(static_cast<int>(Files()->Mode()), item);
            QCOMPARE(ReadSetting(u"BigView"_s), QString::number(item));
            for (int other = 0; other < 4; ++other)
                QCOMPARE(ViewItem(other)->isChecked(), other == item);
        }
    }

    void toolsAndHelpAskTheNavigator() {
        Open();
        Part<QAction>("mnuOptions")->trigger();
        Part<QAction>("mnuCheckForUpdates")->trigger();
        Part<QAction>("mnuAbout")->trigger();
        QCOMPARE(navigator_->Asked, QStringList({u"Options"_s, u"Updates"_s, u"About"_s}));
    }

    void closingShowsTheToolsMenuAgain() {
        Open();
        QTest::keyClick(window_.get(), Qt::Key_W, Qt::ControlModifier);
        QVERIFY(!window_->isVisible());
        QCOMPARE(navigator_->Asked, QStringList({u"ToolsMenu"_s}));
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
        QCOMPARE(navigator_->Asked.contains(u"ToolsMenu"_s), menu);
    }

    void closingWithChangesAsks() {
        OpenArchive();
        host_->FileNames = {world_->WriteFile(u"added.txt"_s, "added")};
        QTest::mouseClick(Link(1), Qt::LeftButton);
        host_->Answers = {Answer::Cancel};
        window_->close();
        QVERIFY(window_->isVisible());
        QVERIFY(navigator_->Asked.isEmpty());
        host_->Answers = {Answer::No};
        window_->close();
        QVERIFY(!window_->isVisible());
        QCOMPARE(navigator_->Asked, QStringList({u"ToolsMenu"_s}));
    }

    void aFileThatIsNotThereOpensNothing() {
        window_ = std::make_unique<frmBigEditor>();
        window_->OpenBigFile(world_->Root() + u"\\none.big"_s);
        QVERIFY(!window_->isVisible());
    }

    void theTabKeyVisitsLinksTreeAndList() {
        OpenArchive();
        window_->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(window_.get()));
        Link(4)->setFocus();
        QStringList visited;
        for (int step = 0; step < 30 && !visited.contains(u"tvDirs"_s); ++step) {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
            visited += QApplication::focusWidget()->objectName();
        }
        QVERIFY(visited.contains(u"Label2_3"_s));
        QVERIFY(visited.contains(u"Label2_5"_s));
        QVERIFY(visited.contains(u"tvDirs"_s));
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        QVERIFY(Files()->isAncestorOf(QApplication::focusWidget()));
    }

    void treeAndListHaveNamesForScreenReaders() {
        Open();
        QVERIFY(!Tree()->accessibleName().isEmpty());
        QVERIFY(!Files()->Current()->accessibleName().isEmpty());
    }

private:
    void Open() {
        window_ = std::make_unique<frmBigEditor>();
        window_->show();
        QVERIFY(QTest::qWaitForWindowExposed(window_.get()));
    }

    void OpenArchive() {
        window_ = std::make_unique<frmBigEditor>();
        window_->OpenBigFile(archive_);
        QVERIFY(QTest::qWaitForWindowExposed(window_.get()));
    }

    template <typename Control>
    Control* Part(const char* name) {
        return window_->findChild<Control*>(QString::fromLatin1(name));
    }

    SideLink* Link(int index) { return window_->findChild<SideLink*>(u"Label2_%1"_s.arg(index)); }

    QAction* ViewItem(int index) { return window_->findChild<QAction*>(u"mnuLvView_%1"_s.arg(index)); }

    QTreeView* Tree() { return Part<QTreeView>("tvDirs"); }

    FileListView* Files() { return Part<FileListView>("lvFiles"); }

    QString Status() { return window_->statusBar()->findChild<QLabel*>()->text(); }

    QStringList Rows() {
        const QAbstractItemModel* model = Files()->Current()->model();
        QStringList rows;
        for (int row = 0; row < model->rowCount(); ++row)
            rows += model->index(row, 0).data().toString();
        return rows;
    }

    static void MoveOver(QWidget* widget, QPoint place) {
        QMouseEvent move(QEvent::MouseMove, place, widget->mapToGlobal(place), Qt::NoButton, Qt::NoButton, {});
        QApplication::sendEvent(widget, &move);
    }

    void Select(const QString& folderKey) {
        QModelIndex node = Tree()->model()->index(0, 0);
        for (const QString& part : folderKey.split(u'\\', Qt::SkipEmptyParts))
            for (int row = 0; row < Tree()->model()->rowCount(node); ++row)
                if (const QModelIndex child = Tree()->model()->index(row, 0, node); child.data().toString() == part) {
                    node = child;
                    break;
                }
        Tree()->setCurrentIndex(node);
    }

    void ClickRow(int row) {
        QAbstractItemView* list = Files()->Current();
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {},
                          list->visualRect(list->model()->index(row, 0)).center());
    }

    /// Does something with the next modal dialog.
    void AnswerDialog(const std::function<void(QWidget*)>& answer) {
        QTimer::singleShot(0, this, [this, answer] {
            if (QWidget* dialog = QApplication::activeModalWidget())
                answer(dialog);
            else
                AnswerDialog(answer);
        });
    }

    std::unique_ptr<World> world_;
    std::unique_ptr<ScriptedHost> host_;
    std::unique_ptr<RecordingNavigator> navigator_;
    std::unique_ptr<frmBigEditor> window_;
    QString archive_;
};

WINDOW_TEST(tst_bigeditor)

#include "tst_bigeditor.moc"
