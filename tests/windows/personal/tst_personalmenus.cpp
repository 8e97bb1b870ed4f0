// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The context menus of the lists and the tree.

#include "platform/Paths.h"
#include "tests/windows/personal/PersonalFilesWindow.h"

#include <QClipboard>
#include <QDesktopServices>
#include <QDir>
#include <QUrl>

using namespace Qt::StringLiterals;
using Answer = Host::Answer;

class tst_personalmenus : public PersonalFilesWindow {
    Q_OBJECT
public Q_SLOTS:

    void takeUrl(const QUrl& url) { openedUrls_ += url; }

private:
    /// The entries of a menu that is open, without the marks of their keys.
    static QStringList Entries(const QMenu& menu) {
        QStringList entries;
        for (const QAction* const action : menu.actions())
            if (!action->isSeparator())
                entries += QString(action->text()).remove(u'&');
        return entries;
    }

    /// Asks for the context menu at a row, or beside the rows.
    QMenu* MenuOf(RowListView& list, int row) {
        const QPoint place =
            row < 0 ? QPoint(20, list.viewport()->height() - 5) : list.visualRect(list.model()->index(row, 0)).center();
        Q_EMIT list.customContextMenuRequested(place);
        return Part<QMenu>("mnuRow");
    }

    /// Chooses an entry of the row's menu by the mouse.
    void Choose(RowListView& list, int row, const char* action) {
        QMenu* const menu = MenuOf(list, row);
        QVERIFY(menu->isVisible());
        QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(Part<QAction>(action)).center());
        QVERIFY(!menu->isVisible());
    }

    QList<QUrl> openedUrls_;

private Q_SLOTS:

    void init() { Begin(); }

    void cleanup() {
        End();
        openedUrls_.clear();
    }

    void exportInTheRowsMenuChecksTheRowFirst() {
        RowListView& list = ShowTwoReplays();
        Choose(list, 1, "mnuExportRow");
        QCOMPARE(navigator_->Calls, QStringList{u"ShowExportFiles"_s});
        QCOMPARE(ExportRecords.size(), std::size_t{1});
        QVERIFY(IsMarked(list, 1));
    }

    void theRowsMenuSelectsTheRowAndOffersWhatGoes() {
        RowListView& list = ShowTwoReplays();
        QMenu* const menu = MenuOf(list, 1);
        QCOMPARE(Text("lblRFileName"), u"b"_s);
        QCOMPARE(Entries(*menu),
                 QStringList({u"Rename"_s, u"Delete"_s, u"Uninstall what came with it"_s, u"Export"_s, u"Open folder"_s,
                              u"Copy path"_s, u"Check all"_s, u"Uncheck all"_s, u"Add"_s, u"Refresh"_s}));
        QVERIFY(!Part<QAction>("mnuUninstall")->isEnabled());
        menu->close();
        QCOMPARE(Entries(*MenuOf(list, -1)), QStringList({u"Check all"_s, u"Uncheck all"_s, u"Add"_s, u"Refresh"_s}));
    }

    void onlyReplaysAreRenamed() {
        AddMap(u"Alpine"_s);
        Open();
        ClickNode(u"GenMaps"_s);
        RowListView& list = *List("lstMaps");
        QVERIFY(!Entries(*MenuOf(list, 0)).contains(u"Rename"_s));
        Part<QMenu>("mnuRow")->close();
        QTest::keyClick(&list, Qt::Key_F2);
        QVERIFY(list.viewport()->findChild<QLineEdit*>() == nullptr);
    }

    void keysWorkAfterAMenuBesideTheRows() {
        RowListView& list = ShowTwoReplays();
        MenuOf(list, -1)->close();
        Click(list, 0);
        QTest::keyClick(&list, Qt::Key_F2);
        QVERIFY(list.viewport()->findChild<QLineEdit*>() != nullptr);
        QTest::keyClick(list.viewport()->findChild<QLineEdit*>(), Qt::Key_Escape);
        host_->Answers = {Answer::No};
        QTest::keyClick(&list, Qt::Key_Delete);
        QCOMPARE(host_->Messages.size(), std::size_t{1});
    }

    void deleteInTheRowsMenuAsksToo() {
        RowListView& list = ShowTwoReplays();
        host_->Answers = {Answer::Yes};
        Choose(list, 1, "mnuDelete");
        QCOMPARE(Names(list), QStringList{u"a"_s});
    }

    void renamingInPlaceRenamesTheFileAndLeavesTheDetails() {
        RowListView& list = ShowTwoReplays();
        Click(list, 0);
        Choose(list, 0, "mnuRename");
        auto* const field = list.viewport()->findChild<QLineEdit*>();
        QVERIFY(field != nullptr);
        field->selectAll();
        QTest::keyClicks(field, u"final"_s);
        QTest::keyClick(field, Qt::Key_Return);
        QTRY_VERIFY(Files::FileExists(Of(0).ReplayPath + u"final.rep"_s)); // behind the key's event
        QVERIFY(!Files::FileExists(Of(0).ReplayPath + u"a.rep"_s));
        QCOMPARE(Cell(list, 0, 0), u"final"_s);
        QCOMPARE(Text("lblRFileName"), u"a"_s); // until the next selection
        Click(list, 1);
        Click(list, 0);
        QCOMPARE(Text("lblRFileName"), u"final"_s);
    }

    void theBlankKeyAndItsMenuEntriesSetCheckMarks() {
        RowListView& list = ShowTwoReplays();
        Click(list, 0);
        QTest::keyClick(&list, Qt::Key_Space);
        QVERIFY(IsMarked(list, 0));
        QCOMPARE(Status(), u"Items: 2, Checked: 1 (4 KB)"_s);
        Choose(list, -1, "mnuCheckAll");
        QVERIFY(IsMarked(list, 0) && IsMarked(list, 1));
        QCOMPARE(Status(), u"Items: 2, Checked: 2 (8 KB)"_s);
        QTest::keyClick(&list, Qt::Key_A, Qt::ControlModifier | Qt::ShiftModifier);
        QVERIFY(!IsMarked(list, 0) && !IsMarked(list, 1));
        QTest::keyClick(&list, Qt::Key_A, Qt::ControlModifier);
        QVERIFY(IsMarked(list, 0) && IsMarked(list, 1));
        Choose(list, -1, "mnuCheckNone");
        QCOMPARE(Status(), u"Items: 2"_s);
    }

    void openFolderAsksTheSystemsFileManager() {
        RowListView& list = ShowTwoReplays();
        QDesktopServices::setUrlHandler(u"file"_s, this, "takeUrl");
        Choose(list, 0, "mnuOpenFolder");
        QDesktopServices::unsetUrlHandler(u"file"_s);
        QCOMPARE(openedUrls_.size(), 1);
        const QString expected = QDir::fromNativeSeparators(Paths::ToNative(Of(0).ReplayPath));
        QCOMPARE(QDir::cleanPath(openedUrls_[0].toLocalFile()), QDir::cleanPath(expected));
    }

    void copyPathPutsTheFilesPathOnTheClipboard() {
        RowListView& list = ShowTwoReplays();
        Choose(list, 0, "mnuCopyPath");
        QCOMPARE(QGuiApplication::clipboard()->text(), Paths::ToNative(Of(0).ReplayPath + u"a.rep"_s));
        Click(list, 1);
        QTest::keyClick(&list, Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(QGuiApplication::clipboard()->text(), Paths::ToNative(Of(0).ReplayPath + u"b.rep"_s));
    }

    void theTreesMenuAddsAndRefreshes() {
        Open();
        ClickNode(u"GenMaps"_s);
        Q_EMIT Tree()->customContextMenuRequested({20, 20});
        QMenu* const menu = Part<QMenu>("mnuTree");
        QVERIFY(menu->isVisible());
        QCOMPARE(Entries(*menu), QStringList({u"Add"_s, u"Refresh"_s}));
        AddMap(u"Alpine"_s);
        QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(Part<QAction>("mnuRefresh")).center());
        QCOMPARE(Names(*List("lstMaps")), QStringList{u"Alpine"_s});
    }
};

WINDOW_TEST(tst_personalmenus)

#include "tst_personalmenus.moc"
