// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Changing an archive with mouse and keyboard.
#include "platform/Files.h"
#include "platform/Paths.h"
#include "tests/windows/big/BigEditorWindow.h"

#include <QContextMenuEvent>
#include <QDropEvent>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QSignalSpy>
#include <QWindow>

using namespace Qt::StringLiterals;
using Answer = Host::Answer;

class tst_bigeditorediting : public BigEditorWindow {
    Q_OBJECT
private:
    /// Opens the archive in a window that has the keyboard.
    void Work() {
        OpenArchive();
        window_->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(window_.get()));
    }

    /// The field in which a row's or node's text is being edited.
    static QLineEdit* Field(QAbstractItemView* view) { return view->viewport()->findChild<QLineEdit*>(); }

    static void TypeInto(QAbstractItemView* view, const QString& text, Qt::Key end = Qt::Key_Return) {
        QTRY_VERIFY(Field(view) != nullptr);
        QLineEdit* field = Field(view);
        field->selectAll();
        QTest::keyClicks(field, text);
        QTest::keyClick(field, end);
        // The edit ends behind the key, and the change follows the end of the edit.
        QTRY_VERIFY(Field(view) == nullptr);
        QCoreApplication::processEvents();
    }

    QAbstractItemView* List() { return Files()->Current(); }

    QPoint RowAt(int row) { return List()->visualRect(List()->model()->index(row, 0)).center(); }

    /// Asks for the context menu and returns the one that came up.
    QString MenuAt(QWidget* view, QPoint place) {
        QContextMenuEvent event(QContextMenuEvent::Mouse, place, view->mapToGlobal(place));
        QApplication::sendEvent(view, &event);
        QWidget* menu = QApplication::activePopupWidget();
        QString name = menu == nullptr ? QString() : menu->objectName();
        if (menu != nullptr)
            menu->close();
        return name;
    }

    void Drop(const QStringList& paths) {
        QMimeData data;
        QList<QUrl> urls;
        for (const QString& path : paths)
            urls += QUrl::fromLocalFile(Paths::ToNative(path));
        data.setUrls(urls);
        QDragEnterEvent enter({20, 20}, Qt::CopyAction, &data, Qt::LeftButton, {});
        QApplication::sendEvent(List()->viewport(), &enter);
        QVERIFY(enter.isAccepted());
        QCOMPARE(enter.dropAction(), Qt::CopyAction);
        QDropEvent drop({20, 20}, Qt::CopyAction, &data, Qt::LeftButton, {});
        QApplication::sendEvent(List()->viewport(), &drop);
        QVERIFY(drop.isAccepted());
    }

private Q_SLOTS:

    void init() { Begin(); }

    void cleanup() { End(); }

    void theDeleteKeyRemovesTheSelectedRows() {
        Work();
        ClickRow(1);
        host_->Answers = {Answer::Yes};
        QTest::keyClick(List(), Qt::Key_Delete);
        QCOMPARE(Rows(), QStringList({u"data"_s}));
        QVERIFY(window_->isWindowModified());
    }

    void theDeleteKeyInTheTreeRemovesTheFolder() {
        Work();
        Select(u"data\\ini\\"_s);
        Tree()->setFocus();
        host_->Answers = {Answer::Yes};
        QTest::keyClick(Tree(), Qt::Key_Delete);
        QCOMPARE(host_->Answers.size(), 0U);
        QCOMPARE(Tree()->model()->rowCount(Tree()->model()->index(0, 0, Tree()->model()->index(0, 0))), 0);
    }

    void theDeleteKeyDoesNothingElsewhere() {
        Work();
        ClickRow(1);
        Link(4)->setFocus();
        QTest::keyClick(Link(4), Qt::Key_Delete);
        QCOMPARE(host_->Messages.size(), 0U);
        QCOMPARE(Rows().size(), 2);
    }

    void theDeleteKeyInTheListLeavesTheTreeAlone() {
        Work();
        Select(u"data\\"_s);
        Tree()->setFocus();
        // Reached with the Tab key past the bar between them, and no row is selected.
        QTest::keyClick(Tree(), Qt::Key_Tab);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        QVERIFY(List()->hasFocus());
        host_->Answers = {Answer::Yes};
        QTest::keyClick(List(), Qt::Key_Delete);
        QCOMPARE(Rows(), QStringList({u"ini"_s, u"map.tga"_s}));
    }

    void aNewFolderIsNamedAtOnce() {
        Work();
        QTest::keyClick(window_.get(), Qt::Key_N, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(Tree()->currentIndex().data().toString(), u"New Folder1"_s);
        TypeInto(Tree(), u"Maps"_s);
        QCOMPARE(Tree()->currentIndex().data().toString(), u"Maps"_s);
        QCOMPARE(Status(), u"Bereit"_s);
        host_->FileNames = {world_->WriteFile(u"desert.map"_s, "sand")};
        QTest::keyClick(window_.get(), Qt::Key_Insert);
        QCOMPARE(mBIG::BigEntries.back().Name, u"Maps\\desert.map"_s);
    }

    void escapeKeepsTheNameThatANewFolderHas() {
        Work();
        Part<QAction>("mnuNewFolder")->trigger();
        TypeInto(Tree(), u"Maps"_s, Qt::Key_Escape);
        QCOMPARE(Tree()->currentIndex().data().toString(), u"New Folder1"_s);
    }

    void theRootCannotBeRenamed() {
        Work();
        Tree()->setFocus();
        QTest::keyClick(Tree(), Qt::Key_F2);
        QVERIFY(Field(Tree()) == nullptr);
    }

    void aFolderIsRenamedInTheTreeWithF2() {
        Work();
        Select(u"data\\"_s);
        Tree()->setFocus();
        QTest::keyClick(Tree(), Qt::Key_F2);
        TypeInto(Tree(), u"Stuff"_s);
        QCOMPARE(Tree()->currentIndex().data().toString(), u"Stuff"_s);
        QVERIFY(!window_->isWindowModified());
    }

    void aFileIsRenamedInTheListWithF2() {
        Work();
        ClickRow(1);
        QTest::keyClick(List(), Qt::Key_F2);
        TypeInto(List(), u"Notes.txt"_s);
        QCOMPARE(Rows(), QStringList({u"data"_s, u"Notes.txt"_s}));
        QCOMPARE(mBIG::BigEntries[0].Name, u"Notes.txt"_s);
        QVERIFY(window_->isWindowModified());
    }

    void aClickOnAnotherFolderEndsARenameOfTheRightFile() {
        Work();
        ClickRow(1);
        QTest::keyClick(List(), Qt::Key_F2);
        QTRY_VERIFY(Field(List()) != nullptr);
        Field(List())->setText(u"Notes.txt"_s);
        const QRect data = Tree()->visualRect(Tree()->model()->index(0, 0, Tree()->model()->index(0, 0)));
        // Through the window, as the click takes the focus first.
        QTest::mouseClick(window_->windowHandle(), Qt::LeftButton, {},
                          Tree()->viewport()->mapTo(window_.get(), data.center()));
        QCoreApplication::processEvents();
        QCOMPARE(Rows(), QStringList({u"ini"_s, u"map.tga"_s}));
        QCOMPARE(mBIG::BigEntries[0].Name, u"Notes.txt"_s);
        QCOMPARE(mBIG::BigEntries[2].Name, u"Data\\map.tga"_s);
    }

    void theKeysOfAFieldAreNoneOfTheList() {
        Work();
        ClickRow(1);
        QSignalSpy activated(Files(), &FileListView::RowActivated);
        QTest::keyClick(List(), Qt::Key_F2);
        TypeInto(List(), u"Notes.txt"_s);
        QCOMPARE(activated.size(), 0);
    }

    void aHeldEnterKeyOpensARowOnce() {
        Work();
        ClickRow(0);
        QSignalSpy activated(Files(), &FileListView::RowActivated);
        for (const bool repeated : {false, true, true}) {
            QKeyEvent press(QEvent::KeyPress, Qt::Key_Return, {}, u"\r"_s, repeated);
            QApplication::sendEvent(List(), &press);
        }
        QCOMPARE(activated.size(), 1);
    }

    void aNameWithABackslashIsRefused() {
        Work();
        ClickRow(1);
        for (const QString& text : {u"a\\b.txt"_s, QString()}) {
            QTest::keyClick(List(), Qt::Key_F2);
            QTRY_VERIFY(Field(List()) != nullptr);
            Field(List())->clear();
            TypeInto(List(), text);
            QCOMPARE(Rows(), QStringList({u"data"_s, u"readme.txt"_s}));
        }
        QVERIFY(!window_->isWindowModified());
    }

    void theDeleteKeyInAFieldDeletesCharactersOnly() {
        Work();
        ClickRow(1);
        QTest::keyClick(List(), Qt::Key_F2);
        QTRY_VERIFY(Field(List()) != nullptr);
        QTest::keyClick(Field(List()), Qt::Key_Delete);
        QCOMPARE(host_->Messages.size(), 0U);
        QTest::keyClick(Field(List()), Qt::Key_Escape);
    }

    void theMenuOfARowSelectsThatRowAlone() {
        Work();
        List()->selectAll();
        QCOMPARE(MenuAt(List()->viewport(), RowAt(1)), u"mnuEdit"_s);
        QCOMPARE(Files()->SelectedRows(), std::vector<int>{1});
        QVERIFY(Part<QAction>("mnuModify")->isEnabled());
        QCOMPARE(MenuAt(List()->viewport(), RowAt(0)), u"mnuEdit"_s);
        QVERIFY(!Part<QAction>("mnuModify")->isEnabled());
    }

    void theMenuBesideTheRowsIsThatOfTheViews() {
        Work();
        QCOMPARE(MenuAt(List()->viewport(), List()->viewport()->rect().bottomRight() - QPoint(4, 4)), u"mnuView"_s);
    }

    void theMenuOfANodeSelectsIt() {
        Work();
        const QModelIndex data = Tree()->model()->index(0, 0, Tree()->model()->index(0, 0));
        QCOMPARE(MenuAt(Tree()->viewport(), Tree()->visualRect(data).center()), u"mnuEdit"_s);
        QCOMPARE(Rows(), QStringList({u"ini"_s, u"map.tga"_s}));
    }

    void droppedFilesBecomeNewEntriesOfTheFolder() {
        Work();
        Select(u"data\\"_s);
        Drop({world_->WriteFile(u"dropped\\caf\u00E9.txt"_s, "text")});
        QTRY_COMPARE(Rows(), QStringList({u"ini"_s, u"map.tga"_s, u"caf\u00E9.txt"_s}));
        QCOMPARE(List()->model()->index(2, 0).data(Qt::ForegroundRole).value<QColor>(), QColor(0, 0, 255));
        QVERIFY(window_->isWindowModified());
    }

    void aDroppedFolderComesWithEverythingInIt() {
        Work();
        Select(u"data\\"_s);
        world_->WriteFile(u"tree\\deep\\one.ini"_s, "1");
        Drop({world_->Root() + u"\\tree"_s});
        QTRY_COMPARE(mBIG::BigEntries.size(), 4U);
        QCOMPARE(mBIG::BigEntries.back().Name, u"data\\tree\\deep\\one.ini"_s);
        Select(u"data\\tree\\deep\\"_s);
        QCOMPARE(Rows(), QStringList({u"one.ini"_s}));
    }

    void nothingIsDroppedWithoutAnArchive() {
        Open();
        QVERIFY(!List()->viewport()->isEnabled());
    }

    void typingFindsARow() {
        Work();
        List()->setFocus();
        QTest::keyClicks(List(), u"rea"_s);
        QCOMPARE(List()->currentIndex().data().toString(), u"readme.txt"_s);
        QCOMPARE(Status(), u"readme.txt"_s);
        QVERIFY(Part<QWidget>("mnuDetails")->isVisible());
    }

    void theStatusBarCountsRowsAndSelection() {
        world_->UseLanguage(
            "[LNG]\r\nRowCount=%1 rows\r\nRowsSelected=%1 chosen, %2\r\nFoldersSelected=%1 chosen\r\nKiloBytes=KB\r\n");
        world_->Start();
        Open();
        const auto told = [this] { return Part<QLabel>("lblSelection")->text(); };
        QCOMPARE(told(), QString());
        Work();
        QCOMPARE(told(), u"2 rows"_s);
        ClickRow(0);
        QCOMPARE(told(), u"1 chosen"_s); // a folder has no size
        Select(u"data\\"_s);
        List()->selectAll();
        QCOMPARE(told(), u"2 chosen, 2 KB"_s);
        List()->clearSelection();
        QCOMPARE(told(), u"2 rows"_s);
    }

    void commandsFollowTheKeyboardFocus() {
        Work();
        ClickRow(1);
        QTest::keyClick(List(), Qt::Key_Backtab);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backtab);
        QVERIFY(Tree()->hasFocus());
        QVERIFY(!Part<QWidget>("mnuDetails")->isVisible());
        host_->Answers = {Answer::Yes};
        QTest::keyClick(Tree(), Qt::Key_Delete);
        // The root stays whatever the answer, and so does the row that was clicked before.
        QCOMPARE(Rows(), QStringList({u"data"_s, u"readme.txt"_s}));
    }

    void everyCommandHasAShortcutOfItsOwn() {
        Open();
        QStringList keys;
        for (const QAction* action : window_->findChildren<QAction*>()) {
            if (!action->objectName().startsWith(u"mnu"_s) || action->menu() != nullptr)
                continue;
            QVERIFY2(!action->shortcut().isEmpty(), qPrintable(action->objectName()));
            keys += action->shortcut().toString();
        }
        QCOMPARE(keys.removeDuplicates(), 0);
    }
};

WINDOW_TEST(tst_bigeditorediting)

#include "tst_bigeditorediting.moc"
