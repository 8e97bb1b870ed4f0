// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// How the BIG Editor comes up again, and the ways to an archive and to a name that its window has.
#include "core/LastTime.h"
#include "tests/windows/big/BigEditorWindow.h"
#include "ui/list/RowListView.h"
#include "ui/splitter/SplitterBox.h"

#include <QDropEvent>
#include <QHeaderView>
#include <QJsonArray>
#include <QJsonObject>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QUrl>

using namespace Qt::StringLiterals;

class tst_bigeditorplace : public BigEditorWindow {
    Q_OBJECT
private:
    SplitterBox* Box() { return Part<SplitterBox>("picSplitter"); }

    void Again() {
        window_->close();
        window_.reset();
        Open();
    }

    QStringList Recent() {
        auto* const menu = Part<QMenu>("mnuRecent");
        Q_EMIT menu->aboutToShow();
        QStringList entries;
        for (const QAction* entry : menu->actions())
            entries += entry->text();
        return entries;
    }

    QLineEdit* Edited() { return Files()->Current()->viewport()->findChild<QLineEdit*>(); }

    bool Drop(const QString& path) {
        QMimeData data;
        data.setUrls({QUrl::fromLocalFile(QString(path).replace(u'\\', u'/'))});
        QDragEnterEvent enter({20, 20}, Qt::CopyAction, &data, Qt::LeftButton, {});
        enter.ignore();
        QApplication::sendEvent(window_.get(), &enter);
        if (!enter.isAccepted())
            return false;
        QDropEvent drop({20, 20}, Qt::CopyAction, &data, Qt::LeftButton, {});
        QApplication::sendEvent(window_.get(), &drop);
        return true;
    }

private Q_SLOTS:

    void init() { Begin(); }

    void cleanup() { End(); }

    void itComesUpAsItWasLeft() {
        Open();
        window_->setGeometry(60, 70, 700, 500);
        Box()->SetPosition(200);
        ViewItem(1)->trigger();
        Files()->Header()->resizeSection(0, 123);
        Again();
        QCOMPARE(window_->size(), QSize(700, 500));
        QCOMPARE(window_->geometry().topLeft(), QPoint(60, 70));
        QCOMPARE(Box()->Position(), 200);
        QCOMPARE(Files()->Header()->sectionSize(0), 123);
    }

    void columnsThatNobodySizedStayTheListsOwn() {
        Open();
        ViewItem(1)->trigger();
        Again();
        QVERIFY(Part<RowListView>("lvDetails")->UserWidths().empty());
    }

    void aMaximisedWindowKeepsTheSizeThatItHadBefore() {
        Open();
        window_->setGeometry(60, 70, 700, 500);
        Again();
        window_->showMaximized();
        Again();
        QVERIFY(window_->isMaximized());
        const QJsonObject kept = LastTime::Of(u"frmBigEditor"_s).toObject();
        const QJsonArray place = kept[kept[u"screen"_s].toString()][u"place"_s].toArray();
        QCOMPARE(place, QJsonArray({60, 70, 700, 500}));
    }

    void openedArchivesAreAmongTheRecentFiles() {
        Open();
        QCOMPARE(Recent(), QStringList{u"-"_s});
        window_->OpenBigFile(archive_);
        window_->OpenBigFile(world_->WriteFile(u"b & c.big"_s, ArchiveOf({{u"x"_s, "1"}, {u"y"_s, "2"}})));
        QCOMPARE(Recent().size(), 2);
        QVERIFY(Recent()[0].startsWith(u"&1 "_s) && Recent()[0].endsWith(u"b && c.big"_s));
        QVERIFY(Recent()[1].startsWith(u"&2 "_s) && Recent()[1].endsWith(u"a.big"_s));
        Part<QMenu>("mnuRecent")->actions().at(1)->trigger();
        QCOMPARE(Rows(), QStringList({u"data"_s, u"readme.txt"_s}));
    }

    void anArchiveDroppedOnTheEmptyWindowIsOpened() {
        Open();
        QVERIFY(!Drop(world_->WriteFile(u"a.txt"_s, "x")));
        QVERIFY(Drop(archive_));
        QTRY_COMPARE(Rows(), QStringList({u"data"_s, u"readme.txt"_s}));
        QVERIFY(!Drop(archive_)); // now it would be added
    }

    void aFrameStandsAroundTheListWhileFilesAreDraggedOverIt() {
        OpenArchive();
        QMimeData data;
        data.setUrls({QUrl::fromLocalFile(u"/some/file.txt"_s)});
        auto* const frame = Part<QWidget>("dropFrame");
        QWidget* const viewport = Files()->Current()->viewport();
        for (const bool drops : {false, true}) {
            QVERIFY(!frame->isVisible());
            QDragEnterEvent enter({20, 20}, Qt::CopyAction, &data, Qt::LeftButton, {});
            QApplication::sendEvent(viewport, &enter);
            QVERIFY(frame->isVisible());
            QCOMPARE(frame->size(), Files()->size());
            QDragLeaveEvent leave;
            QDropEvent drop({20, 20}, Qt::CopyAction, &data, Qt::LeftButton, {});
            QApplication::sendEvent(viewport, drops ? static_cast<QEvent*>(&drop) : &leave);
        }
        QVERIFY(!frame->isVisible());
        data.clear();
        QDragEnterEvent text({20, 20}, Qt::CopyAction, &data, Qt::LeftButton, {});
        QApplication::sendEvent(viewport, &text);
        QVERIFY(!frame->isVisible());
    }

    void backspaceAndAltUpLeadToTheFolderAbove() {
        OpenArchive();
        Select(u"data\\ini\\"_s);
        QVERIFY(QTest::qWaitForWindowActive(window_.get()));
        Files()->Current()->setFocus();
        QTest::keyClick(Files()->Current(), Qt::Key_Backspace);
        QCOMPARE(Tree()->currentIndex().data().toString(), u"data"_s);
        QCOMPARE(Files()->SelectedRows(), std::vector<int>{0});
        Tree()->setFocus();
        QTest::keyClick(Tree(), Qt::Key_Up, Qt::AltModifier);
        QCOMPARE(Tree()->currentIndex().data().toString(), u"a.big"_s);
    }

    void backspaceInANameTakesALetter() {
        OpenArchive();
        ClickRow(1);
        Files()->Current()->edit(Files()->Current()->currentIndex());
        QTest::keyClick(Edited(), Qt::Key_Backspace);
        QCOMPARE(Edited()->text(), u".txt"_s);
        QCOMPARE(Tree()->currentIndex().data().toString(), u"a.big"_s);
    }

    void theNameWithoutItsEndingIsSelectedForItsEdit_data() {
        QTest::addColumn<int>("mode");
        for (const int mode : {0, 1, 2, 3})
            QTest::addRow("mode %d", mode) << mode;
    }

    void theNameWithoutItsEndingIsSelectedForItsEdit() {
        QFETCH(int, mode);
        OpenArchive();
        ViewItem(mode)->trigger();
        ClickRow(1);
        Part<QAction>("mnuRename")->trigger();
        QCOMPARE(Edited()->selectedText(), u"readme"_s);
        QTest::keyClick(Edited(), Qt::Key_Escape);
        QVERIFY(QTest::qWaitFor([this] { return Edited() == nullptr; }));
        ClickRow(0);
        Part<QAction>("mnuRename")->trigger();
        QCOMPARE(Edited()->selectedText(), u"data"_s);
    }

    void renameInTheTreeEditsTheFolder() {
        OpenArchive();
        Part<QAction>("mnuRename")->trigger();
        QVERIFY(Tree()->viewport()->findChild<QLineEdit*>() == nullptr); // the archive's own name
        Select(u"data\\"_s);
        Part<QAction>("mnuRename")->trigger();
        QVERIFY(Tree()->viewport()->findChild<QLineEdit*>() != nullptr);
    }
};

WINDOW_TEST(tst_bigeditorplace)

#include "tst_bigeditorplace.moc"
