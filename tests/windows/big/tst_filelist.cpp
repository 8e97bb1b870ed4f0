// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "big/window/FileListModel.h"
#include "big/window/FileListView.h"
#include "big/window/FolderTreeModel.h"
#include "tests/big/document_support.h"
#include "tests/support/World.h"
#include "tests/windows/WindowTests.h"

#include <QAbstractItemModelTester>
#include <QHeaderView>
#include <QListView>
#include <QSignalSpy>
#include <QTreeView>

using namespace Qt::StringLiterals;

class tst_filelist : public QObject {
    Q_OBJECT
private Q_SLOTS:

    void init() {
        world_ = std::make_unique<World>();
        table_ = TableOf({u"Data\\INI\\x.ini"_s, u"beta.tga"_s, u"alpha.wav"_s, u"gamma.xyz"_s});
        table_[1].Size = 100;
        table_[2].Size = 9;
        table_[3].Size = 20;
        tree_.CreateDirs(u"a.big"_s, table_);
        model_ = std::make_unique<FileListModel>(list_);
        view_ = std::make_unique<FileListView>();
        view_->SetModel(model_.get());
        ShowRoot();
        view_->resize(500, 300);
        view_->show();
        QVERIFY(QTest::qWaitForWindowExposed(view_.get()));
    }

    void cleanup() {
        view_.reset();
        model_.reset();
        list_ = {};
        world_.reset();
    }

    void theModelKeepsTheRules() {
        const QAbstractItemModelTester tester(model_.get(), QAbstractItemModelTester::FailureReportingMode::QtTest);
        ShowRoot();
        model_->SortBy(FileList::Size);
        model_->SortBy(FileList::Size);
        list_.Clear();
        model_->Reset(true);
        ShowRoot();
        QCOMPARE(model_->rowCount({}), 4);
    }

    void theTreesModelKeepsTheRules() {
        FolderTree tree;
        FolderTreeModel model(tree);
        const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
        QCOMPARE(model.rowCount({}), 0);
        tree.CreateDirs(u"a.big"_s, table_);
        model.Reset();
        QCOMPARE(model.rowCount({}), 1);
        const QModelIndex root = model.index(0, 0, {});
        QCOMPARE(model.data(root, Qt::DisplayRole).toString(), u"a.big"_s);
        const QModelIndex ini = model.IndexOf(tree.Find(u"data\\ini\\"_s));
        QCOMPARE(model.data(ini, Qt::DisplayRole).toString(), u"ini"_s);
        QCOMPARE(model.parent(model.parent(ini)), root);
        tree.CreateDirs(u"b.big"_s, {});
        model.Reset();
        QCOMPARE(model.rowCount(model.index(0, 0, {})), 0);
    }

    void aNewEntryIsBlue() {
        table_[1].IsNew = true;
        ShowRoot();
        QCOMPARE(Data(1, 0, Qt::ForegroundRole).value<QColor>(), QColor(0, 0, 255));
        QVERIFY(!Data(2, 0, Qt::ForegroundRole).isValid());
    }

    void columnsHaveTheirCaptionsAndSizesStandAtTheRight() {
        QCOMPARE(model_->headerData(0, Qt::Horizontal, Qt::DisplayRole).toString(), u"FileName"_s);
        QCOMPARE(model_->headerData(1, Qt::Horizontal, Qt::DisplayRole).toString(), u"FileType"_s);
        QCOMPARE(model_->headerData(2, Qt::Horizontal, Qt::DisplayRole).toString(), u"Size"_s);
        QVERIFY((Data(1, 2, Qt::TextAlignmentRole).toInt() & Qt::AlignRight) != 0);
        QCOMPARE(Data(1, 2).toString(), u"100"_s);
        QCOMPARE(Data(0, 1).toString(), u"Folder"_s);
    }

    void rowsHaveKindIconsOnlyWhenTheyAreWanted() {
        const auto picture = [this](int row) { return Data(row, 0, Qt::DecorationRole).value<QIcon>().cacheKey(); };
        QCOMPARE(picture(1), picture(2));
        QVERIFY(picture(0) != picture(1));
        model_->Reset(true);
        QVERIFY(picture(1) != picture(2));
        for (int row = 0; row < 4; ++row)
            QVERIFY(!Data(row, 0, Qt::DecorationRole).value<QIcon>().isNull());
    }

    void headerClicksSortAndShowTheirMark() {
        view_->SetMode(ViewMode::Details);
        ClickHeader(FileList::Size);
        QCOMPARE(Shown(), QStringList({u"data"_s, u"alpha.wav"_s, u"gamma.xyz"_s, u"beta.tga"_s}));
        QVERIFY(view_->Header()->isSortIndicatorShown());
        QCOMPARE(view_->Header()->sortIndicatorSection(), static_cast<int>(FileList::Size));
        QCOMPARE(view_->Header()->sortIndicatorOrder(), Qt::AscendingOrder);
        ClickHeader(FileList::Size);
        QCOMPARE(view_->Header()->sortIndicatorOrder(), Qt::DescendingOrder);
        QCOMPARE(Shown().first(), u"beta.tga"_s);
        ClickHeader(FileList::Filename);
        QCOMPARE(view_->Header()->sortIndicatorSection(), static_cast<int>(FileList::Filename));
        QCOMPARE(Shown(), QStringList({u"alpha.wav"_s, u"beta.tga"_s, u"data"_s, u"gamma.xyz"_s}));
    }

    void theSelectionFollowsItsRowThroughASort() {
        view_->Selection()->setCurrentIndex(model_->index(3, 0, {}), QItemSelectionModel::ClearAndSelect);
        model_->SortBy(FileList::Size);
        QCOMPARE(view_->Selection()->currentIndex().data().toString(), u"gamma.xyz"_s);
        QCOMPARE(view_->Selection()->currentIndex().row(), 2);
    }

    void allModesShareTheRowsAndTheSelection() {
        view_->Selection()->setCurrentIndex(model_->index(2, 0, {}),
                                            QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
        for (const ViewMode mode : {ViewMode::LargeIcons, ViewMode::Details, ViewMode::SmallIcons, ViewMode::List}) {
            view_->SetMode(mode);
            QCOMPARE(view_->Mode(), mode);
            QCOMPARE(view_->Current()->model(), model_.get());
            QCOMPARE(view_->Current()->selectionModel(), view_->Selection());
            QCOMPARE(view_->Current()->currentIndex().row(), 2);
            QVERIFY(view_->Current()->isVisible());
            QVERIFY(view_->Current()->viewport()->rect().contains(Place(2)));
        }
    }

    void largeIconsAreLargeAndTheListFillsColumns() {
        const auto* icons = view_->findChild<QListView*>();
        view_->SetMode(ViewMode::LargeIcons);
        QCOMPARE(icons->iconSize(), QSize(32, 32));
        view_->SetMode(ViewMode::SmallIcons);
        QCOMPARE(icons->iconSize(), QSize(16, 16));
        QCOMPARE(icons->flow(), QListView::LeftToRight);
        view_->SetMode(ViewMode::List);
        QCOMPARE(icons->flow(), QListView::TopToBottom);
    }

    void clicksAndKeysActOnTheRow_data() {
        QTest::addColumn<int>("mode");
        QTest::newRow("large icons") << 0;
        QTest::newRow("details") << 1;
        QTest::newRow("small icons") << 2;
        QTest::newRow("list") << 3;
    }

    void clicksAndKeysActOnTheRow() {
        QFETCH(int, mode);
        view_->SetMode(static_cast<ViewMode>(mode));
        const QSignalSpy clicked(view_.get(), &FileListView::RowClicked);
        const QSignalSpy activated(view_.get(), &FileListView::RowActivated);
        QTest::mouseClick(view_->Current()->viewport(), Qt::LeftButton, {}, Place(1));
        QCOMPARE(clicked.count(), 1);
        QCOMPARE(clicked.last().first().toInt(), 1);
        QTest::keyClick(view_->Current(), Qt::Key_End);
        QCOMPARE(clicked.count(), 2);
        QCOMPARE(clicked.last().first().toInt(), 3);
        QTest::keyClick(view_->Current(), Qt::Key_Return);
        QCOMPARE(activated.count(), 1);
        QCOMPARE(activated.last().first().toInt(), 3);
        QTest::keyClick(view_->Current(), Qt::Key_Delete);
        QTest::keyClick(view_->Current(), Qt::Key_Control);
        QCOMPARE(clicked.count(), 2);
        QTest::mouseClick(view_->Current()->viewport(), Qt::LeftButton, {}, Place(0));
        QTest::mouseDClick(view_->Current()->viewport(), Qt::LeftButton, {}, Place(0));
        QCOMPARE(activated.count(), 2);
        QCOMPARE(activated.last().first().toInt(), 0);
    }

    void typingANameGoesToItsRow() {
        view_->Current()->setFocus();
        QTest::keyClicks(view_->Current(), u"gam"_s);
        QCOMPARE(view_->Selection()->currentIndex().row(), 3);
    }

    void severalRowsCanBeSelected() {
        QTest::mouseClick(view_->Current()->viewport(), Qt::LeftButton, {}, Place(1));
        QTest::mouseClick(view_->Current()->viewport(), Qt::LeftButton, Qt::ControlModifier, Place(3));
        QCOMPARE(view_->Selection()->selectedRows().size(), 2);
    }

    void aFullArchiveIsShownInEveryMode() {
        QStringList names;
        for (int index = 0; index < mBIG::MaximumEntries; ++index)
            names += u"Entry number %1.tga"_s.arg(index);
        table_ = TableOf(names);
        tree_.CreateDirs(u"a.big"_s, table_);
        for (const ViewMode mode : {ViewMode::LargeIcons, ViewMode::Details, ViewMode::SmallIcons, ViewMode::List}) {
            view_->SetMode(mode);
            ShowRoot();
            view_->grab();
            QTest::keyClick(view_->Current(), Qt::Key_Home);
            QTest::keyClick(view_->Current(), Qt::Key_End);
            QCOMPARE(view_->Selection()->currentIndex().row(), mBIG::MaximumEntries - 1);
        }
    }

private:
    void ShowRoot() {
        list_.ShowFolder(tree_, FolderTree::Root, {}, table_, u"Folder"_s);
        model_->Reset(false);
        view_->RowsChanged();
    }

    [[nodiscard]] QVariant Data(int row, int column, int role = Qt::DisplayRole) const {
        return model_->data(model_->index(row, column, {}), role);
    }

    [[nodiscard]] QStringList Shown() const { return Texts(list_); }

    [[nodiscard]] QPoint Place(int row) const {
        return view_->Current()->visualRect(model_->index(row, 0, {})).center();
    }

    void ClickHeader(int column) {
        QHeaderView* header = view_->Header();
        const QPoint place(header->sectionViewportPosition(column) + 20, header->height() / 2);
        QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, place);
    }

    std::unique_ptr<World> world_;
    std::vector<BigEntry> table_;
    FolderTree tree_;
    FileList list_;
    std::unique_ptr<FileListModel> model_;
    std::unique_ptr<FileListView> view_;
};

WINDOW_TEST(tst_filelist)

#include "tst_filelist.moc"
