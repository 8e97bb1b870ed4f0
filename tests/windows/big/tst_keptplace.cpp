// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Selection, current row and scrolled position over the commands that make the views anew, in each view mode; and what
/// the details tell over a rename and the menus.
#include "tests/windows/big/BigEditorWindow.h"

#include <QContextMenuEvent>
#include <QLineEdit>
#include <QScrollBar>
#include <QSignalSpy>

using namespace Qt::StringLiterals;
using Answer = Host::Answer;

class tst_keptplace : public BigEditorWindow {
    Q_OBJECT
private:
    static constexpr int files = 400;
    static constexpr int folders = 60;

    static QString NameOf(int file) { return u"name of a file %1.txt"_s.arg(file, 3, 10, QChar(u'0')); }

    void Work() {
        OpenArchive();
        window_->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(window_.get()));
    }

    void WorkWithMany() {
        std::vector<NamedBytes> entries;
        entries.reserve(std::size_t{files} + folders);
        for (int file = 0; file < files; ++file)
            entries.emplace_back(u"Data\\"_s + NameOf(file), "x");
        for (int folder = 0; folder < folders; ++folder)
            entries.emplace_back(u"Folder %1\\x"_s.arg(folder), "y");
        archive_ = world_->WriteFile(u"many.big"_s, ArchiveOf(entries));
        Work();
        Select(u"data\\"_s);
    }

    QAbstractItemView* List() { return Files()->Current(); }

    QModelIndex Row(const QString& text) {
        const QAbstractItemModel* model = List()->model();
        for (int row = 0; row < model->rowCount(); ++row)
            if (model->index(row, 0).data().toString() == text)
                return model->index(row, 0);
        return {};
    }

    void ClickText(const QString& text, Qt::KeyboardModifiers keys = {}) {
        QTest::mouseClick(List()->viewport(), Qt::LeftButton, keys, List()->visualRect(Row(text)).center());
    }

    QStringList Selected() {
        QStringList texts;
        for (const int place : Files()->SelectedRows())
            texts += List()->model()->index(place, 0).data().toString();
        return texts;
    }

    struct Place {
        QString Current;
        QStringList Selected;
        QPoint List;
        int Tree = 0;

        bool operator==(const Place&) const = default;
    };

    Place Now() {
        return {List()->currentIndex().data().toString(), Selected(),
                QPoint(List()->horizontalScrollBar()->value(), List()->verticalScrollBar()->value()),
                Tree()->verticalScrollBar()->value()};
    }

    /// Scrolls to the middle of both views and selects two rows there.
    Place GoToTheMiddle() {
        List()->scrollTo(Row(NameOf(200)), QAbstractItemView::PositionAtCenter);
        ClickText(NameOf(200));
        ClickText(NameOf(202), Qt::ControlModifier);
        Tree()->verticalScrollBar()->setValue(Tree()->verticalScrollBar()->maximum() / 2);
        return Now();
    }

    static void CompareTo(const Place& now, const Place& before) {
        QCOMPARE(now.Current, before.Current);
        QCOMPARE(now.Selected, before.Selected);
        QCOMPARE(now.List, before.List);
        QCOMPARE(now.Tree, before.Tree);
    }

    QString Detailed() {
        return Part<QWidget>("mnuDetails")->isVisible() ? Part<QLabel>("lblFName")->text() : QString();
    }

    void AddFile() {
        Q_EMIT Files()->FilesDropped({world_->WriteFile(u"zz new.txt"_s, "new")});
        QTRY_VERIFY(Row(u"zz new.txt"_s).isValid());
    }

    static QString CloseMenu() {
        QWidget* const menu = QApplication::activePopupWidget();
        QString name = menu == nullptr ? QString() : menu->objectName();
        if (menu != nullptr)
            menu->close();
        return name;
    }

private Q_SLOTS:

    void init() { Begin(); }

    void cleanup() { End(); }

    void thePlaceStays_data() {
        QTest::addColumn<int>("mode");
        for (const int mode : {0, 1, 2, 3})
            QTest::addRow("mode %d", mode) << mode;
    }

    void thePlaceStays() {
        QFETCH(int, mode);
        WorkWithMany();
        ViewItem(mode)->trigger();
        const Place before = GoToTheMiddle();
        QCOMPARE(before.Current, NameOf(202));
        QCOMPARE(before.Selected, QStringList({NameOf(200), NameOf(202)}));
        QVERIFY(before.List.x() + before.List.y() > 100);
        QVERIFY(before.Tree > 5); // in rows
        AddFile();
        CompareTo(Now(), before);
        QTest::keyClick(List(), Qt::Key_S, Qt::ControlModifier);
        QCOMPARE(Rows().last(), u"zz new.txt"_s);
        CompareTo(Now(), before);
        QTest::qWait(20); // what the toolkit lays out later
        CompareTo(Now(), before);
    }

    void theNeighbourOfTheDeletedRowIsSelectedWhereItStood_data() { thePlaceStays_data(); }

    void theNeighbourOfTheDeletedRowIsSelectedWhereItStood() {
        QFETCH(int, mode);
        WorkWithMany();
        ViewItem(mode)->trigger();
        Place expected = GoToTheMiddle();
        host_->Answers = {Answer::Yes};
        QTest::keyClick(List(), Qt::Key_Delete);
        QCOMPARE(Rows().size(), files - 2);
        expected.Current = NameOf(203);
        expected.Selected = QStringList{NameOf(203)};
        CompareTo(Now(), expected);
        QCOMPARE(Detailed(), NameOf(203));
        QVERIFY(List()->viewport()->rect().contains(List()->visualRect(Row(NameOf(203))).center()));
        // The keyboard goes on from there.
        QTest::keyClick(List(), mode == 0 || mode == 2 ? Qt::Key_Right : Qt::Key_Down);
        QCOMPARE(Selected(), QStringList{NameOf(204)});
        QCOMPARE(Detailed(), NameOf(204));
    }

    void anotherFolderBeginsAtItsTop() {
        WorkWithMany();
        GoToTheMiddle();
        Select(u"folder 1\\"_s);
        Select(u"data\\"_s);
        QCOMPARE(Selected(), QStringList());
        QCOMPARE(List()->verticalScrollBar()->value(), 0);
    }

    void theKeyOfASaveIsNoClickOnTheRow() {
        Work();
        ClickText(u"readme.txt"_s);
        QCOMPARE(Detailed(), u"readme.txt"_s);
        QTest::keyClick(List(), Qt::Key_S, Qt::ControlModifier);
        QCOMPARE(Selected(), QStringList{u"readme.txt"_s});
        QCOMPARE(Detailed(), QString());
        QTest::keyClick(List(), Qt::Key_Down);
        QCOMPARE(Detailed(), u"readme.txt"_s);
    }

    void aNewNameIsToldByTheDetails() {
        Work();
        ClickText(u"readme.txt"_s);
        QTest::keyClick(List(), Qt::Key_F2);
        auto* const field = List()->viewport()->findChild<QLineEdit*>();
        QVERIFY(field != nullptr);
        field->setText(u"Notes.txt"_s);
        QTest::keyClick(field, Qt::Key_Return);
        QTRY_COMPARE(Detailed(), u"Notes.txt"_s);
        QCOMPARE(Status(), u"Notes.txt"_s);
    }

    void theMenuOfARowIsToldByTheDetails() {
        WorkWithMany();
        ClickText(NameOf(1));
        const QPoint place = List()->visualRect(Row(NameOf(0))).center();
        QContextMenuEvent event(QContextMenuEvent::Mouse, place, List()->viewport()->mapToGlobal(place));
        QApplication::sendEvent(List()->viewport(), &event);
        QCOMPARE(CloseMenu(), u"mnuEdit"_s);
        QCOMPARE(Selected(), QStringList{NameOf(0)});
        QCOMPARE(Detailed(), NameOf(0));
        QCOMPARE(Status(), u"Data\\"_s + NameOf(0));
    }

    void rowsUnderADrawnFrameAreToldByTheDetails() {
        Work();
        ViewItem(1)->trigger();
        Select(u"data\\"_s);
        ClickText(u"map.tga"_s);
        Select({});
        host_->FileNames = {world_->WriteFile(u"b.txt"_s, "b")};
        Part<QAction>("mnuAdd")->trigger();
        ClickText(u"b.txt"_s);
        QCOMPARE(Detailed(), u"b.txt"_s);
        QWidget* const ground = List()->viewport();
        const QPoint below(20, ground->height() - 5);
        const QPoint row = List()->visualRect(Row(u"readme.txt"_s)).center();
        QTest::mousePress(ground, Qt::LeftButton, {}, below);
        QMouseEvent move(QEvent::MouseMove, row, ground->mapToGlobal(row), Qt::NoButton, Qt::LeftButton, {});
        QApplication::sendEvent(ground, &move);
        Files()->Selection()->select(Row(u"readme.txt"_s),
                                     QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
        QTest::mouseRelease(ground, Qt::LeftButton, {}, row);
        QCOMPARE(Detailed(), u"readme.txt"_s);
        QCOMPARE(Status(), u"readme.txt"_s);
    }

    void theMenuKeyKeepsTheSelection_data() { thePlaceStays_data(); }

    void theMenuKeyKeepsTheSelection() {
        QFETCH(int, mode);
        WorkWithMany();
        ViewItem(mode)->trigger();
        const Place before = GoToTheMiddle();
        const auto pressMenuKey = [this] {
            // Where the toolkit thinks that the current row is counts for nothing.
            QContextMenuEvent event(QContextMenuEvent::Keyboard, {1, 1}, List()->mapToGlobal(QPoint(1, 1)));
            QApplication::sendEvent(List(), &event);
        };
        const QSignalSpy wanted(Files(), &FileListView::MenuWanted);
        pressMenuKey();
        QCOMPARE(wanted.count(), 1);
        const QRect row = List()->visualRect(Row(NameOf(202)));
        QVERIFY(row.contains(List()->viewport()->mapFromGlobal(wanted.last().last().toPoint())));
        QCOMPARE(CloseMenu(), u"mnuEdit"_s);
        CompareTo(Now(), before);
        QCOMPARE(Detailed(), NameOf(202));
        // A current row that is not selected is the one that the menu is for.
        Files()->Selection()->setCurrentIndex(Row(NameOf(201)), QItemSelectionModel::NoUpdate);
        pressMenuKey();
        QCOMPARE(CloseMenu(), u"mnuEdit"_s);
        QCOMPARE(Selected(), QStringList{NameOf(201)});
        QCOMPARE(Detailed(), NameOf(201));
    }

    void theMenuKeyWithoutARowAsksForTheViews() {
        Work();
        Files()->setFocus();
        Files()->Selection()->clear();
        const QPoint ground = List()->viewport()->rect().bottomRight() - QPoint(4, 4);
        QContextMenuEvent event(QContextMenuEvent::Keyboard, ground, List()->mapToGlobal(ground));
        QApplication::sendEvent(List(), &event);
        QCOMPARE(CloseMenu(), u"mnuView"_s);
    }
};

WINDOW_TEST(tst_keptplace)

#include "tst_keptplace.moc"
