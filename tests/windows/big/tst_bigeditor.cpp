// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/SettingKeys.h"
#include "core/Settings.h"
#include "tests/windows/big/BigEditorWindow.h"

#include <QMenuBar>
#include <QStatusBar>

using namespace Qt::StringLiterals;

class tst_bigeditor : public BigEditorWindow {
    Q_OBJECT
private:
    /// In the language of the test's row.
    void ShowIn() {
        QFETCH(QString, language);
        End();
        Begin(OwnLanguages::Bytes(language));
        OpenArchive();
    }

private Q_SLOTS:

    void init() { Begin(); }

    void cleanup() { End(); }

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

    void everyEntryOfAMenuHasALetterOfItsOwn_data() { AddEachLanguage(); }

    void everyEntryOfAMenuHasALetterOfItsOwn() {
        ShowIn();
        QVERIFY(window_->menuBar()->actions().size() == 5);
        QVERIFY(AllEntriesHaveLetters(*window_));
    }

    void textIsNeverCut_data() { AddEachLanguage(); }

    void textIsNeverCut() {
        ShowIn();
        Select(u"data\\"_s);
        for (const QSize size : {QSize(1000, 640), QSize(560, 440)}) {
            window_->resize(size);
            for (const int row : {0, 1}) { // a folder, and a file with its details
                ClickRow(row);
                QCoreApplication::processEvents();
                QCOMPARE(window_->size(), size);
                QVERIFY(AllTextsHaveRoom(*window_));
            }
        }
    }

    void theKeysWalkThroughTheFoldersAsSoonAsAnArchiveIsOpen() {
        OpenArchive();
        QTest::keyClick(window_->focusWidget(), Qt::Key_Down);
        QCOMPARE(Tree()->currentIndex().data().toString(), u"data"_s);
        QCOMPARE(Rows(), QStringList({u"ini"_s, u"map.tga"_s}));
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
        QTRY_COMPARE(Rows(), QStringList({u"ini"_s, u"map.tga"_s}));
        QCOMPARE(Tree()->currentIndex().data().toString(), u"data"_s);
        QTest::keyClick(list, Qt::Key_Home);
        QTest::keyClick(list, Qt::Key_Return);
        QTRY_COMPARE(Rows(), QStringList({u"Object.ini"_s}));
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
        // The bar between the panes comes first.
        for (int step = 0; step < 2; ++step)
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        QVERIFY(Files()->isAncestorOf(QApplication::focusWidget()));
    }

    void treeAndListHaveNamesForScreenReaders() {
        Open();
        QVERIFY(!Tree()->accessibleName().isEmpty());
        QVERIFY(!Files()->Current()->accessibleName().isEmpty());
        QVERIFY(!Part<QStatusBar>("StatusBar1")->accessibleName().isEmpty());
    }

    void foldersLookAlikeInTreeAndList_data() {
        QTest::addColumn<QByteArray>("systemIcons");
        QTest::newRow("own") << QByteArray("0");
        QTest::newRow("system's") << QByteArray("1");
    }

    void foldersLookAlikeInTreeAndList() {
        QFETCH(QByteArray, systemIcons);
        WriteSetting(SettingKeys::ViewFileIcons, QString::fromLatin1(systemIcons));
        OpenArchive();
        const auto picture = [](const QModelIndex& row) {
            return row.data(Qt::DecorationRole).value<QIcon>().pixmap(16).toImage();
        };
        const QModelIndex data = Tree()->model()->index(0, 0, Tree()->model()->index(0, 0));
        QVERIFY(!picture(data).isNull());
        QCOMPARE(picture(data), picture(Files()->Current()->model()->index(0, 0)));
    }

    void rowsAreOneHeightInTreeAndList() {
        OpenArchive();
        ViewItem(1)->trigger();
        const auto height = [](QAbstractItemView* view, const QModelIndex& row) {
            return view->visualRect(row).height();
        };
        const int inTree = height(Tree(), Tree()->model()->index(0, 0));
        const int inList = height(Files()->Current(), Files()->Current()->model()->index(0, 0));
        QCOMPARE(inList, inTree);
    }
};

WINDOW_TEST(tst_bigeditor)

#include "tst_bigeditor.moc"
