// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

// What the window looks like at any size, and how it is reached by keyboard and screen reader.

#include "core/mTraduction.h"
#include "tests/windows/SmallScreens.h"
#include "tests/windows/personal/PersonalFilesWindow.h"
#include "ui/splitter/SplitterBox.h"

#include <QApplication>
#include <QMenuBar>
#include <QScrollBar>
#include <QStatusBar>

using namespace Qt::StringLiterals;

class tst_personallook : public PersonalFilesWindow {
    Q_OBJECT
private:
    /// A row of each kind, and details of each.
    void MakeFiles() {
        AddReplay(u"Last Replay"_s);
        Write(AddMap(u"Alpine Assault"_s) + u"\\Alpine Assault.tga"_s, Targa(Qt::red));
        AddMod(u"Contra.big"_s, "[Mod]\r\nName=Contra\r\n");
        AddShellMap(u"001"_s, "[Infos]\r\nName=Waves\r\n");
    }

    /// Whether a child of the side menu lies outside of its parent or over a sibling.
    QString Overlap() {
        const auto groups = Part<QWidget>("picLeftMenu")->findChildren<SideGroup*>();
        for (const SideGroup* const group : groups) {
            if (!group->isVisible())
                continue;
            if (!Part<QWidget>("picLeftMenu")->rect().contains(group->geometry()))
                return group->objectName();
            for (const SideGroup* const other : groups)
                if (other != group && other->isVisible() && other->geometry().intersects(group->geometry()))
                    return group->objectName();
        }
        return {};
    }

private Q_SLOTS:

    void cleanup() { End(); }

    void textIsNeverCut_data() {
        QTest::addColumn<QString>("language");
        QTest::addColumn<QSize>("size");
        for (const QString& language : OwnLanguages::Names())
            for (const QSize size : {QSize(640, 440), QSize(800, 540), QSize(1000, 640)})
                QTest::addRow("%s, %d x %d", qPrintable(language), size.width(), size.height()) << language << size;
    }

    void textIsNeverCut() {
        QFETCH(QString, language);
        QFETCH(QSize, size);
        Begin(language);
        MakeFiles();
        Open();
        window_->resize(size);
        for (const auto& [node, list] :
             {std::pair{u"GenReplays"_s, "lstReplays"}, std::pair{u"GenMaps"_s, "lstMaps"},
              std::pair{u"GenMods"_s, "lstMods"}, std::pair{u"GenShellMaps"_s, "lstShellMaps"}}) {
            ClickNode(node);
            Click(*List(list), 0);
            QCoreApplication::processEvents();
            QCOMPARE(window_->size(), size);
            QVERIFY(AllTextsHaveRoom(*window_));
            QCOMPARE(Overlap(), QString());
            QVERIFY(List(list)->width() >= 200);
            if (size.width() == 1000)
                QVERIFY2(!List(list)->horizontalScrollBar()->isVisible(), list);
        }
        QVERIFY(FitsSmallScreens(*window_));
        QVERIFY(Comments()->height() >= 40 && NameBox()->height() >= NameBox()->sizeHint().height());
    }

    void theTreeIsAsWideAsItsLongestName() {
        Begin(u"French"_s);
        world_->InstallGame(3);
        world_->Start();
        Open();
        QVERIFY(!Tree()->horizontalScrollBar()->isVisible());
        QVERIFY(Tree()->viewport()->width() >= Tree()->columnWidth(0));
    }

    void theTreeGivesWayToTheListUntilTheUserMovesTheDivider() {
        Begin(u"French"_s);
        world_->InstallGame(3);
        world_->Start();
        Open();
        auto* const splitter = Part<SplitterBox>("picSplitter");
        const int whole = splitter->Position();
        window_->resize(700, 500);
        QVERIFY(splitter->Position() < whole);
        QVERIFY(Part<QWidget>("picLists")->width() >= 300);
        window_->resize(1200, 500);
        QCOMPARE(splitter->Position(), whole);
        QTest::keyClick(splitter->Bar(), Qt::Key_Left);
        window_->resize(1300, 500);
        QCOMPARE(splitter->Position(), whole - 16);
    }

    void splittersMoveByMouseAndKeys() {
        Begin();
        Open();
        for (const char* const name : {"picSplitter", "picSplitterLeft"}) {
            auto* const splitter = Part<SplitterBox>(name);
            QWidget* const bar = splitter->Bar();
            const int before = splitter->Position();
            bar->setFocus();
            QTest::keyClick(bar, Qt::Key_Right);
            QCOMPARE(splitter->Position(), before + 16);
            const QPoint grip = bar->rect().center();
            QTest::mousePress(bar, Qt::LeftButton, {}, grip);
            QTest::mouseMove(bar, grip + QPoint(10, 0));
            QTest::mouseRelease(bar, Qt::LeftButton, {}, grip);
            QVERIFY(splitter->Position() > before + 16);
            QVERIFY(!bar->accessibleName().isEmpty());
        }
    }

    void theTabKeyWalksFromTheTreeToTheListAndItsDetails() {
        Begin();
        MakeFiles();
        Open();
        ClickNode(u"GenMods"_s);
        Click(*List("lstMods"), 0);
        Link(0)->setFocus();
        QStringList walked;
        for (int step = 0; step < 20; ++step) {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
            const QString name = QApplication::focusWidget()->objectName();
            if (name == u"Label2_0"_s)
                break;
            if (!name.isEmpty() && name != u"bar"_s)
                walked += name;
        }
        QCOMPARE(walked, QStringList({u"Label2_1"_s, u"Label2_2"_s, u"tvFiles"_s, u"lstMods"_s, u"txtMName"_s,
                                      u"txtMComments"_s}));
    }

    void everyEntryOfAMenuHasALetterOfItsOwn_data() { AddEachLanguage(); }

    void everyEntryOfAMenuHasALetterOfItsOwn() {
        QFETCH(QString, language);
        Begin(language);
        Open();
        for (const char* const menu : {"mnuRow", "mnuTree"})
            QVERIFY(Part<QMenu>(menu) != nullptr);
        QVERIFY(AllEntriesHaveLetters(*window_));
    }

    void screenReadersKnowEveryControl() {
        Begin();
        Open();
        for (const char* const name :
             {"tvFiles", "lstReplays", "lstMaps", "lstMods", "lstShellMaps", "tvPlayers", "Image2", "StatusBar1"})
            QVERIFY2(!Part<QWidget>(name)->accessibleName().isEmpty(), name);
        for (const char* const name :
             {"tvFiles", "tvPlayers", "txtMName", "txtMComments", "Label2_0", "Label2_1", "Label2_2"})
            QVERIFY2(!Part<QWidget>(name)->accessibleDescription().isEmpty(), name);
        for (const auto& [label, box] : {std::pair{"lblMName", "txtMName"}, std::pair{"lblMComments", "txtMComments"},
                                         std::pair{"lblRPlayers", "tvPlayers"}})
            QCOMPARE(Part<QLabel>(label)->buddy(), Part<QWidget>(box));
    }

    void aFoldedGroupStaysFolded() {
        Begin();
        MakeFiles();
        Open();
        ClickNode(u"GenMaps"_s);
        Click(*List("lstMaps"), 0);
        Part<SideGroup>("mnuDetailsMaps")->SetFolded(true);
        ClickNode(u"GenMaps"_s);
        Click(*List("lstMaps"), 0);
        QVERIFY(Part<SideGroup>("mnuDetailsMaps")->isVisible());
        QVERIFY(!Part<QWidget>("picDetailsMaps")->isVisible());
        QCOMPARE(Part<SideGroup>("mnuDetailsMaps")->height(), SideGroup::HeadingHeight);
    }

    void aThousandRowsNeedNoControlOfTheirOwn() {
        Begin();
        for (int number = 0; number < 1000; ++number)
            AddReplay(u"Replay %1"_s.arg(number, 4, 10, QChar(u'0')));
        Open();
        ClickNode(u"GenReplays"_s);
        RowListView& list = *List("lstReplays");
        QCOMPARE(list.model()->rowCount(), 1000);
        list.setFocus();
        QTest::keyClick(&list, Qt::Key_End);
        QCOMPARE(Text("lblRFileName"), u"Replay 0999"_s);
        QVERIFY(list.findChildren<QWidget*>().size() < 20); // no control a row
    }

    void textsThatLookLikeMarkupAreShownAsTheyAre() {
        Begin();
        AddMod(u"&lt;x.big"_s, "[Mod]\r\nName=<i>y\r\n");
        Open();
        ClickNode(u"GenMods"_s);
        Click(*List("lstMods"), 0);
        const QModelIndex row = List("lstMods")->model()->index(0, 1);
        QVERIFY(row.data(Qt::ToolTipRole).toString().contains(u"&lt;i&gt;y"_s)); // a cell's own text
        QCOMPARE(Part<QLabel>("lblMFileName")->textFormat(), Qt::PlainText);
        QCOMPARE(Part<QLabel>("lblStatus")->textFormat(), Qt::PlainText);
    }
};

WINDOW_TEST(tst_personallook)

#include "tst_personallook.moc"
